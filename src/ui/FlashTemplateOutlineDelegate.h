#pragma once

#include "template/FlashTemplate.h"
#include "ui/Cell.h"
#include "ui/Panels.h"

#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>

class FlashTmplColorCell;
class FlashTmplFileCell;
class TextFieldCell;

// Posted with the property whose value has changed.
inline constexpr char16_t FlashTmplProValueChangedNotification[] =
    u"FlashTmplProValueChangedNotification";
// Posted with the delegate when another row is selected.
inline constexpr char16_t UpdateFlashTmplProTipNotification[] =
    u"UpdateFlashTmplProTipNotification";

// The content of the property editor for a template, and the handling of edits. Items are the
// template's properties; nullptr is the root. The columns are "key" and "value".
class FlashTemplateOutlineDelegate {
public:
    using Item = FlashTemplateProperty*;

    FlashTemplateOutlineDelegate();

    const std::shared_ptr<FlashTemplate>& flashTmpl() const { return iFlashTmpl; }
    // Without one there are no rows.
    void setFlashTmpl(std::shared_ptr<FlashTemplate> flashTmpl) {
        iFlashTmpl = std::move(flashTmpl);
    }

    // How the user is asked for files and colours.
    using ColorPanel =
        std::function<QColor(const QColor& initial, const Panels::ColorMoved& moved)>;
    void setFilePanel(Panels::FilePanel panel) { iFilePanel = std::move(panel); }
    void setColorPanel(ColorPanel panel) { iColorPanel = std::move(panel); }

    // Called with a value that the user tries, as by dragging a colour or while typing, and in the
    // end with the setting's own. The setting keeps its value meanwhile.
    using Trial = std::function<void(FlashTemplateProperty& item, const QString& value)>;
    void setTrial(Trial trial) { iTrial = std::move(trial); }
    void tryValue(FlashTemplateProperty& item, const QString& value) const;

    int numberOfChildrenOfItem(Item item) const;
    // nullptr for an index out of range.
    Item child(int index, Item ofItem) const;
    bool isItemExpandable(Item item) const;

    // A null column counts as "key".
    QVariant objectValueForTableColumn(const QString& column, Item byItem) const;
    // nullptr where the column's plain text cell is used.
    std::unique_ptr<Cell> dataCellForTableColumn(const QString& column, Item item);
    // The same for cells with a button, of a colour or a file; nullptr for others.
    std::unique_ptr<TextFieldCell> fieldCellForTableColumn(const QString& column, Item item);
    // Called before a cell is shown.
    void willDisplayCell(Cell& cell, const QString& forTableColumn, Item item) const;
    // Handles a value from a cell: a text, the index of a choice, or a boolean.
    void setObjectValue(const QVariant& object, const QString& forTableColumn, Item byItem);
    void outlineViewSelectionDidChange();

    // Actions of the cells' buttons; the cell's title is the new value afterwards.
    void onSelectFile(FlashTmplFileCell& sender);
    void onSelectColor(FlashTmplColorCell& sender);
    // For a file panel that runs as a sheet: sets the cell to its file, whatever the return code.
    void openPanelDidEnd(const QString& panelFile, int returnCode,
                         FlashTmplFileCell& contextInfo) const;

    // The extensions of a filter such as "Pictures|*.jpg;*.png", after an empty first one.
    static QStringList allowedTypes(const QString& valueSource);
    static QStringList choices(const FlashTemplateProperty& property);

private:
    std::unique_ptr<Cell> listCell(const FlashTemplateProperty& property) const;

    std::shared_ptr<FlashTemplate> iFlashTmpl;
    Panels::FilePanel iFilePanel;
    ColorPanel iColorPanel;
    Trial iTrial;
};
