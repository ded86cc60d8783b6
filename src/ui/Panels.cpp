#include "ui/Panels.h"

#include "pdf/OfficeDocument.h"
#include "pdf/PictureFile.h"
#include "project/ProjectFile.h"
#include "ui/FilePreview.h"
#include "ui/PlainText.h"
#include "ui/wxCPWCDelegate.h"

#include <QApplication>
#include <QColorDialog>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace {

const QString pictureType = QStringLiteral("jpg");

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Panels)
};

// The window over which something is asked. While the user works with another program, it is the
// one that cannot be used before the answer, and not none: the question would stand alone.
QWidget* front() {
    QWidget* active = QApplication::activeWindow();
    return active ? active : QApplication::activeModalWidget();
}

// A file panel's title and the name of its files, by their first extension.
struct KindOfFile {
    QString type;
    QString title;
    QString titleToSave;
    QString files;
};

KindOfFile kindOf(const QStringList& types) {
    const KindOfFile kinds[] = {
        {QStringLiteral("pdf"), Texts::tr("Choose a PDF document"), {}, Texts::tr("PDF documents")},
        {QStringLiteral("txt"), Texts::tr("Load settings"), Texts::tr("Save settings"),
         Texts::tr("Settings")},
        {pictureType, Texts::tr("Choose a picture"), {}, Texts::tr("Pictures")},
        {QStringLiteral("mp3"), Texts::tr("Choose a sound"), {}, Texts::tr("Sounds")},
        {ProjectFile::extension, Texts::tr("Open a project"), Texts::tr("Save the project"),
         Texts::tr("Projects")},
    };
    for (const KindOfFile& kind : kinds) {
        if (types.contains(kind.type))
            return kind;
    }
    return {{}, Texts::tr("Choose a file"), Texts::tr("Save a file"), Texts::tr("Files")};
}

// The patterns in capitals are for file systems and panels that tell them apart; they are not
// shown.
QString nameFilter(const QStringList& types, const QString& files) {
    QStringList shown;
    QStringList all;
    for (const QString& type : types) {
        const QString pattern = QStringLiteral("*.") + type.trimmed();
        if (pattern.size() > 2)
            shown << pattern;
    }
    for (const QString& pattern : shown)
        all << pattern << pattern.toUpper();
    return shown.isEmpty()
               ? QString()
               : QStringLiteral("%1 (%2) (%3)").arg(files, shown.join(u' '), all.join(u' '));
}

// What can be imported beside a PDF, as choices that follow it.
QStringList otherDocuments(const QStringList& types) {
    if (types != QStringList(QStringLiteral("pdf")))
        return {};
    //: Documents that LibreOffice can turn into PDFs: texts, presentations, sheets.
    return {nameFilter(OfficeDocument::types(), Texts::tr("Documents for LibreOffice")),
            nameFilter(PictureFile::types(), Texts::tr("Pictures"))};
}

std::optional<QString> run(QFileDialog& panel, const QString& proposed, const QStringList& types) {
    const QFileInfo before(proposed);
    if (!proposed.isEmpty() && before.absoluteDir().exists())
        panel.setDirectory(before.absoluteDir());
    if (!proposed.isEmpty())
        panel.selectFile(before.fileName());
    panel.setOption(QFileDialog::HideNameFilterDetails);
    if (const QString filter = nameFilter(types, kindOf(types).files); !filter.isEmpty())
        panel.setNameFilters(QStringList(filter) + otherDocuments(types));
    std::optional<FilePreview> preview;
    if (types.contains(pictureType))
        preview.emplace(panel);
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty())
        return std::nullopt;
    return panel.selectedFiles().first();
}

// Shows both texts literally.
void run(QMessageBox& alert, const QString& information) {
    alert.setInformativeText(information);
    PlainText::show(alert);
    // A style sheet's least width replaces that of the text: the box would cut long ones off.
    for (QAbstractButton* button : alert.buttons()) {
        button->ensurePolished();
        button->setMinimumWidth(button->sizeHint().width());
    }
    alert.exec();
}

// Whether the user presses the button of that text.
bool confirmLoss(const QString& verb, const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Warning, QApplication::applicationDisplayName(), message,
                      QMessageBox::NoButton, front());
    const QAbstractButton* confirm = alert.addButton(verb, QMessageBox::AcceptRole);
    alert.setDefaultButton(alert.addButton(Texts::tr("Cancel"), QMessageBox::RejectRole));
    run(alert, information);
    return alert.clickedButton() == confirm;
}

} // namespace

std::optional<QString> Panels::chooseFile(const QString& proposed, const QStringList& types) {
    QFileDialog panel(front(), kindOf(types).title);
    panel.setFileMode(QFileDialog::ExistingFile);
    return run(panel, proposed, types);
}

std::optional<QString> Panels::chooseFileToSave(const QString& proposed, const QStringList& types) {
    QFileDialog panel(front(), kindOf(types).titleToSave);
    panel.setAcceptMode(QFileDialog::AcceptSave);
    return run(panel, proposed, types);
}

QColor Panels::chooseColor(const QColor& initial, const ColorMoved& moved) {
    QColorDialog panel(initial, front());
    panel.setWindowTitle(Texts::tr("Choose a colour"));
    if (moved)
        QObject::connect(&panel, &QColorDialog::currentColorChanged, &panel, moved);
    wxCPWCDelegate delegate;
    QEventLoop session;
    QObject::connect(&panel, &QDialog::finished, &session, [&] {
        delegate.windowShouldClose();
        session.quit();
    });
    panel.setModal(true);
    panel.show();
    // Ends without the panel where the program is asked to.
    session.exec();
    return panel.result() == QDialog::Accepted ? panel.selectedColor() : initial;
}

std::optional<QString> Panels::chooseFolder(const QString& prompt) {
    QFileDialog panel(front(), Texts::tr("Choose a folder"));
    panel.setFileMode(QFileDialog::Directory);
    panel.setOption(QFileDialog::ShowDirsOnly);
    panel.setLabelText(QFileDialog::Accept, prompt);
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty())
        return std::nullopt;
    return panel.selectedFiles().first();
}

bool Panels::askToOpen(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Information, QApplication::applicationDisplayName(), message,
                      QMessageBox::NoButton, front());
    const QAbstractButton* openIt = alert.addButton(Texts::tr("Open it"), QMessageBox::AcceptRole);
    alert.addButton(Texts::tr("No"), QMessageBox::RejectRole);
    run(alert, information);
    return alert.clickedButton() == openIt;
}

bool Panels::askToReplace(const QString& message, const QString& information) {
    return confirmLoss(Texts::tr("Replace"), message, information);
}

bool Panels::askToDelete(const QString& message, const QString& information) {
    return confirmLoss(Texts::tr("Delete"), message, information);
}

Panels::Unsaved Panels::askToSave(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Warning, QApplication::applicationDisplayName(), message,
                      QMessageBox::NoButton, front());
    QPushButton* save =
        alert.addButton(QCoreApplication::translate("Panels", "Save"), QMessageBox::AcceptRole);
    const QAbstractButton* discard = alert.addButton(
        QCoreApplication::translate("Panels", "Don't save"), QMessageBox::DestructiveRole);
    alert.addButton(QCoreApplication::translate("Panels", "Cancel"), QMessageBox::RejectRole);
    alert.setDefaultButton(save);
    run(alert, information);
    return alert.clickedButton() == save      ? Unsaved::save
           : alert.clickedButton() == discard ? Unsaved::discard
                                              : Unsaved::cancel;
}

bool Panels::askToRecover(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Question, QApplication::applicationDisplayName(), message,
                      QMessageBox::NoButton, front());
    QPushButton* recover =
        alert.addButton(QCoreApplication::translate("Panels", "Recover"), QMessageBox::AcceptRole);
    const QAbstractButton* remove = alert.addButton(
        QCoreApplication::translate("Panels", "Remove them"), QMessageBox::DestructiveRole);
    alert.setDefaultButton(recover);
    alert.setEscapeButton(recover);
    run(alert, information);
    return alert.clickedButton() != remove;
}

std::optional<bool> Panels::askForText(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Question, QApplication::applicationDisplayName(), message,
                      QMessageBox::NoButton, front());
    const QAbstractButton* with = alert.addButton(Texts::tr("With text"), QMessageBox::YesRole);
    QPushButton* without = alert.addButton(Texts::tr("Without text"), QMessageBox::NoRole);
    alert.addButton(Texts::tr("Cancel"), QMessageBox::RejectRole);
    alert.setDefaultButton(without);
    run(alert, information);
    if (alert.clickedButton() == with)
        return true;
    return alert.clickedButton() == without ? std::optional(false) : std::nullopt;
}

void Panels::showMessage(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Warning, QApplication::applicationDisplayName(), message,
                      QMessageBox::Ok, front());
    run(alert, information);
}

void Panels::about() {
    QMessageBox box(front());
    box.setWindowTitle(Texts::tr("About Folvero"));
    box.setIconPixmap(QApplication::windowIcon().pixmap(96, 96));
    box.setText(QStringLiteral("<h3>Folvero %1</h3>").arg(QApplication::applicationVersion()));
    box.setInformativeText(
        Texts::tr("Turns PDF documents into page-flip books for every browser.\n\n"
                  "Free software under the GNU Affero General Public License, version 3 or "
                  "later. It comes without any warranty."));
    box.exec();
}

void Panels::open(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}
