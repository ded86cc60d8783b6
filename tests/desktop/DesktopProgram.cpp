#include "desktop/DesktopProgram.h"

#include "app/AppSettings.h"
#include "builder/PDFBuilder.h"
#include "ui/FlashTemplateModel.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int longEnough = 30'000; // ms

} // namespace

DesktopProgram::DesktopProgram() {
    QSettings().clear();
    AppSettings::shareInstance().loadSettings();
    QDir(Folders::userApplicationSupport()).removeRecursively();
    program = newProgram();
}

std::unique_ptr<BrisleafAppDelegate> DesktopProgram::newProgram() {
    auto made = std::make_unique<BrisleafAppDelegate>();
    made->setQuestions({[this](const QString&, const QStringList&) { return fileToOpen; },
                        [this](const QString&, const QStringList&) {
                            return std::exchange(fileToSave, std::nullopt);
                        },
                        [this](const QString& message, const QString&) {
                            losses << message;
                            return replaces;
                        },
                        [this](const QColor& initial, const Panels::ColorMoved& moved) {
                            return usesColorPanel ? Panels::chooseColor(initial, moved)
                                                  : color.value_or(initial);
                        },
                        [this](const QString& path) { opened << path; }, [this] { ++abouts; },
                        [this](const QString& message, const QString&) {
                            unsavedAsked << message;
                            return unsaved;
                        },
                        [this](const QString& message, const QString&) {
                            recoveries << message;
                            return recovers;
                        }});
    return made;
}

DesktopProgram::~DesktopProgram() {
    program.reset();
}

void DesktopProgram::launch() {
    program->applicationDidFinishLaunching();
    ASSERT_TRUE(waitForPreview());
}

// A renderer that dies answers late or not at all.
QVariant DesktopProgram::evaluate(const QString& script) const {
    const auto result = std::make_shared<std::optional<QVariant>>();
    window().webView->page()->runJavaScript(script,
                                            [result](const QVariant& value) { *result = value; });
    const bool answered = QTest::qWaitFor([&] { return result->has_value(); });
    return answered ? result->value() : QVariant();
}

bool DesktopProgram::waitForPreview(const QString& condition) const {
    const QString script =
        u"document.querySelector('#folvero[data-state=\"ready\"]') !== null && (%1)"_s.arg(
            condition);
    return waitUntil([&] { return evaluate(script).toBool(); });
}

BookElement DesktopProgram::configuration() const {
    return BookReader::configuration(program->flashPreviewFolder());
}

QModelIndex DesktopProgram::valueOf(const QString& key) const {
    const QModelIndex index = program->outline().valueForKey(key);
    EXPECT_TRUE(index.isValid()) << "no property " << key.toStdString();
    window().outlineView->scrollTo(index);
    window().outlineView->setCurrentIndex(index);
    return index;
}

void DesktopProgram::edit(const QString& key, const QString& value) const {
    auto* view = window().outlineView;
    view->edit(valueOf(key));
    if (auto* list = view->findChild<QComboBox*>()) {
        list->setCurrentText(value);
        Q_EMIT list->activated(list->currentIndex());
    } else {
        auto* field = view->findChild<QLineEdit*>();
        ASSERT_TRUE(field) << "no editor for " << key.toStdString();
        field->selectAll();
        QTest::keyClicks(field, value);
        QTest::keyClick(field, Qt::Key_Return);
    }
    EXPECT_TRUE(waitUntil(
        [view] { return !view->findChild<QLineEdit*>() && !view->findChild<QComboBox*>(); }));
}

void DesktopProgram::press(const QString& key) const {
    valueOf(key);
    window().outlineView->setFocus();
    QTest::keyClick(window().outlineView, Qt::Key_Space);
}

QString DesktopProgram::value(const QString& key) const {
    return program->flashTmpl()->propertyValueFor(key, {});
}

QString DesktopProgram::pdf(int pages) const {
    const QString file = files.filePath(u"%1 pages.pdf"_s.arg(pages));
    TestFiles::write(file, PDFBuilder::blank(pages, {300, 400}));
    return file;
}

bool DesktopProgram::waitForImport() const {
    return waitUntil([this] { return !program->importWindow().isImporting(); });
}

// QTest::qWaitFor would look again only when no event is left, which a moving page may put off.
bool DesktopProgram::waitUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer end(longEnough);
    while (!condition()) {
        if (end.hasExpired())
            return false;
        QTest::qWait(20);
    }
    return true;
}
