#include "window-shots/ShotsProgram.h"

#include "app/desktop/Appearance.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/PreviewView.h"
#include "ui/FlashTemplateModel.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/ImportWindowDelegate.h"
#include "window-shots/WindowFrame.h"

#include <QActionGroup>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPainter>
#include <QTest>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

constexpr int longEnough = 30'000; // ms
constexpr int turnTime = 1'800;    // ms

QWidget* openSheet() {
    return qobject_cast<QDialog*>(QApplication::activeModalWidget());
}

bool isDark(const QWidget& widget) {
    return widget.palette().color(QPalette::Window).lightness() < 128;
}

QImage framed(QWidget& widget) {
    return WindowFrame::framed(widget.grab().toImage(), widget.windowTitle(), isDark(widget));
}

} // namespace

void waitUntil(const std::function<bool()>& condition, const char* what) {
    QElapsedTimer waited;
    waited.start();
    while (!condition()) {
        if (waited.hasExpired(longEnough)) {
            std::fprintf(stderr, "window-shots: waited in vain for %s\n", what);
            std::exit(1);
        }
        QTest::qWait(50);
    }
}

void rest(int milliseconds) {
    QTest::qWait(milliseconds);
}

ShotsProgram::ShotsProgram(const QSize& windowSize) {
    iProgram.applicationDidFinishLaunching();
    window().resize(windowSize);
    waitForBook();
}

void ShotsProgram::setDark(bool isDark) {
    for (QAction* action : window().menu->appearance->actions()) {
        if (action->data().toInt() == (isDark ? Appearance::dark : Appearance::light))
            action->trigger();
    }
    rest(100);
}

void ShotsProgram::importBook(const QString& pdf) {
    window().webView->page()->runJavaScript(QStringLiteral("window.isOld = true"));
    iProgram.importFile(pdf);
    waitUntil([this] { return !iProgram.importWindow().isImporting(); }, "the import");
    waitForBook();
}

void ShotsProgram::waitFor(const QString& script, const char* what) {
    bool isTrue = false;
    waitUntil(
        [&] {
            window().webView->page()->runJavaScript(
                script, [&isTrue](const QVariant& value) { isTrue = value.toBool(); });
            rest(100);
            return isTrue;
        },
        what);
    rest(turnTime);
}

void ShotsProgram::waitForBook() {
    waitFor(QStringLiteral("!window.isOld && "
                           "document.querySelector('#folvero[data-state=\"ready\"]') !== null"),
            "the preview");
    // A busy machine shows the opening of the book late.
    QImage before;
    waitUntil(
        [&] {
            rest(turnTime);
            const QImage now = window().grab().toImage();
            return std::exchange(before, now) == now;
        },
        "the preview to stand still");
}

void ShotsProgram::showPage(int page) {
    const QString hash = QStringLiteral("#page=%1").arg(page);
    window().webView->page()->runJavaScript(QStringLiteral("location.hash = '%1'").arg(hash));
    waitFor(QStringLiteral("location.hash === '%1' && "
                           "document.querySelector('input').value.startsWith('%2')")
                .arg(hash)
                .arg(page),
            "the page");
}

void ShotsProgram::select(const QString& key) {
    const QModelIndex index = iProgram.outline().valueForKey(key);
    window().outlineView->scrollTo(index, QAbstractItemView::PositionAtCenter);
    window().outlineView->setCurrentIndex(index);
    rest(100);
}

QImage ShotsProgram::picture() {
    QImage content = window().grab().toImage();
    if (QWidget* sheet = openSheet())
        content = WindowFrame::withSheet(content, framed(*sheet));
    if (const QWidget* menu = QApplication::activePopupWidget()) {
        QPainter painter(&content);
        painter.drawPixmap(window().mapFromGlobal(menu->pos()), const_cast<QWidget*>(menu)->grab());
    }
    const QString title = window().windowTitle().remove(QStringLiteral("[*]"));
    return WindowFrame::framed(content, title, isDark(window()));
}

QImage ShotsProgram::pictureOfSheet() {
    QWidget* sheet = openSheet();
    return sheet ? framed(*sheet) : QImage();
}

QImage ShotsProgram::pictureOf(QWidget& part) {
    return part.grab().toImage();
}
