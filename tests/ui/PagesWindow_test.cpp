#include "ui/PagesWindow.h"

#include "support/OfficeStandIn.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"
#include "ui/PagesWindowDelegate.h"

#include <QAction>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

// The sheet with the nine pages of a document.
class PagesSheet : public testing::Test {
protected:
    void SetUp() override {
        QString failure;
        ASSERT_TRUE(delegate.beginSheet(
            {Program::sample("outline.pdf")}, {}, [this](int code) { ended = code; }, &failure))
            << failure.toStdString();
    }

    // Pages by their number in the document, "-" for a blank one, "b1" of the second document, each
    // with a turn that is not 0; selected ones in brackets.
    std::string shown() {
        QStringList all;
        const auto* chosen = delegate.window().pages->selectionModel();
        for (int row = 0; row < delegate.model().rowCount(); ++row) {
            const auto& page = delegate.model().pages()[std::size_t(row)];
            QString text = page.source < 0 ? QStringLiteral("-") : QString::number(page.index + 1);
            if (page.source == 1)
                text.prepend('b');
            if (page.rotation)
                text += '/' + QString::number(page.rotation);
            const bool isChosen = chosen->isSelected(delegate.model().index(row));
            all << (isChosen ? '[' + text + ']' : text);
        }
        return all.join(' ').toStdString();
    }

    void choose(const QList<int>& rows) {
        auto* selection = delegate.window().pages->selectionModel();
        selection->clear();
        for (const int row : rows)
            selection->select(delegate.model().index(row), QItemSelectionModel::Select);
    }

    // A page of its own.
    QString picture() {
        const QString file = folder.filePath("cover.png");
        QImage image(30, 40, QImage::Format_RGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(file));
        return file;
    }

    bool drop(const QMimeData& data, int row) {
        return delegate.model().dropMimeData(&data, Qt::MoveAction, row, 0, {});
    }

    QTemporaryDir folder;
    PagesWindowDelegate delegate;
    PagesWindow& window = delegate.window();
    int ended = -1;
};

TEST_F(PagesSheet, EachCommandArrangesWhatIsSelectedAndCanBeUndone) {
    struct Step {
        QAction* command;
        QList<int> rows;
        const char* after;
    };
    const std::string before = shown();
    ASSERT_EQ(before, "1 2 3 4 5 6 7 8 9");
    const std::vector<Step> steps{
        {window.turnLeft, {0, 2}, "[1/270] 2 [3/270] 4 5 6 7 8 9"},
        {window.removePages, {1, 8}, "1/270 [3/270] 4 5 6 7 8"},
        {window.later, {0, 2}, "3/270 5 [1/270] [4] 6 7 8"},
        {window.earlier, {6}, "3/270 5 1/270 4 6 [8] 7"},
        {window.makeFirst, {5}, "[8] 3/270 5 1/270 4 6 7"},
        {window.insertBlankPage, {2}, "8 3/270 [-] 5 1/270 4 6 7"},
        {window.turnRight, {1}, "8 [3] - 5 1/270 4 6 7"},
    };
    for (const auto& [command, rows, after] : steps) {
        choose(rows);
        command->trigger();
        EXPECT_EQ(shown(), after) << command->text().toStdString();
    }
    for (std::size_t step = 0; step < steps.size(); ++step)
        window.undo->trigger();
    EXPECT_EQ(shown(), "[1] 2 [3] 4 5 6 7 8 9") << "what was undone is shown";
    EXPECT_FALSE(window.undo->isEnabled());
    for (std::size_t step = 0; step < steps.size(); ++step)
        window.redo->trigger();
    EXPECT_EQ(shown(), steps.back().after);
}

TEST_F(PagesSheet, PagesAreDraggedBetweenOthersAndFilesFromOutside) {
    auto& model = delegate.model();
    const std::unique_ptr<QMimeData> dragged(model.mimeData({model.index(5), model.index(1)}));
    EXPECT_FALSE(drop(*dragged, 3));
    EXPECT_EQ(shown(), "1 3 [2] [6] 4 5 7 8 9");
    QMimeData files;
    files.setUrls(
        {QUrl::fromLocalFile(picture()), QUrl::fromLocalFile(Program::sample("truncated.pdf"))});
    QDragEnterEvent enter({60, 100}, Qt::CopyAction, &files, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window.pages->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted()) << "as file managers and browsers offer them";
    EXPECT_FALSE(drop(files, 0)) << "whoever offers them would take them for moved";
    EXPECT_EQ(shown(), "[b1] 1 3 2 6 4 5 7 8 9");
    EXPECT_EQ(model.used().documents, QStringList({Program::sample("outline.pdf"), picture()}));
    EXPECT_EQ(model.used().pages.size(), 10U);
    EXPECT_TRUE(window.lblFailure->isVisible());
}

TEST_F(PagesSheet, ScrollsWhileSomethingIsDraggedNearItsEdgesAndNotLonger) {
    window.resize(500, 400);
    QWidget& list = *window.pages->viewport();
    const QScrollBar& bar = *window.pages->verticalScrollBar();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.maximum() > 0; }, 20000));
    const std::unique_ptr<QMimeData> dragged(
        delegate.model().mimeData({delegate.model().index(1)}));
    const auto dragTo = [&](int y, int value) {
        QDragMoveEvent move({60, y}, Qt::MoveAction, dragged.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(&list, &move);
        EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() == value; }, 20000)) << bar.value();
    };
    QDragEnterEvent enter({60, 100}, Qt::MoveAction, dragged.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&list, &enter);
    dragTo(list.height() - 2, bar.maximum());
    dragTo(2, 0);
    dragTo(list.height() - 2, bar.maximum());
    dragTo(list.height() / 2, bar.maximum());
    QTest::qWait(300);
    EXPECT_EQ(bar.value(), bar.maximum()) << "pages would be dropped elsewhere";
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&list, &leave);
}

TEST_F(PagesSheet, PagesOfOfficeDocumentsAreMadeMeanwhileAndCanBeCancelled) {
    auto& model = delegate.model();
    const OfficeStandIn office;
    const QString report = folder.filePath("report.odt");
    const QString begun = folder.filePath("begun");
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(report), QUrl::fromLocalFile(picture())});
    const auto hasEnded = [&] {
        return QTest::qWaitFor([&] { return !window.findChild<QProgressDialog*>(); }, 20000);
    };
    TestFiles::write(report, "words");

    office.does("touch '" + begun.toUtf8() + "'; sleep 100");
    drop(files, 2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(begun); }, 20000));
    window.findChild<QProgressDialog*>()->findChild<QPushButton*>()->click();
    ASSERT_TRUE(hasEnded());
    EXPECT_EQ(model.rowCount(), 9) << "not even the picture that was dropped with it";
    office.makes(Program::sample("links.pdf"));
    drop(files, 2);
    ASSERT_TRUE(hasEnded());
    EXPECT_EQ(shown().substr(0, 14), "1 2 [b1] [b2] ");
    EXPECT_EQ(model.used().documents,
              QStringList({Program::sample("outline.pdf"), report, picture()}));
    EXPECT_TRUE(window.lblFailure->isHidden());
    QTRY_VERIFY_WITH_TIMEOUT(model.index(2).data(PagesModel::pictureRole).isValid(), 60000);
}

TEST_F(PagesSheet, NamesLibreOfficeWhereItIsMissing) {
    const OfficeStandIn office;
    const QString report = folder.filePath("report.pptx");
    TestFiles::write(report, "words");
    delegate.setFilesPanel([&](const QString&) { return QStringList{report, picture()}; });
    window.insertFiles->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.lblFailure->isVisible(); }, 20000));
    EXPECT_TRUE(window.lblFailure->text().contains("report.pptx: needs LibreOffice"));
    EXPECT_EQ(shown(), "1 2 3 4 5 6 7 8 9 [b1]") << "the picture can be had without it";
}

TEST_F(PagesSheet, TakesUpAnEarlierArrangementAndSaysWhatItIsMadeOf) {
    const QString outline = Program::sample("outline.pdf");
    QString failure;
    ASSERT_TRUE(delegate.beginSheet({outline, picture()},
                                    {{1}, {}, {0, 8, 90}, {0, 9}, {0, -1, 180}}, {}, &failure));
    EXPECT_EQ(shown(), "b1 - 9/90 1/180 2/180 3/180 4/180 5/180 6/180 7/180 8/180 9/180");
    choose({3, 4, 5, 6, 7, 8, 9, 10, 11});
    EXPECT_FALSE(window.makeFirst->isEnabled()) << "of one page only";
    window.removePages->trigger();
    EXPECT_EQ(shown(), "b1 - [9/90]");
    EXPECT_TRUE(window.lblCount->text().startsWith("3 page"));
    EXPECT_TRUE(window.lblCount->text().endsWith(", 1 selected"));
    auto& model = delegate.model();
    const char* spoken[] = {"Page 1: cover.png", "Page 2: Blank page",
                            "Page 3: outline.pdf, page 9"};
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(model.index(row).data(Qt::AccessibleTextRole).toString(), spoken[row]);
    EXPECT_EQ(model.index(0).data(PagesModel::pictureRole).toString(), picture());
    EXPECT_EQ(model.used().documents, QStringList({outline, picture()}));
    window.removePages->trigger();
    EXPECT_EQ(model.used().documents, QStringList{picture()});
    EXPECT_EQ(model.used().pages.at(0).source, 0) << "the only one that is left";
}

TEST_F(PagesSheet, PicturesOfItsPagesArriveAndTheAnswerIsTold) {
    auto& model = delegate.model();
    const auto picture = [&](int row) { return model.index(row).data(PagesModel::pictureRole); };
    QTRY_VERIFY_WITH_TIMEOUT(!picture(8).toString().isEmpty(), 60000);
    EXPECT_TRUE(QFileInfo::exists(picture(0).toString()));
    choose({0, 1, 2, 3, 4, 5, 6, 7, 8});
    window.removePages->trigger();
    EXPECT_FALSE(window.btnOK->isEnabled()) << "a book has pages";
    window.undo->trigger();
    EXPECT_EQ(model.used().pages.size(), 0U) << "all as they stand";
    window.btnOK->click();
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(window.isVisible());
}

} // namespace
