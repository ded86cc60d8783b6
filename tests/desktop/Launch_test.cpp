#include "app/desktop/Appearance.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/MessageBar.h"
#include "app/desktop/PreviewView.h"
#include "app/desktop/WindowFitter.h"
#include "desktop/DesktopProgram.h"
#include "platform/Bundle.h"
#include "platform/Folders.h"
#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"

#include <QActionGroup>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineSettings>
#include <csignal>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

class Launch : public DesktopProgram {};

// Stands in for the program that the user's system has for a scheme.
class SchemeProgram : public QObject {
    Q_OBJECT

public:
    explicit SchemeProgram(const QString& scheme) : iScheme(scheme) {
        QDesktopServices::setUrlHandler(scheme, this, "start");
    }
    ~SchemeProgram() override { QDesktopServices::unsetUrlHandler(iScheme); }

    QList<QUrl> started;

public Q_SLOTS:
    void start(const QUrl& url) { started << url; }

private:
    QString iScheme;
};

} // namespace

TEST_F(Launch, ShowsTheDemoBookOnTheWholeScreen) {
    launch();
    EXPECT_EQ(window().frameGeometry(), QRect({0, 0}, QGuiApplication::primaryScreen()->size()));
    EXPECT_EQ(window().btnFloat->text(), text("Float"));
    EXPECT_TRUE(window().windowTitle().contains(text("Demo book")));
    const QString fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    EXPECT_EQ(window().toolTip->font().family(), fixed);
    EXPECT_EQ(evaluate(text("document.title")).toString(), text("Preview"));
    EXPECT_EQ(configuration().at(text("Ppts")).children.size(), 12u);
    const QString support = Folders::userApplicationSupport();
    EXPECT_EQ(program->flashPreviewFolder(), support + text("/Folvero/preview"));
    const QByteArray log = TestFiles::read(support + text("/Tessamar/Folvero/Folvero.log"));
    EXPECT_TRUE(log.contains("version is:" + Bundle::version().toLatin1())) << log.toStdString();
    program.reset();
    EXPECT_FALSE(QFileInfo::exists(support + text("/Folvero/preview")));
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
    window.repaint();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.geometry() == screen - margins; }));
    window.resize(300, 200);
    window.repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), QSize(300, 200)) << "the user's own size stays";
}

TEST_F(Launch, AppearanceIsChosenAndKeepsTheFontOfExplanations) {
    launch();
    const QString fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    for (QAction* choice : window().menu->appearance->actions()) {
        choice->trigger();
        const bool isDark = window().palette().color(QPalette::Window).lightness() < 128;
        EXPECT_EQ(isDark, choice->data().toInt() == Appearance::dark);
        EXPECT_EQ(window().toolTip->viewport()->font().family(), fixed);
        EXPECT_EQ(window().toolTip->viewport()->font().weight(), QFont::Normal);
    }
}

// The preview's engine is older than most browsers are.
TEST_F(Launch, CoverCastsNoShadowOfAPageThatIsNotThere) {
    launch();
    const QString opacity = text("getComputedStyle(document.querySelector('.shadow.%1')).opacity");
    EXPECT_TRUE(waitForPreview(opacity.arg(text("left")) + text(" === '0'")));
    EXPECT_EQ(evaluate(opacity.arg(text("right"))).toString(), text("1"));
}

TEST_F(Launch, PreviewKeepsToTheFilesOfTheBook) {
    launch();
    TestFiles::write(path(text("secret.js")), "window.stolen = 'yes'");
    const QString load = text("new Promise(() => 0); (() => { const s = "
                              "document.createElement('script'); s.onerror = () => { "
                              "window.refused = true }; s.src = '%1'; "
                              "document.head.append(s) })()");
    evaluate(load.arg(QUrl::fromLocalFile(path(text("secret.js"))).toString()));
    EXPECT_TRUE(waitForPreview(text("window.refused === true && !window.stolen")));
    QList<QUrl> addresses;
    window().webView->setOpener([&addresses](const QUrl& url) { addresses << url; });
    evaluate(text("location.href = 'https://folvero.example/more'"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !addresses.isEmpty(); }));
    SchemeProgram other(text("program"));
    QDesktopServices::openUrl(QUrl(text("program://check")));
    ASSERT_EQ(other.started.size(), 1);
    // Without a click the engine would not ask at all. With one it would start the program itself.
    window().webView->page()->settings()->setUnknownUrlSchemePolicy(
        QWebEngineSettings::AllowAllUnknownUrlSchemes);
    evaluate(text("location.href = 'program://run'"));
    evaluate(text("location.href = 'tel:+49301234'"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return addresses.size() == 2; }));
    EXPECT_EQ(addresses.last(), QUrl(text("tel:+49301234")));
    EXPECT_TRUE(waitForPreview());
    EXPECT_EQ(other.started.size(), 1) << "the engine has started the program by itself";
}

TEST_F(Launch, SecondProgramHasAPreviewOfItsOwn) {
    launch();
    auto second = std::make_unique<BrisleafAppDelegate>();
    second->applicationDidFinishLaunching();
    EXPECT_EQ(second->flashPreviewFolder(), program->flashPreviewFolder() + text("-2"));
    const QString folder = second->flashPreviewFolder();
    EXPECT_TRUE(QFileInfo::exists(folder + text("/index.html")));
    second.reset();
    EXPECT_FALSE(QFileInfo::exists(folder));
    EXPECT_TRUE(QFileInfo::exists(program->flashPreviewFolder() + text("/index.html")));
}

TEST_F(Launch, PreviewComesBackAfterItsEngineDied) {
    launch();
    const QSignalSpy deaths(window().webView, &PreviewView::rendererCrashed);
    evaluate(text("window.isOld = true"));
    const auto engine = pid_t(window().webView->page()->renderProcessPid());
    ASSERT_GT(engine, 0);
    ASSERT_EQ(::kill(engine, SIGKILL), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return deaths.count() == 1; }, 20000));
    EXPECT_TRUE(waitForPreview(text("!window.isOld")));
    EXPECT_FALSE(window().messages->isVisible());
}

TEST_F(Launch, PreviewFolderThatWasRemovedIsMadeAgain) {
    launch();
    ASSERT_TRUE(QDir(program->flashPreviewFolder()).removeRecursively());
    program->OnApplyChange();
    EXPECT_TRUE(QFileInfo::exists(program->flashPreviewFolder() + text("/files/UserConfig.bin")));
    EXPECT_FALSE(window().messages->isVisible());
}

TEST_F(Launch, PreviewFolderThatCannotBeMadeIsTold) {
    TestFiles::write(Folders::userApplicationSupport() + text("/Folvero/preview"), "in the way");
    const RecordedLog log(Log::Level::warn);
    program->applicationDidFinishLaunching();
    EXPECT_TRUE(window().messages->isVisible());
    EXPECT_TRUE(window().messages->message().contains(text("preview")));
    ASSERT_FALSE(log.texts().isEmpty());
    EXPECT_TRUE(log.texts().first().startsWith(text("flash preview folder cannot be crearted[")));
    EXPECT_TRUE(log.texts().last().startsWith(text("apply change :")));
    ASSERT_TRUE(QFile::remove(Folders::userApplicationSupport() + text("/Folvero/preview")));
    program->OnApplyChange();
    EXPECT_FALSE(window().messages->isVisible()) << "it no longer holds";
    EXPECT_TRUE(waitForPreview());
}

TEST_F(Launch, DamagedTemplateIsTold) {
    TemplateLibrary library;
    library.addTemplateFile(text("float"), "<flashTemplate><property type='pt_text'>");
    program->applicationDidFinishLaunching();
    EXPECT_TRUE(window().messages->message().contains(text("float")))
        << window().messages->message().toStdString();
}

TEST_F(Launch, HelpThatIsMissingIsTold) {
    TemplateLibrary library;
    library.addTemplate(text("float"));
    program->applicationDidFinishLaunching();
    window().menu->openHelp->trigger();
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_TRUE(window().messages->message().contains(text("PDF to Folvero for Mac.pdf")));
    const QString file = text("PDF to Folvero for mac Help/PDF to Folvero for Mac.pdf");
    library.addFile(file, "%PDF-1.7");
    window().menu->openHelp->trigger();
    EXPECT_EQ(opened, QStringList{library.path() + u'/' + file});
}

#include "Launch_test.moc"
