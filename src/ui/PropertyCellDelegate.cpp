#include "ui/PropertyCellDelegate.h"

#include "ui/PlainText.h"
#include "ui/ResetMark.h"
#include "ui/TemplateTexts.h"
#include "ui/ValueEditor.h"

#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

namespace {

constexpr int rowHeight = 24;

// Closes the editor when its list is closed without a choice.
class ListEditor : public QComboBox {
public:
    explicit ListEditor(QWidget* parent) : QComboBox(parent) {
        // The default delegate ignores style sheets.
        setItemDelegate(new QStyledItemDelegate(this));
        // activated() is emitted after the list has closed.
        withoutChoice.setSingleShot(true);
        connect(this, &QComboBox::activated, &withoutChoice, &QTimer::stop);
    }
    void hidePopup() override {
        QComboBox::hidePopup();
        withoutChoice.start(0);
    }
    QTimer withoutChoice;
};

// Null for an index of another model.
FlashTemplateOutlineDelegate* sourceOf(const QModelIndex& index) {
    const auto* model = qobject_cast<const FlashTemplateModel*>(index.model());
    return model ? &model->source() : nullptr;
}

bool isEditKey(const QKeyEvent& event) {
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    switch (event.key()) {
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Select:
        return isPlain;
    default:
        return false;
    }
}

bool isEditedAsText(const QModelIndex& index) {
    const int type = FlashTemplateModel::item(index)->propertyType();
    return index.flags().testFlag(Qt::ItemIsEditable) && type != pt_bool && type != pt_list;
}

bool isLeftButton(const QEvent& event, QEvent::Type type) {
    return event.type() == type &&
           static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

} // namespace

PropertyCellDelegate::PropertyCellDelegate(QTreeView& view)
    : QStyledItemDelegate(&view), iView(view) {
    view.viewport()->setMouseTracking(true);
    view.viewport()->installEventFilter(this);
    view.installEventFilter(this);
    connect(this, &QAbstractItemDelegate::closeEditor, this, &PropertyCellDelegate::endTyping);
}

void PropertyCellDelegate::prepare(Cell& cell, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
    sourceOf(index)->willDisplayCell(cell, FlashTemplateModel::columnName(index),
                                     FlashTemplateModel::item(index));
    cell.setRow(option, iHoveredIndex == index);
}

std::unique_ptr<TextFieldCell> PropertyCellDelegate::buttonCellFor(const QModelIndex& index) const {
    auto* source = sourceOf(index);
    if (!source)
        return nullptr;
    auto cell = source->fieldCellForTableColumn(FlashTemplateModel::columnName(index),
                                                FlashTemplateModel::item(index));
    if (!cell)
        return nullptr;
    QStyleOptionViewItem option;
    option.font = iView.font();
    prepare(*cell, option, index);
    return cell;
}

void PropertyCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
    QStyleOptionViewItem plain(option);
    initStyleOption(&plain, index);
    auto* source = sourceOf(index);
    const auto cell = source ? source->dataCellForTableColumn(FlashTemplateModel::columnName(index),
                                                              FlashTemplateModel::item(index))
                             : nullptr;
    if (!cell) {
        QStyledItemDelegate::paint(painter, option, index);
        paintTitle(*painter, plain, index);
        return;
    }
    prepare(*cell, plain, index);
    plain.text.clear();
    iView.style()->drawControl(QStyle::CE_ItemViewItem, &plain, painter, plain.widget);
    painter->save();
    painter->setClipRect(plain.rect);
    const Cell& shown = iTracked && iTrackedIndex == index ? *iTracked : *cell;
    shown.paint(*painter, plain);
    painter->restore();
}

PropertyCellDelegate::Mark PropertyCellDelegate::markOf(const QModelIndex& index) const {
    const auto* model = qobject_cast<const FlashTemplateModel*>(index.model());
    if (!model || index.column() != FlashTemplateModel::key || model->changedIn(index).empty())
        return noMark;
    if (!model->hasChildren(index))
        return sign;
    return iView.isExpanded(index) ? noMark : dot;
}

// A title ends before its mark.
void PropertyCellDelegate::initStyleOption(QStyleOptionViewItem* option,
                                           const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->rect.isEmpty() || markOf(index) == noMark)
        return;
    const int room = option->rect.width() - ResetMark::width - ResetMark::width / 2;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
}

void PropertyCellDelegate::paintTitle(QPainter& painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const {
    switch (markOf(index)) {
    case sign:
        ResetMark::paint(painter, option, iHoveredIndex == index);
        break;
    case dot:
        ResetMark::paintDot(painter, option);
        break;
    case noMark:
        break;
    }
}

QString PropertyCellDelegate::tipAt(const QPoint& place, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    const FlashTemplateProperty& property = *FlashTemplateModel::item(index);
    if (index.column() == FlashTemplateModel::value)
        return ValueEditor::hint(property);
    if (markOf(index) != sign || !ResetMark::rectIn(option.rect).contains(place))
        return {};
    const auto& model = static_cast<const FlashTemplateModel&>(*index.model());
    const QString value = model.shownValue(property, model.defaultValue(property));
    //: %1 is the value that a setting had before it was changed.
    return value.isEmpty() ? tr("Changed. Click to make it empty again.")
                           : tr("Changed. Click to set it back to %1.").arg(value);
}

bool PropertyCellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                     const QStyleOptionViewItem& option, const QModelIndex& index) {
    const bool isAsked = event->type() == QEvent::ToolTip && index.isValid();
    const QString tip = isAsked ? tipAt(event->pos(), option, index) : QString();
    if (tip.isEmpty())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), PlainText::toolTip(tip), view);
    return true;
}

QSize PropertyCellDelegate::sizeHint(const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), std::max(rowHeight, size.height())};
}

QWidget* PropertyCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const {
    const FlashTemplateProperty* item = FlashTemplateModel::item(index);
    if (item->propertyType() == pt_bool)
        return nullptr;
    auto* self = const_cast<PropertyCellDelegate*>(this);
    if (item->propertyType() != pt_list) {
        auto* edit = new ValueEditor(*item, parent);
        connect(edit, &QLineEdit::textEdited, self,
                [self, edit, at = QPersistentModelIndex(index)] { self->showTyped(*edit, at); });
        return edit;
    }
    auto* list = new ListEditor(parent);
    for (const QString& choice : FlashTemplateOutlineDelegate::choices(*item))
        list->addItem(TemplateTexts::shown(choice));
    list->setAccessibleName(TemplateTexts::shown(item->title()));
    list->setFont(option.font);
    connect(list, &QComboBox::activated, self, [self, list] {
        Q_EMIT self->commitData(list);
        Q_EMIT self->closeEditor(list);
    });
    connect(&list->withoutChoice, &QTimer::timeout, self, [self, list] {
        if (list->isVisible())
            Q_EMIT self->closeEditor(list);
    });
    QTimer::singleShot(0, list, &QComboBox::showPopup);
    return list;
}

void PropertyCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const FlashTemplateProperty& item = *FlashTemplateModel::item(index);
    if (auto* list = qobject_cast<QComboBox*>(editor))
        list->setCurrentIndex(
            int(FlashTemplateOutlineDelegate::choices(item).indexOf(item.value())));
    else if (auto* edit = qobject_cast<QLineEdit*>(editor))
        edit->setText(item.value());
}

void PropertyCellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                        const QModelIndex& index) const {
    if (const auto* list = qobject_cast<QComboBox*>(editor)) {
        if (list->currentIndex() >= 0)
            model->setData(index, list->currentIndex());
    } else if (const auto* edit = qobject_cast<ValueEditor*>(editor)) {
        model->setData(index, edit->value());
    }
}

// Only over the text, so that swatch and button stay free; but over all the space available to it,
// since it can grow.
void PropertyCellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                                const QModelIndex& index) const {
    QRect rect = option.rect;
    if (const auto cell = buttonCellFor(index)) {
        const QRectF frame = TextFieldCell::frameIn(option.rect);
        const QRectF button = cell->infoButtonRectForBounds(frame);
        const QRectF title = cell->titleRectForBounds(frame);
        rect.setLeft(int(title.left()) - 2);
        if (button.left() > title.left())
            rect.setRight(int(button.left()) - 3);
    }
    editor->setGeometry(rect);
}

bool PropertyCellDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                       const QStyleOptionViewItem& option,
                                       const QModelIndex& index) {
    if (markOf(index) == sign &&
        isOverButton(index, static_cast<QMouseEvent*>(event)->position())) {
        if (isLeftButton(*event, QEvent::MouseButtonRelease))
            Q_EMIT resetClicked(index);
        return true;
    }
    if (!index.flags().testFlag(Qt::ItemIsEditable))
        return false;
    const int type = FlashTemplateModel::item(index)->propertyType();
    if (type == pt_bool) {
        if (isLeftButton(*event, QEvent::MouseButtonRelease))
            toggle(*model, index);
        return isLeftButton(*event, QEvent::MouseButtonRelease);
    }
    if (type == pt_list && isLeftButton(*event, QEvent::MouseButtonRelease)) {
        QTimer::singleShot(0, &iView,
                           [this, at = QPersistentModelIndex(index)] { iView.edit(at); });
        return true;
    }
    if (isLeftButton(*event, QEvent::MouseButtonPress))
        return trackButton(static_cast<QMouseEvent&>(*event), option, index);
    return false;
}

bool PropertyCellDelegate::trackButton(QMouseEvent& event, const QStyleOptionViewItem& option,
                                       const QModelIndex& index) {
    const QRectF frame = TextFieldCell::frameIn(option.rect);
    auto cell = buttonCellFor(index);
    if (!cell || !(cell->hitTestForEvent(event.position(), frame) & hitTrackableArea))
        return false;
    cell->setHighlighted(option.state.testFlag(QStyle::State_Selected));
    iTracked = std::move(cell);
    iTrackedIndex = index;
    iTracked->trackMouse(event, frame, *iView.viewport());
    return true;
}

// The view does not forward moves with a pressed button, nor events outside of rows.
bool PropertyCellDelegate::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress;
    if (watched == &iView)
        return isKey && keyPressed(static_cast<const QKeyEvent&>(*event));
    if (watched != iView.viewport())
        return (isKey && leaveEditor(static_cast<QWidget&>(*watched),
                                     static_cast<const QKeyEvent&>(*event).key())) ||
               QStyledItemDelegate::eventFilter(watched, event);
    if (event->type() == QEvent::Leave)
        hover(QPointF(-1, -1));
    const bool isMove = event->type() == QEvent::MouseMove;
    if (!isMove && event->type() != QEvent::MouseButtonRelease)
        return false;
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    if (isMove)
        hover(mouse.position());
    if (!iTracked)
        return false;
    const QRectF frame = TextFieldCell::frameIn(iView.visualRect(iTrackedIndex));
    if (isMove) {
        iTracked->trackMouse(mouse, frame, *iView.viewport());
        return true;
    }
    // The action may open something that handles further events: nothing may be tracked by then.
    const auto cell = std::move(iTracked);
    const QPersistentModelIndex index = std::exchange(iTrackedIndex, QPersistentModelIndex());
    const QString before = cell->title();
    cell->trackMouse(mouse, frame, *iView.viewport());
    if (cell->title() != before)
        commit(*cell, index);
    return true;
}

bool PropertyCellDelegate::isOverButton(const QModelIndex& index, const QPointF& at) const {
    const QRect rect = iView.visualRect(index);
    if (markOf(index) == sign)
        return ResetMark::rectIn(rect).contains(at.toPoint());
    const auto cell = buttonCellFor(index);
    return cell && cell->infoButtonRectForBounds(TextFieldCell::frameIn(rect)).contains(at);
}

void PropertyCellDelegate::hover(const QPointF& at) {
    const QModelIndex index = iView.indexAt(at.toPoint());
    const bool isOver = index.isValid() && isOverButton(index, at);
    const QPersistentModelIndex before = iHoveredIndex;
    iHoveredIndex = isOver ? index : QModelIndex();
    if (before == iHoveredIndex)
        return;
    for (const QModelIndex& changed : {QModelIndex(before), QModelIndex(iHoveredIndex)}) {
        if (changed.isValid())
            iView.update(changed);
    }
}

bool PropertyCellDelegate::keyPressed(const QKeyEvent& event) {
    const QModelIndex current = iView.currentIndex();
    // An editor forwards keys that it does not use, such as the Return that ends it.
    const QWidget* focus = QApplication::focusWidget();
    const bool isOfEditor = focus && iView.viewport()->isAncestorOf(focus);
    if (!current.isValid() || isOfEditor)
        return false;
    const QModelIndex value = current.siblingAtColumn(FlashTemplateModel::value);
    iView.selectionModel()->setCurrentIndex(value, QItemSelectionModel::NoUpdate);
    if (!isEditKey(event))
        return false;
    edit(value, event.key() == Qt::Key_Space || event.key() == Qt::Key_Select);
    return true;
}

// Opens the editor; for a group, expands or collapses it.
void PropertyCellDelegate::edit(const QModelIndex& index, bool byItsButton) {
    iView.setCurrentIndex(index);
    const QModelIndex title = index.siblingAtColumn(FlashTemplateModel::key);
    if (iView.model()->hasChildren(title))
        iView.setExpanded(title, !iView.isExpanded(title));
    if (!index.flags().testFlag(Qt::ItemIsEditable))
        return;
    const bool isBox = FlashTemplateModel::item(index)->propertyType() == pt_bool;
    if (!((byItsButton || isBox) && activate(index)))
        iView.edit(index);
}

// Commits the text and moves to the next or previous row, whose text is edited at once. Stays where
// the text can't be stored.
bool PropertyCellDelegate::leaveEditor(QWidget& editor, int key) {
    const bool isTab = key == Qt::Key_Tab || key == Qt::Key_Backtab;
    if (!isTab && key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    auto* value = qobject_cast<ValueEditor*>(&editor);
    if (value && !value->isReady())
        return true;
    if (!isTab)
        return false;
    Q_EMIT commitData(&editor);
    Q_EMIT closeEditor(&editor);
    const QModelIndex left = iView.currentIndex();
    const QModelIndex next = key == Qt::Key_Tab ? iView.indexBelow(left) : iView.indexAbove(left);
    if (next.isValid())
        iView.setCurrentIndex(next);
    if (next.isValid() && isEditedAsText(next))
        iView.edit(next);
    return true;
}

// A number or a colour, as soon as it is one. Half a path would be a file that is missing.
void PropertyCellDelegate::showTyped(const ValueEditor& editor, const QModelIndex& index) {
    auto* source = sourceOf(index);
    const bool isShown = editor.validator() && editor.hasAcceptableInput();
    if (!source || !isShown)
        return;
    iTypedIndex = index;
    source->tryValue(*FlashTemplateModel::item(index), editor.value());
}

void PropertyCellDelegate::endTyping() {
    const QPersistentModelIndex index = std::exchange(iTypedIndex, QPersistentModelIndex());
    if (!index.isValid())
        return;
    FlashTemplateProperty& item = *FlashTemplateModel::item(index);
    sourceOf(index)->tryValue(item, item.value());
}

bool PropertyCellDelegate::activate(const QModelIndex& index) {
    if (FlashTemplateModel::item(index)->propertyType() == pt_bool) {
        toggle(*iView.model(), index);
        return true;
    }
    const auto cell = buttonCellFor(index);
    if (!cell || !cell->infoButtonAction())
        return false;
    const QPersistentModelIndex kept = index;
    cell->infoButtonAction()(*cell);
    commit(*cell, kept);
    return true;
}

void PropertyCellDelegate::toggle(QAbstractItemModel& model, const QModelIndex& index) const {
    const bool isOn = StringUtil::valueAsBool(FlashTemplateModel::item(index)->value());
    model.setData(index, !isOn);
}

void PropertyCellDelegate::commit(const TextFieldCell& cell, const QModelIndex& index) {
    if (index.isValid())
        iView.model()->setData(index, cell.title());
}
