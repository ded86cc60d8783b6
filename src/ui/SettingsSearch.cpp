#include "ui/SettingsSearch.h"

#include "ui/FlashTemplateModel.h"
#include "ui/Icons.h"
#include "ui/TemplateTexts.h"

#include <QAccessible>
#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

QString textOf(const FlashTemplateProperty& property) {
    QStringList texts{property.title(), property.desc(), property.aTitle()};
    if (property.propertyType() == pt_list)
        texts << FlashTemplateOutlineDelegate::choices(property);
    for (QString& text : texts)
        text = TemplateTexts::shown(text);
    return texts.join(u'\n');
}

} // namespace

SettingsSearch::SettingsSearch(QTreeView& view, QWidget* parent)
    : QWidget(parent),
      iView(view),
      iField(new QLineEdit),
      iMagnifier(iField->addAction(QIcon(), QLineEdit::LeadingPosition)),
      iClear(iField->addAction(QIcon(), QLineEdit::TrailingPosition)),
      iNothing(new QLabel(view.viewport())) {
    iField->setObjectName(QStringLiteral("search"));
    iField->setPlaceholderText(tr("Search the settings"));
    iField->setAccessibleName(iField->placeholderText());
    iMagnifier->setText(iField->placeholderText());
    connect(iMagnifier, &QAction::triggered, this, &SettingsSearch::begin);
    iField->installEventFilter(this);
    iClear->setText(tr("Show all settings"));
    iClear->setToolTip(tr("Show all settings (Esc)"));
    iClear->setVisible(false);
    connect(iClear, &QAction::triggered, iField, &QLineEdit::clear);
    connect(iField, &QLineEdit::textChanged, this, &SettingsSearch::search);

    iNothing->setObjectName(QStringLiteral("nothingFound"));
    iNothing->setTextFormat(Qt::PlainText);
    iNothing->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    iNothing->setWordWrap(true);
    iNothing->setMargin(16);
    iNothing->setAttribute(Qt::WA_TransparentForMouseEvents);
    iNothing->hide();
    auto* over = new QVBoxLayout(view.viewport());
    over->setContentsMargins(0, 0, 0, 0);
    over->addWidget(iNothing);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 4, 6, 6);
    layout->addWidget(iField);
    setFocusProxy(iField);
    updateColors();
}

void SettingsSearch::begin() {
    iField->setFocus(Qt::ShortcutFocusReason);
    iField->selectAll();
}

// The view has forgotten by then which rows were hidden.
void SettingsSearch::follow(QAbstractItemModel& model) {
    connect(&model, &QAbstractItemModel::modelReset, this, [this] {
        iCollapsed.clear();
        iIsSearching = false;
        // What has reset the model expands its groups after that.
        QMetaObject::invokeMethod(this, &SettingsSearch::search, Qt::QueuedConnection);
    });
}

void SettingsSearch::search() {
    iWords = iFolder.folded(iField->text()).split(u' ', Qt::SkipEmptyParts);
    iClear->setVisible(!iField->text().isEmpty());
    if (!iView.model() || (iWords.isEmpty() && !iIsSearching))
        return;
    if (!iIsSearching)
        rememberExpanded();
    iIsSearching = !iWords.isEmpty();
    const bool isFound = filter({}, {});
    showNothingFound(!isFound);
    if (!iIsSearching)
        restoreExpanded();
}

bool SettingsSearch::matches(const QString& text) const {
    return std::all_of(iWords.begin(), iWords.end(),
                       [&text](const QString& word) { return text.contains(word); });
}

bool SettingsSearch::filter(const QModelIndex& parent, const QString& context) {
    bool isAnyShown = false;
    const QAbstractItemModel& model = *iView.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, FlashTemplateModel::key, parent);
        const FlashTemplateProperty& property = *FlashTemplateModel::item(index);
        const bool isGroup = model.hasChildren(index);
        const QString title = iFolder.folded(TemplateTexts::shown(property.title()));
        const bool hasMatch = isGroup ? filter(index, context + title + u'\n')
                                      : matches(context + iFolder.folded(textOf(property)));
        iView.setRowHidden(row, parent, !hasMatch);
        if (isGroup && hasMatch && iIsSearching)
            iView.expand(index);
        isAnyShown = isAnyShown || hasMatch;
    }
    return isAnyShown;
}

void SettingsSearch::rememberExpanded(const QModelIndex& parent) {
    const QAbstractItemModel& model = *iView.model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, FlashTemplateModel::key, parent);
        if (!model.hasChildren(index))
            continue;
        if (!iView.isExpanded(index))
            iCollapsed << index;
        rememberExpanded(index);
    }
}

void SettingsSearch::restoreExpanded() {
    for (const QPersistentModelIndex& index : std::exchange(iCollapsed, {}))
        iView.collapse(index);
    if (iView.currentIndex().isValid())
        iView.scrollTo(iView.currentIndex());
}

void SettingsSearch::showNothingFound(bool isEmpty) {
    iNothing->setText(isEmpty ? tr("No setting has “%1”.").arg(iField->text().trimmed())
                              : QString());
    iNothing->setVisible(isEmpty);
    // Screen readers say it with the field, where the cursor stays.
    iField->setAccessibleDescription(iNothing->text());
    if (isEmpty) {
        QAccessibleEvent alert(iNothing, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

// The first setting that was found, unless one of them is current already.
void SettingsSearch::goToSettings() {
    iView.setFocus(Qt::TabFocusReason);
    const QModelIndex current = iView.currentIndex();
    if (current.isValid() && !iView.visualRect(current).isEmpty())
        return;
    QModelIndex first = iView.indexAt(QPoint(1, 1));
    while (first.isValid() && iView.model()->hasChildren(first))
        first = iView.indexBelow(first);
    if (first.isValid())
        iView.setCurrentIndex(first.siblingAtColumn(FlashTemplateModel::value));
}

bool SettingsSearch::eventFilter(QObject* watched, QEvent* event) {
    // Otherwise a sheet or a shortcut would take it.
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (watched != iField || (event->type() != QEvent::KeyPress && !isOverride))
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (isOverride) {
        if (key == Qt::Key_Escape)
            event->accept();
        return key == Qt::Key_Escape;
    }
    switch (key) {
    case Qt::Key_Escape:
        if (iField->text().isEmpty())
            goToSettings();
        iField->clear();
        return true;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goToSettings();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void SettingsSearch::updateColors() {
    const QColor ink = palette().color(QPalette::PlaceholderText);
    iMagnifier->setIcon(Icons::icon(QStringLiteral("search"), ink));
    iClear->setIcon(Icons::icon(QStringLiteral("close"), ink));
}

void SettingsSearch::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        updateColors();
}
