#include "ui/FilePreview.h"

#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(FilePreview, ShowsPicturesAsWholesAndSmallOnesAsTheyAre) {
    const QTemporaryDir folder;
    QFileDialog panel;
    panel.setOption(QFileDialog::DontUseNativeDialog);
    const auto before = panel.findChildren<QLabel*>();
    const FilePreview preview(panel);
    auto added = panel.findChildren<QLabel*>();
    added.removeIf([&](QLabel* label) { return before.contains(label); });
    ASSERT_EQ(added.size(), 1);
    for (const auto& [size, shown] : {std::pair{QSize(400, 100), QSize(200, 50)},
                                      {QSize(100, 400), QSize(50, 200)},
                                      {QSize(200, 200), QSize(200, 200)},
                                      {QSize(30, 40), QSize(30, 40)},
                                      {QSize(), QSize(0, 0)}}) {
        const QString file = folder.filePath("picture.png");
        QFile::remove(file);
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        EXPECT_EQ(picture.save(file), size.isValid());
        Q_EMIT panel.currentChanged(file);
        EXPECT_EQ(added.first()->pixmap().size(), shown);
    }
}
