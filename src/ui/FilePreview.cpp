#include "ui/FilePreview.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QImageReader>
#include <QLabel>

namespace {

constexpr QSize room{200, 200};

} // namespace

FilePreview::FilePreview(QFileDialog& panel) {
    auto* grid = qobject_cast<QGridLayout*>(panel.layout());
    if (!grid)
        return;
    iPicture = new QLabel(&panel);
    iPicture->setFixedWidth(room.width());
    iPicture->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    grid->addWidget(iPicture, 1, grid->columnCount(), grid->rowCount() - 1, 1);
    panel.resize(panel.sizeHint() + QSize(room.width(), 0));
    connect(&panel, &QFileDialog::currentChanged, this, &FilePreview::show);
}

void FilePreview::show(const QString& file) {
    QImageReader reader(file);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    const qreal scale = iPicture->devicePixelRatioF();
    const QSize most = room * scale;
    if (size.isValid() && (size.width() > most.width() || size.height() > most.height()))
        reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio));
    QPixmap picture = QPixmap::fromImageReader(&reader);
    picture.setDevicePixelRatio(scale);
    iPicture->setPixmap(picture);
}
