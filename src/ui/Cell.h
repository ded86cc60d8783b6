#pragma once

#include <QString>
#include <QStringList>

// Shows and edits one value in a table or tree. Cells are created for each display pass.
class Cell {
public:
    Cell() = default;
    virtual ~Cell() = default;
    Cell& operator=(const Cell&) = delete;

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
    void setState(bool state) { iState = state; }

private:
    QString iTitle;
    bool iState = false;
};
