#pragma once

#include "template/FlashTemplate.h"
#include "ui/Cell.h"

#include <QColor>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>

class FlashTmplColorCell;
class FlashTmplFileCell;
class TextFieldCell;

// Posted with the property whose value really changed.
inline constexpr char16_t FlashTmplProValueChangedNotification[] =
    u"FlashTmplProValueChangedNotification";
// Posted with the delegate when another row is selected.
inline constexpr char16_t UpdateFlashTmplProTipNotification[] =
    u"UpdateFlashTmplProTipNotification";

// What the property editor shows of a template, and how edits get back into it. Items are the
// template's properties; nullptr stands for the root. The columns are "key" and "value".
class FlashTemplateOutlineDelegate {
public:
    using Item = FlashTemplateProperty*;

    FlashTemplateOutlineDelegate();

    const std::shared_ptr<FlashTemplate>& flashTmpl() const { return iFlashTmpl; }
    // Without one there are no rows.
    void setFlashTmpl(std::shared_ptr<FlashTemplate> flashTmpl) {
        iFlashTmpl = std::move(flashTmpl);
    }

    // How files and colours are asked for. A file comes back as none when the panel is cancelled.
    // Allowed types are file name extensions.
    using FilePanel =
        std::function<std::optional<QString>(const QString& proposed, const QStringList& types)>;
    using ColorPanel = std::function<QColor(const QColor& initial)>;
    void setFilePanel(FilePanel panel) { iFilePanel = std::move(panel); }
    void setColorPanel(ColorPanel panel) { iColorPanel = std::move(panel); }

    int numberOfChildrenOfItem(Item item) const;
    // nullptr for an index that no child has.
    Item child(int index, Item ofItem) const;
    bool isItemExpandable(Item item) const;

    // A null column counts as "key".
    QVariant objectValueForTableColumn(const QString& column, Item byItem) const;
    // nullptr where the column's plain text cell serves.
    std::unique_ptr<Cell> dataCellForTableColumn(const QString& column, Item item);
    // Called before a cell is shown.
    void willDisplayCell(Cell& cell, const QString& forTableColumn, Item item) const;
    // Takes what a cell delivers: a text, the index of a choice, or a truth value.
    void setObjectValue(const QVariant& object, const QString& forTableColumn, Item byItem);
    void outlineViewSelectionDidChange();

    // What the buttons of the cells do; the cell's title is the new value afterwards.
    void onSelectFile(FlashTmplFileCell& sender);
    void onSelectColor(FlashTmplColorCell& sender);
    // For a file panel that runs as a sheet: its file goes to the cell, whatever the answer was.
    void openPanelDidEnd(const QString& panelFile, int returnCode,
                         FlashTmplFileCell& contextInfo) const;

    // The extensions of a filter such as "Pictures|*.jpg;*.png", after an empty first one.
    static QStringList allowedTypes(const QString& valueSource);
    static QStringList choices(const FlashTemplateProperty& property);

private:
    std::unique_ptr<Cell> listCell(const FlashTemplateProperty& property) const;

    std::shared_ptr<FlashTemplate> iFlashTmpl;
    FilePanel iFilePanel;
    ColorPanel iColorPanel;
};
