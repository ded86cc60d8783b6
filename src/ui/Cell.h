#pragma once

#include <QString>
#include <QStringList>

class QPainter;
class QStyleOptionViewItem;

// Shows and edits one value in a table or tree. Cells are created for each display pass.
class Cell {
public:
    Cell() = default;
    virtual ~Cell() = default;
    Cell& operator=(const Cell&) = delete;

    // Shows that value of a property. By default a cell keeps the one that it was made with.
    virtual void showValue(const QString& /*value*/) {}
    // Takes what it needs from the row that shows it; isHovered is for the cell's button.
    virtual void setRow(const QStyleOptionViewItem& /*row*/, bool /*isHovered*/) {}
    // Draws over the background of the row.
    virtual void paint(QPainter& painter, const QStyleOptionViewItem& row) const = 0;

protected:
    Cell(const Cell&) = default;
};

// A choice from a list of texts.
class PopUpButtonCell : public Cell {
public:
    explicit PopUpButtonCell(const QStringList& items) : iItems(items) {}

    const QStringList& itemTitles() const { return iItems; }
    // -1 when nothing is selected.
    int indexOfSelectedItem() const { return iSelected; }
    void selectItemAtIndex(int index) {
        iSelected = index >= 0 && index < iItems.size() ? index : -1;
    }
    void selectItemWithTitle(const QString& title) { iSelected = int(iItems.indexOf(title)); }

    void showValue(const QString& value) override { selectItemWithTitle(value); }
    void paint(QPainter& painter, const QStyleOptionViewItem& row) const override;

private:
    QStringList iItems;
    int iSelected = -1;
};

// A check box with its caption.
class ButtonCell : public Cell {
public:
    explicit ButtonCell(const QString& title) : iTitle(title) {}

    QString title() const { return iTitle; }
    bool state() const { return iState; }

    void showValue(const QString& value) override;
    void paint(QPainter& painter, const QStyleOptionViewItem& row) const override;

private:
    QString iTitle;
    bool iState = false;
};
