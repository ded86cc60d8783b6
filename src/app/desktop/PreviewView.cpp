#include "app/desktop/PreviewView.h"

#include "base/Log.h"
#include "system/Bundle.h"
#include "system/Files.h"
#include "util/LinkScheme.h"

#include <QContextMenuEvent>
#include <QDateTime>
#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMenu>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>

namespace {

constexpr Log viewLog("PreviewView");

// A page that crashes the renderer on each load must not be reloaded for ever.
constexpr int maxCrashes = 3;
constexpr qint64 crashWindow = 60'000; // ms

bool isInMemory(const QUrl& url) {
    return url.scheme() == QStringLiteral("data") || url.scheme() == QStringLiteral("blob") ||
           url.scheme() == QStringLiteral("about");
}

bool staysInPreview(const QUrl& url) {
    return url.isLocalFile() || isInMemory(url);
}

// Blocks requests for anything but the book's own files.
class OwnFilesOnly : public QWebEngineUrlRequestInterceptor {
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void setFolder(const QString& folder) { iFolder = folder + u'/'; }

    void interceptRequest(QWebEngineUrlRequestInfo& info) override {
        const QUrl url = info.requestUrl();
        const bool isOwn = url.isLocalFile() && !iFolder.isEmpty() &&
                           QFileInfo(url.toLocalFile()).canonicalFilePath().startsWith(iFolder);
        if (!isInMemory(url) && !isOwn)
            info.block(true);
    }

private:
    QString iFolder;
};

// Opens links that lead out of the book in the user's browser.
class BookPage : public QWebEnginePage {
public:
    using QWebEnginePage::QWebEnginePage;

    std::function<void(const QUrl&)> opener = [](const QUrl& url) {
        QDesktopServices::openUrl(url);
    };

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override {
        if (LinkScheme::isFollowed(url) && isMainFrame)
            opener(url);
        return staysInPreview(url) &&
               QWebEnginePage::acceptNavigationRequest(url, type, isMainFrame);
    }

    // A link to a new window becomes a navigation of this page, which is handled above.
    QWebEnginePage* createWindow(WebWindowType /*type*/) override { return this; }

    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel /*level*/, const QString& message,
                                  int line, const QString& source) override {
        viewLog.debug(QStringLiteral("%1:%2: %3").arg(source).arg(line).arg(message));
    }
};

// Adds the entry through which changed settings come into the player. Frames in the page do not get
// it, nor does any published book.
QWebEngineScript settingsScript() {
    const QString file = Bundle::pathForResource(QStringLiteral("preview"), QStringLiteral("js"),
                                                 QStringLiteral("Preview"));
    QWebEngineScript script;
    script.setName(QStringLiteral("settings"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(false);
    script.setSourceCode(QString::fromUtf8(Files::contents(file)));
    return script;
}

OwnFilesOnly& gateOf(QWebEngineProfile& profile) {
    return *profile.findChild<OwnFilesOnly*>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

// A profile without a name stores nothing on disk.
PreviewView::PreviewView(QWidget* parent)
    : QWebEngineView(parent), iProfile(new QWebEngineProfile(this)) {
    setObjectName(QStringLiteral("preview"));
    setAccessibleName(tr("Preview of the book"));
    auto* gate = new OwnFilesOnly(iProfile);
    iProfile->setUrlRequestInterceptor(gate);
    setPage(new BookPage(iProfile, this));
    auto* settings = page()->settings();
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings->setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, false);
    settings->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    page()->scripts().insert(settingsScript());
    connect(page(), &QWebEnginePage::loadFinished, this, &PreviewView::sendSettings);
    connect(page(), &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus status) {
                if (status != QWebEnginePage::NormalTerminationStatus)
                    recover();
            });
}

// The page must be deleted before its profile.
PreviewView::~PreviewView() {
    delete page();
}

void PreviewView::showFile(const QString& path, bool isOtherBook) {
    iChangedSettings.clear();
    gateOf(*iProfile).setFolder(QFileInfo(path).canonicalPath());
    const QUrl address = QUrl::fromLocalFile(path);
    if (url().adjusted(QUrl::RemoveFragment) != address) {
        load(address);
    } else if (isOtherBook) {
        // Reloading without the page number would use cached pictures. The callback may run while
        // this object is being destroyed: it must not load anything then.
        page()->runJavaScript(
            QStringLiteral("history.replaceState(null, '', '#page=1')"), [this](const QVariant&) {
                QMetaObject::invokeMethod(this, &PreviewView::reloadBook, Qt::QueuedConnection);
            });
    } else {
        reloadBook();
    }
}

void PreviewView::reloadBook() {
    triggerPageAction(QWebEnginePage::ReloadAndBypassCache);
}

void PreviewView::applySettings(const QByteArray& configuration) {
    // Once for all changes of one command.
    if (std::exchange(iChangedSettings, configuration) != configuration)
        QMetaObject::invokeMethod(this, &PreviewView::sendSettings, Qt::QueuedConnection);
}

// Also after each load: the page begins with what was published.
void PreviewView::sendSettings() {
    if (iChangedSettings.isEmpty())
        return;
    const QJsonArray arguments{QString::fromUtf8(iChangedSettings)};
    const QByteArray literal = QJsonDocument(arguments).toJson(QJsonDocument::Compact);
    page()->runJavaScript(QStringLiteral("window.folveroPreview?.applySettings(...%1)")
                              .arg(QString::fromUtf8(literal)));
}

void PreviewView::setOpener(std::function<void(const QUrl&)> opener) {
    static_cast<BookPage*>(page())->opener = std::move(opener);
}

void PreviewView::recover() {
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    iCrashes = now - iLastCrash < crashWindow ? iCrashes + 1 : 1;
    iLastCrash = now;
    const bool reloads = iCrashes <= maxCrashes;
    viewLog.warn(QStringLiteral("the preview's renderer has crashed (%1)").arg(iCrashes));
    // The renderer restarts only after the signal has been handled.
    if (reloads)
        QMetaObject::invokeMethod(this, &PreviewView::reloadBook, Qt::QueuedConnection);
    Q_EMIT rendererCrashed(reloads);
}

void PreviewView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.addAction(tr("Reload the preview"), this, &PreviewView::reloadBook);
    menu.exec(event->globalPos());
}

void PreviewView::dragEnterEvent(QDragEnterEvent* event) {
    event->ignore();
}
