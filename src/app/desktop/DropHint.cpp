#include "app/desktop/DropHint.h"

#include "project/InputFiles.h"
#include "project/ProjectFile.h"
#include "ui/DroppedFiles.h"

#include <QFileInfo>
#include <QPainter>
#include <algorithm>

namespace {

constexpr int edge = 24;
constexpr qreal corner = 14;
constexpr float veil = 0.88F;

bool mayBeUsed(const QString& path) {
    const QFileInfo file(path);
    return file.isDir() ||
           (file.exists() && (InputFiles::isUsable(path) || ProjectFile::isProject(path)));
}

} // namespace

DropHint::DropHint(QWidget& window) : QWidget(&window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropHint::showFor(const QMimeData& files) {
    const QStringList dropped = DroppedFiles::paths(files);
    const auto used = std::count_if(dropped.begin(), dropped.end(), mayBeUsed);
    const bool isProject = dropped.size() == 1 && ProjectFile::isProject(dropped.front());
    if (used == 0)
        iText = tr("Only PDFs, pictures and documents that LibreOffice can open become a book.");
    else if (isProject)
        iText = tr("Drop the project here to open it.");
    else if (dropped.size() == 1)
        iText = tr("Drop it here to make a book of it.");
    else
        iText = tr("Drop them here to make one book of them, in the order of their names.");
    setGeometry(parentWidget()->rect());
    raise();
    show();
}

void DropHint::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::Window);
    ground.setAlphaF(veil);
    painter.fillRect(rect(), ground);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(edge, edge, -edge, -edge), corner, corner);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    painter.setFont(large);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(2 * edge, 2 * edge, -2 * edge, -2 * edge),
                     int(Qt::AlignCenter) | int(Qt::TextWordWrap), iText);
}
