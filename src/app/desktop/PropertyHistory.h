#pragma once

#include "template/FlashTemplate.h"

#include <QHash>
#include <QUndoStack>
#include <functional>
#include <memory>

// Lets edits of a template's values be undone. It learns of an edit after it was made and knows the
// earlier values from its own notes.
class PropertyHistory {
public:
    // Called after an undo or a redo has changed values.
    explicit PropertyHistory(std::function<void()> changed) : iChanged(std::move(changed)) {}

    QUndoStack& stack() { return iStack; }

    // Forgets everything: the properties are others from now on.
    void reset(std::shared_ptr<FlashTemplate> tmpl);
    // Takes the values as they are for not to be undone.
    void snapshotValues();
    // The user has changed values in one go. The text names it; without one the property does.
    void recordEdits(const QString& text = QString());

private:
    std::shared_ptr<FlashTemplate> iTmpl;
    QHash<FlashTemplateProperty*, QString> iValues;
    std::function<void()> iChanged;
    QUndoStack iStack;
};
