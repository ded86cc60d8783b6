#include "app/desktop/Appearance.h"
#include "app/desktop/WindowFitter.h"
#include "desktop/DesktopProgram.h"
#include "system/Bundle.h"

#include <QWebEnginePage>
#include <QWebEngineSettings>
#include <csignal>

namespace {

class Launch : public DesktopProgram {};

} // namespace

TEST_F(Launch, ShowsTheDemoBookOnTheWholeScreen) {
    launch();
    EXPECT_EQ(window().frameGeometry(), QRect({0, 0}, QGuiApplication::primaryScreen()->size()));
    EXPECT_EQ(window().btnFloat->text(), "Float");
    EXPECT_TRUE(window().windowTitle().contains("Demo book"));
    EXPECT_EQ(evaluate("document.title").toString(), "Preview");
    EXPECT_EQ(configuration().at("Ppts").children.size(), 12u);
    for (QAction* choice : window().menu->appearance->actions()) {
        choice->trigger();
        const bool isDark = window().palette().color(QPalette::Window).lightness() < 128;
        EXPECT_EQ(isDark, choice->data().toInt() == Appearance::dark);
    }
    const QString support = Folders::userApplicationSupport();
    EXPECT_EQ(program->flashPreviewFolder(), support + "/Folvero/preview");
    const QByteArray log = TestFiles::read(support + "/Tessamar/Folvero/Folvero.log");
    EXPECT_TRUE(log.contains("version is:" + Bundle::version().toLatin1())) << log.toStdString();
    program.reset();
    EXPECT_FALSE(QFileInfo::exists(support + "/Folvero/preview"));
}

TEST(WindowFitter, FrameThatComesLateLiesOnTheScreenToo) {
    QWidget window;
    window.show();
    QMargins margins;
    new WindowFitter(window, [&margins] { return margins; });
    const QRect screen({0, 0}, QGuiApplication::primaryScreen()->size());
    EXPECT_EQ(window.geometry(), screen);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    margins = {4, 20, 4, 4};
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.geometry() == screen - margins; }));
    window.resize(300, 200);
    window.repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), QSize(300, 200)) << "the user's own size stays";
}

TEST_F(Launch, PreviewKeepsToTheFilesOfTheBook) {
    launch();
    TestFiles::write(path("secret.js"), "window.stolen = 'yes'");
    evaluate(QString("const script = document.createElement('script'); script.src = '%1';"
                     "script.onerror = () => { window.refused = true };"
                     "document.head.append(script)")
                 .arg(QUrl::fromLocalFile(path("secret.js")).toString()));
    EXPECT_TRUE(waitForPreview("window.refused === true && !window.stolen"));
    QList<QUrl> addresses;
    window().webView->setOpener([&addresses](const QUrl& url) { addresses << url; });
    evaluate("location.href = 'https://folvero.example/more'");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !addresses.isEmpty(); }));
    // Stands in for the program that the user's system has for a scheme.
    QTextBrowser other;
    QDesktopServices::setUrlHandler("program", &other, "setSource");
    QDesktopServices::openUrl(QUrl("program://check"));
    ASSERT_EQ(other.source(), QUrl("program://check"));
    // Without a click Chromium would not ask at all. With one it would start the program itself.
    window().webView->page()->settings()->setUnknownUrlSchemePolicy(
        QWebEngineSettings::AllowAllUnknownUrlSchemes);
    evaluate("location.href = 'program://run'");
    evaluate("location.href = 'tel:+49301234'");
    EXPECT_TRUE(QTest::qWaitFor([&] { return addresses.size() == 2; }));
    EXPECT_EQ(addresses.last(), QUrl("tel:+49301234"));
    EXPECT_TRUE(waitForPreview());
    EXPECT_EQ(other.source(), QUrl("program://check")) << "Chromium has started the program";
    QDesktopServices::unsetUrlHandler("program");
}

TEST_F(Launch, PreviewFolderIsOfThisProgramAloneAndMadeAgainOnceRemoved) {
    launch();
    const QString own = program->flashPreviewFolder();
    auto second = std::make_unique<BrisleafAppDelegate>();
    second->applicationDidFinishLaunching();
    EXPECT_EQ(second->flashPreviewFolder(), own + "-2");
    EXPECT_TRUE(QFileInfo::exists(own + "-2/index.html"));
    second.reset();
    EXPECT_FALSE(QFileInfo::exists(own + "-2"));
    ASSERT_TRUE(QDir(own).removeRecursively());
    program->OnApplyChange();
    EXPECT_TRUE(QFileInfo::exists(own + "/files/UserConfig.bin"));
    EXPECT_FALSE(window().messages->isVisible());
}

TEST_F(Launch, CommandsOfTheMenuReachTheWindowWhichKeepsItsSizes) {
    launch();
    evaluate("window.isOld = true");
    window().menu->reloadPreview->trigger();
    EXPECT_TRUE(waitForPreview("!window.isOld"));
    window().menu->about->trigger();
    EXPECT_EQ(abouts, 1);
    window().outlineView->header()->resizeSection(0, 222);
    const auto splitters = [this] { return window().findChildren<QSplitter*>(); };
    QList<QList<int>> sizes;
    for (QSplitter* splitter : splitters()) {
        splitter->setSizes({300, 250});
        sizes << splitter->sizes();
    }
    window().menu->quit->trigger();
    EXPECT_FALSE(window().isVisible());
    program = std::make_unique<BrisleafAppDelegate>();
    launch();
    EXPECT_EQ(window().outlineView->header()->sectionSize(0), 222);
    for (QSplitter* splitter : splitters())
        EXPECT_EQ(splitter->sizes(), sizes.takeFirst());
}

TEST_F(Launch, PreviewComesBackAfterItsEngineDiedUnlessItDoesSoAllTheTime) {
    launch();
    evaluate("window.isOld = true");
    const auto engine = pid_t(window().webView->page()->renderProcessPid());
    ASSERT_GT(engine, 0);
    ASSERT_EQ(::kill(engine, SIGKILL), 0);
    EXPECT_TRUE(waitForPreview("!window.isOld"));
    for (int crash = 2; crash <= 4; ++crash) {
        EXPECT_FALSE(window().messages->isVisible());
        Q_EMIT window().webView->page()->renderProcessTerminated(
            QWebEnginePage::CrashedTerminationStatus, SIGKILL);
    }
    EXPECT_TRUE(window().messages->message().contains("Press F5"));
}

TEST_F(Launch, PreviewFolderThatCannotBeMadeIsReported) {
    TestFiles::write(Folders::userApplicationSupport() + "/Folvero/preview", "in the way");
    program->applicationDidFinishLaunching();
    EXPECT_TRUE(window().messages->isVisible());
    EXPECT_TRUE(window().messages->message().contains("preview"));
    ASSERT_TRUE(QFile::remove(Folders::userApplicationSupport() + "/Folvero/preview"));
    program->OnApplyChange();
    EXPECT_FALSE(window().messages->isVisible()) << "it no longer holds";
    EXPECT_TRUE(waitForPreview());
}

TEST(MessageBar, ShowsTextsAsTheyStand) {
    MessageBar bar(nullptr);
    bar.showError("<b>What?</b>", "first & last\nsecond");
    EXPECT_EQ(bar.message(), "<b>What?</b>\nfirst & last\nsecond");
}

TEST_F(Launch, NamesTheDamagedTemplateAndTheMissingHelp) {
    TemplateLibrary library;
    library.addTemplateFile("float", "<flashTemplate><property type='pt_text'>");
    program->applicationDidFinishLaunching();
    EXPECT_TRUE(window().messages->message().contains("float"));
    window().menu->openHelp->trigger();
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_TRUE(window().messages->message().contains("PDF to Folvero for Mac.pdf"));
    const QString file = "PDF to Folvero for mac Help/PDF to Folvero for Mac.pdf";
    library.addFile(file, "%PDF-1.7");
    window().menu->openHelp->trigger();
    EXPECT_EQ(opened, QStringList{library.path() + '/' + file});
}
