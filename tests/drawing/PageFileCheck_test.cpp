#include "drawing/PageFileCheck.h"
#include "pages/PDFToSWFPageConverter.h"

#include "pdf/PDFReader.h"
#include "picture/Deflater.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

QByteArray packed(const std::string& body) {
    return Deflater(1).zlib("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1pt\">\n" + body +
                            "</svg>\n");
}

TEST(PageFileCheck, AllowsOnlyDrawingsInVectors) {
    EXPECT_TRUE(PageFileCheck::areHarmless(packed(
        "<defs>\n!'&<\n!\n<path id=\"g1\" d=\"M1-2\"/><image "
        "href=\"data:image/png;base64,/+A=\"/></defs>"
        "<use href=\"#g1\"/><g clip-path=\"url(#c1)\" transform=\"matrix(1 0 0 1 0 0)\">a</g>\n")));
    for (const char* body : {"<script>1</script>",
                             "<g onload=\"1\"/>",
                             "<g\tonload=\"1\"/>",
                             "<g fill=\"url(#a)\"/>",
                             "<use href=\"x.svg#a\"/>",
                             "<image href=\"data:image/svg+xml;base64,A\"/>",
                             "<image href=\"//example.invalid/x\"/>",
                             "<image href=\"http://www.w3.org/2000/svg\"/>",
                             "<g xmlns=\"data:image/png;base64,A\"/>",
                             "<path d=\"M1 2url(3\"/>",
                             "<g clip-path=\"url(x#a)\"/>",
                             "<g clip-path=\"url(#a)url(x)\"/>",
                             "<use href=\"#url(x\"/>",
                             "<a/>",
                             "&#60;",
                             "<rect fill=\"\\75rl(x)\"/>",
                             "<!DOCTYPE svg>",
                             "<?xml-stylesheet href=\"x\"?>",
                             "<rect style=\"a\"/>",
                             "<use xlink:href=\"#a\"/>",
                             "<g id='a'/>",
                             "<g id=\"a",
                             "<g id=\"a\"onload=\"1\"/>",
                             "</script>",
                             "<foreignObject/>",
                             "<image href=\"data:image/png;base64,>@</g>\"/>",
                             "<path d=\"a:b\"/>"})
        EXPECT_FALSE(PageFileCheck::areHarmless(packed(body))) << body;
    EXPECT_FALSE(PageFileCheck::areHarmless(Deflater(1).zlib("<html><svg></svg></html>")));
    EXPECT_FALSE(PageFileCheck::areHarmless(packed("").chopped(1)));
}

// A worker that was taken over has written a page's files after they were drawn.
TEST(PageFileCheck, KeepsForeignFilesOutOfBooks) {
    PDFToSWFPageConverter pages(Program::sample("sample.pdf"),
                                PDFReader::open(Program::sample("sample.pdf")), 100);
    pages.setFilesOf(webFiles);
    const std::atomic<bool> stop{false};
    const std::vector numbers{1, 2, 3, 4, 5, 6, 7, 8};
    pages.drawAhead(numbers, stop);
    const QDir folder(pages.converterWorkFolder());
    TestFiles::write(folder.filePath("5.swf"), "FWS");
    for (const int page : numbers)
        EXPECT_FALSE(pages.generatePage(page).endsWith(".swf"));
    TestFiles::write(folder.filePath("1.jpg"), "<html><script>1</script>");
    TestFiles::write(folder.filePath("2.thumb.jpg"), "<html><script>1</script>");
    TestFiles::write(folder.filePath("3.large.vectors"), packed("<script>1</script>"));
    QFile::remove(folder.filePath("4.png"));
    QFile::link("/etc/hostname", folder.filePath("4.png"));
    const QImage small(8, 8, QImage::Format_RGB32);
    small.save(folder.filePath("6.jpg"));
    small.save(folder.filePath("7.png"));
    for (const char* picture : {"6.jpg", "7.png"})
        TestFiles::write(folder.filePath(picture),
                         TestFiles::read(folder.filePath(picture)) + "<script>");
    QByteArray huge = TestFiles::read(folder.filePath("8.thumb.jpg"));
    huge.replace(huge.indexOf("\xff\xc0") + 5, 4, "\x7f\xff\x7f\xff");
    TestFiles::write(folder.filePath("8.thumb.jpg"), huge);
    pages.endDrawingAhead();

    std::vector<int> failed;
    for (const auto& page : pages.failedPages())
        failed.push_back(page.page);
    EXPECT_EQ(failed, (std::vector{1, 4, 6, 7}));
    EXPECT_EQ(pages.degradedPages().size(), 3U);
    EXPECT_EQ(folder.entryList({"1.*", "4.*"}, QDir::Files | QDir::System), QStringList());
    EXPECT_FALSE(folder.exists("2.thumb.jpg") || folder.exists("3.large.vectors"));
    EXPECT_TRUE(folder.exists("5.large.vectors") && folder.exists("5.thumb.jpg"));

    pages.drawAhead({2}, stop);
    TestFiles::write(folder.filePath("5.thumb.jpg"), "<html><script>1</script>");
    pages.endDrawingAhead();
    EXPECT_FALSE(folder.exists("5.thumb.jpg"));
}

TEST(PageFileCheck, KeepsPublishedFilesOutOfReachOfTheWorkers) {
    const QTemporaryDir book;
    const std::string published = book.filePath("1.jpg").toStdString();
    ASSERT_TRUE(QImage(9, 9, QImage::Format_RGB32).save(book.filePath("1.jpg")));
    PDFToSWFPageConverter pages(Program::sample("sample.pdf"),
                                PDFReader::open(Program::sample("sample.pdf")), 100);
    const QDir folder(pages.converterWorkFolder());
    pages.setFilesOf(webFiles);
    pages.setTakeEarlierPage([&](int, PageFiles, const WebPageFiles& files) {
        std::filesystem::create_hard_link(published, files.pageFile.toStdString());
        return PageFiles::text;
    });
    const std::atomic<bool> stop{false};
    pages.drawAhead({1}, stop);
    EXPECT_FALSE(folder.exists("1.jpg"));
    EXPECT_EQ(pages.generatePage(1), folder.filePath("1.jpg"));
    pages.endDrawingAhead();
    EXPECT_TRUE(folder.exists("1.jpg"));
    EXPECT_EQ(std::filesystem::hard_link_count(published), 2U);
    EXPECT_TRUE(pages.failedPages().empty() && pages.degradedPages().empty());

    pages.setFilesOf(webFiles);
    pages.drawAhead({2}, stop);
    EXPECT_EQ(std::filesystem::hard_link_count(published), 1U) << "the book's own";
    pages.endDrawingAhead();
    EXPECT_TRUE(folder.exists("1.jpg"));
}

} // namespace
