#include "app/desktop/DropHint.h"

#include "project/InputFiles.h"
#include "project/ProjectFile.h"
#include "ui/DroppedFiles.h"

#include <QFileInfo>
#include <QPainter>
#include <algorithm>
#include <utility>

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

void DropHint::showFor(const QMimeData& files, const QString& book) {
    const QStringList dropped = DroppedFiles::paths(files);
    const auto used = std::count_if(dropped.begin(), dropped.end(), mayBeUsed);
    const bool isProject = dropped.size() == 1 && ProjectFile::isProject(dropped.front());
    if (used == 0)
        iTexts = {tr("Only PDFs, pictures and documents that LibreOffice can open become a book.")};
    else if (isProject)
        iTexts = {tr("Drop the project here to open it.")};
    else if (!book.isNull())
        iTexts = {tr("Drop here to make a new book."), tr("Drop here to add to “%1”.").arg(book)};
    else if (dropped.size() == 1)
        iTexts = {tr("Drop it here to make a book of it.")};
    else
        iTexts = {tr("Drop them here to make one book of them, in the order of their names.")};
    iPointed = 0;
    setGeometry(parentWidget()->rect());
    raise();
    show();
}

void DropHint::pointAt(const QPoint& place) {
    const int pointed = iTexts.size() > 1 && place.x() >= area(1).left() ? 1 : 0;
    if (std::exchange(iPointed, pointed) != pointed)
        update();
}

QRect DropHint::area(int number) const {
    const int width = this->width() / int(iTexts.size());
    return {number * width, 0, width, height()};
}

void DropHint::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = palette().color(QPalette::Window);
    ground.setAlphaF(veil);
    painter.fillRect(rect(), ground);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    painter.setFont(large);
    for (int i = 0; i < iTexts.size(); ++i) {
        const QColor ink = palette().color(i == iPointed ? QPalette::Highlight : QPalette::Mid);
        const QRect inside = area(i).adjusted(edge, edge, -edge, -edge);
        painter.setPen(QPen(ink, 2, Qt::DashLine));
        painter.drawRoundedRect(QRectF(inside), corner, corner);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(inside.adjusted(edge, edge, -edge, -edge),
                         int(Qt::AlignCenter) | int(Qt::TextWordWrap), iTexts[i]);
    }
}
