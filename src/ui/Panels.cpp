#include "ui/Panels.h"

#include "ui/PlainText.h"
#include "ui/wxCPWCDelegate.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace {

QString nameFilter(const QStringList& types) {
    QStringList patterns;
    for (const QString& type : types) {
        if (!type.trimmed().isEmpty())
            patterns << QStringLiteral("*.%1 *.%2").arg(type.trimmed(), type.trimmed().toUpper());
    }
    return patterns.isEmpty() ? QString() : QStringLiteral("(%1)").arg(patterns.join(u' '));
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

} // namespace

std::optional<QString> Panels::chooseFile(const QString& proposed, const QStringList& types) {
    const QString file = QFileDialog::getOpenFileName(QApplication::activeWindow(), QString(),
                                                      proposed, nameFilter(types));
    return file.isEmpty() ? std::nullopt : std::optional(file);
}

std::optional<QString> Panels::chooseFileToSave(const QString& proposed, const QStringList& types) {
    const QString file = QFileDialog::getSaveFileName(QApplication::activeWindow(), QString(),
                                                      proposed, nameFilter(types));
    return file.isEmpty() ? std::nullopt : std::optional(file);
}

QColor Panels::chooseColor(const QColor& initial) {
    QColorDialog panel(initial, QApplication::activeWindow());
    wxCPWCDelegate delegate;
    QObject::connect(&panel, &QDialog::finished, [&delegate] { delegate.windowShouldClose(); });
    panel.setModal(true);
    panel.show();
    while (!delegate.isClosed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return panel.result() == QDialog::Accepted ? panel.selectedColor() : initial;
}

std::optional<QString> Panels::chooseFolder(const QString& prompt) {
    QFileDialog panel(QApplication::activeWindow());
    panel.setFileMode(QFileDialog::Directory);
    panel.setOption(QFileDialog::ShowDirsOnly);
    panel.setLabelText(QFileDialog::Accept, prompt);
    if (panel.exec() != QDialog::Accepted || panel.selectedFiles().isEmpty())
        return std::nullopt;
    return panel.selectedFiles().first();
}

bool Panels::askToOpen(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Information, QApplication::applicationDisplayName(), message,
                      QMessageBox::NoButton, QApplication::activeWindow());
    const QAbstractButton* openIt =
        alert.addButton(QCoreApplication::translate("Panels", "Open it"), QMessageBox::AcceptRole);
    alert.addButton(QCoreApplication::translate("Panels", "No"), QMessageBox::RejectRole);
    run(alert, information);
    return alert.clickedButton() == openIt;
}

bool Panels::askToReplace(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Warning, QApplication::applicationDisplayName(), message,
                      QMessageBox::NoButton, QApplication::activeWindow());
    const QAbstractButton* replace =
        alert.addButton(QCoreApplication::translate("Panels", "Replace"), QMessageBox::AcceptRole);
    alert.setDefaultButton(
        alert.addButton(QCoreApplication::translate("Panels", "Cancel"), QMessageBox::RejectRole));
    run(alert, information);
    return alert.clickedButton() == replace;
}

Panels::Unsaved Panels::askToSave(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Warning, QApplication::applicationDisplayName(), message,
                      QMessageBox::NoButton, QApplication::activeWindow());
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
                      QMessageBox::NoButton, QApplication::activeWindow());
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
                      QMessageBox::NoButton, QApplication::activeWindow());
    const QAbstractButton* with =
        alert.addButton(QCoreApplication::translate("Panels", "With text"), QMessageBox::YesRole);
    QPushButton* without =
        alert.addButton(QCoreApplication::translate("Panels", "Without text"), QMessageBox::NoRole);
    alert.addButton(QCoreApplication::translate("Panels", "Cancel"), QMessageBox::RejectRole);
    alert.setDefaultButton(without);
    run(alert, information);
    if (alert.clickedButton() == with)
        return true;
    return alert.clickedButton() == without ? std::optional(false) : std::nullopt;
}

void Panels::showMessage(const QString& message, const QString& information) {
    QMessageBox alert(QMessageBox::Warning, QApplication::applicationDisplayName(), message,
                      QMessageBox::Ok, QApplication::activeWindow());
    run(alert, information);
}

void Panels::about() {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(QCoreApplication::translate("Panels", "About Folvero"));
    box.setIconPixmap(QApplication::windowIcon().pixmap(96, 96));
    box.setText(QStringLiteral("<h3>Folvero %1</h3>").arg(QApplication::applicationVersion()));
    box.setInformativeText(QCoreApplication::translate(
        "Panels", "Turns PDF documents into page-flip books for every browser.\n\n"
                  "Free software under the GNU Affero General Public License, version 3 or "
                  "later. It comes without any warranty."));
    box.exec();
}

void Panels::open(const QString& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}
