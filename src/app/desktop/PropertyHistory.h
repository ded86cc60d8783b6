#pragma once

#include "template/FlashTemplate.h"

#include <QHash>
#include <QUndoStack>
#include <functional>
#include <memory>

// Undo history of a template's values. It is notified after an edit and keeps a copy of the values
// to know the earlier ones.
class PropertyHistory {
public:
    // changed is called after an undo or redo has changed values.
    explicit PropertyHistory(std::function<void()> changed) : iChanged(std::move(changed)) {}

    QUndoStack& stack() { return iStack; }

    // Clears the history for another template.
    void reset(std::shared_ptr<FlashTemplate> tmpl);
    // Takes the current values as the baseline, not to be undone.
    void snapshotValues();
    // Records the user's changes since the last call as one undo step. text names it; by default
    // the property does.
    void recordEdits(const QString& text = QString());

private:
    std::shared_ptr<FlashTemplate> iTmpl;
    QHash<FlashTemplateProperty*, QString> iValues;
    std::function<void()> iChanged;
    QUndoStack iStack;
};
