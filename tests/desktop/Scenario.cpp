#include "desktop/Scenario.h"

#include "app/desktop/ApplicationSetup.h"
#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "support/BookReader.h"
#include "ui/FlashTemplateModel.h"
#include "ui/ImportWindowDelegate.h"
#include "ui/OutputWindow.h"
#include "ui/OutputWindowDelegate.h"

#include <QTest>
#include <QtWidgets>

namespace {

constexpr int longEnough = 60'000; // ms

class Work {
public:
    Work(QString folder, QString text) : iFolder(std::move(folder)), iText(std::move(text)) {
        const QString file = path(Scenario::project);
        iProgram.setQuestions({[](const QString&, const QStringList&) { return std::nullopt; },
                               [file](const QString&, const QStringList&) { return file; },
                               [](const QString&, const QString&) { return true; },
                               [](const QColor& initial, const auto&) { return initial; },
                               [](const QString&) {}, [] {},
                               [this](const QString&, const QString&) {
                                   note("asked to save");
                                   return Panels::Unsaved::discard;
                               },
                               [this](const QString&, const QString&) {
                                   note("recovering");
                                   return true;
                               }});
    }

    bool run() {
        iProgram.applicationDidFinishLaunching();
        const QString file = path(Scenario::project);
        iProgram.begin(QFileInfo::exists(file) ? file : QString());
        if (!hasImported())
            return false;
        note("back " + shown());
        for (const char* document : {"2.pdf", "3.pdf"}) {
            iProgram.importFile(path(document));
            if (!hasImported())
                return false;
            edit();
            keep();
            edit();
            keep();
            save();
            if (!publish())
                return false;
            edit();
            save();
        }
        iProgram.window()->close();
        note("end");
        return true;
    }

private:
    QString path(const QString& name) const { return QDir(iFolder).filePath(name); }

    void note(const QString& step) const {
        QFile file(path(Scenario::journal));
        if (file.open(QIODevice::Append))
            file.write(step.toUtf8() + '\n');
    }

    // A value, and the number of pages.
    QString shown() const {
        const auto pages = BookReader::configuration(iProgram.flashPreviewFolder()).at("Ppts");
        return QStringLiteral("%1 / %2").arg(
            iProgram.flashTmpl()->propertyValueFor(QStringLiteral("TutorialTitle"), {}),
            QString::number(pages.children.size()));
    }

    bool hasImported() const {
        return QTest::qWaitFor([this] { return !iProgram.importWindow().isImporting(); },
                               longEnough);
    }

    void edit() {
        FlashTemplateModel& settings = iProgram.outline();
        settings.setData(settings.valueForKey(QStringLiteral("TutorialTitle")),
                         QStringLiteral("%1.%2").arg(iText).arg(++iEdits), Qt::EditRole);
    }

    // As once a minute.
    void keep() {
        note("keeping " + shown());
        iProgram.keepForRecovery();
        note("kept " + shown());
    }

    void save() const {
        note("saving " + shown());
        iProgram.window()->menu->saveProject->trigger();
        note("saved " + shown());
    }

    bool publish() {
        OutputWindowDelegate& sheet = iProgram.ouputWindow();
        sheet.setQuestions({[](const QString&) { return std::nullopt; },
                            [](const QString&, const QString&) { return true; },
                            [](const QString&, const QString&) { return false; },
                            [](const QString&) {},
                            [this](const QString&, const QString& cause) { note(cause); }});
        note("publishing " + shown());
        iProgram.OnExportFlipBook();
        sheet.window().txtOutputFolder->setText(path(Scenario::published));
        sheet.window().mOutputType->button(OutputWindow::webBook)->click();
        sheet.onPublish();
        if (!QTest::qWaitFor([&] { return !sheet.window().isVisible(); }, longEnough))
            return false;
        note("published " + shown());
        return true;
    }

    QString iFolder;
    QString iText;
    int iEdits = 0;
    BrisleafAppDelegate iProgram;
};

} // namespace

int Scenario::run(const QString& folder, const QString& text) {
    setUpApplication({QStringLiteral("en")});
    return Work(folder, text).run() ? EXIT_SUCCESS : EXIT_FAILURE;
}
