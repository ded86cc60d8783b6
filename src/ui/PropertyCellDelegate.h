#pragma once

#include "ui/FlashTemplateModel.h"
#include "ui/TextFieldCell.h"

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class QTreeView;
class ValueEditor;

// Connects the outline delegate's cells to the property editor's view: draws them, passes mouse and
// keyboard events to them, and opens an editor over the text of one. Keys always go to the value of
// the current row, whichever column was clicked.
class PropertyCellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit PropertyCellDelegate(QTreeView& view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    // Says what a value may be, what is wrong with it, or that it was changed.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    // The sign of a changed value was clicked.
    void resetClicked(const QModelIndex& title);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    // Whether a title has the sign, or a dot.
    enum Mark { noMark, dot, sign };
    Mark markOf(const QModelIndex& index) const;
    QString tipAt(const QPoint& place, const QStyleOptionViewItem& option,
                  const QModelIndex& index) const;
    void paintTitle(QPainter& painter, const QStyleOptionViewItem& option,
                    const QModelIndex& index) const;
    bool isOverButton(const QModelIndex& index, const QPointF& at) const;
    // Does what a click on the button of the row's value does; false when it has none.
    bool activate(const QModelIndex& index);
    bool keyPressed(const QKeyEvent& event);
    void edit(const QModelIndex& index, bool byItsButton);
    bool leaveEditor(QWidget& editor, int key);
    void prepare(Cell& cell, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    // Null for a value without a button.
    std::unique_ptr<TextFieldCell> buttonCellFor(const QModelIndex& index) const;
    bool trackButton(QMouseEvent& event, const QStyleOptionViewItem& option,
                     const QModelIndex& index);
    void toggle(QAbstractItemModel& model, const QModelIndex& index) const;
    void hover(const QPointF& at);
    void commit(const TextFieldCell& cell, const QModelIndex& index);
    void showTyped(const ValueEditor& editor, const QModelIndex& index);
    void endTyping();

    QTreeView& iView;
    // The cell that tracks the mouse, and the row whose button the pointer is over.
    std::unique_ptr<TextFieldCell> iTracked;
    QPersistentModelIndex iTrackedIndex;
    QPersistentModelIndex iHoveredIndex;
    QPersistentModelIndex iTypedIndex; // of the value that is shown while it is typed
};
