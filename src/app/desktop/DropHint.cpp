#include "app/desktop/DropHint.h"

#include "project/ProjectFile.h"

#include <QMimeData>
#include <QPainter>
#include <QUrl>

namespace {

constexpr int edge = 24;
constexpr qreal corner = 14;
constexpr float veil = 0.88F;

bool isDocument(const QString& path) {
    return path.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive) ||
           ProjectFile::isProject(path);
}

QStringList pathsOf(const QMimeData& files, bool areDocuments) {
    QStringList paths;
    for (const QUrl& url : files.urls()) {
        const QString path = url.toLocalFile();
        if (!path.isEmpty() && isDocument(path) == areDocuments)
            paths << path;
    }
    return paths;
}

} // namespace

DropHint::DropHint(QWidget& window) : QWidget(&window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropHint::showFor(const QMimeData& files) {
    iText = documents(files).isEmpty() ? tr("Only PDF documents can be dropped here.")
                                       : tr("Drop the PDF here to make a book of it.");
    setGeometry(parentWidget()->rect());
    raise();
    show();
}

QStringList DropHint::documents(const QMimeData& files) {
    return pathsOf(files, true);
}

QStringList DropHint::others(const QMimeData& files) {
    return pathsOf(files, false);
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
