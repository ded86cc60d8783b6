#pragma once

#include <QWidget>

class QMimeData;

// Lies over the window while files are dragged over it, and says what becomes of them.
class DropHint : public QWidget {
    Q_OBJECT

public:
    explicit DropHint(QWidget& window);

    void showFor(const QMimeData& files);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString iText;
};
