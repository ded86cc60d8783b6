#include "ui/Panels.h"

#include "ui/wxCPWCDelegate.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>

namespace {

QString nameFilter(const QStringList& types) {
    QStringList patterns;
    for (const QString& type : types) {
        if (!type.trimmed().isEmpty())
            patterns << QStringLiteral("*.%1 *.%2").arg(type.trimmed(), type.trimmed().toUpper());
    }
    return patterns.isEmpty() ? QString() : QStringLiteral("(%1)").arg(patterns.join(u' '));
}

} // namespace

std::optional<QString> Panels::chooseFile(const QString& proposed, const QStringList& types) {
    const QString file = QFileDialog::getOpenFileName(QApplication::activeWindow(), QString(),
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
