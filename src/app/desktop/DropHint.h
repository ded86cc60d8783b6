#pragma once

#include <QStringList>
#include <QWidget>

class QMimeData;

// Lies over the window while files are dragged over it, and says what becomes of them: a book of
// their own, or, on the right half while there is a book, pages of that book.
class DropHint : public QWidget {
    Q_OBJECT

public:
    explicit DropHint(QWidget& window);

    // book: the name of the one that there is; null for none.
    void showFor(const QMimeData& files, const QString& book);
    // place: where the files are now, in the window.
    void pointAt(const QPoint& place);
    // Whether files that are dropped there go into the book.
    bool areAdded() const { return iPointed == 1; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect area(int number) const;

    QStringList iTexts; // of the areas, from left to right
    int iPointed = 0;
};
