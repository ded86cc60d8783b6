#pragma once

#include "template/FlashTemplate.h"

#include <QHash>
#include <QStringList>
#include <QUndoStack>
#include <functional>
#include <memory>
#include <vector>

// Undo history of a template's values, and of the choice of template and style. It is notified
// after an edit and keeps a copy of the values to know the earlier ones.
class PropertyHistory {
public:
    struct Observers {
        // An undo or redo has changed values of the current template.
        std::function<void()> valuesChanged;
        // A template and a style were loaded; the values are still all theirs.
        std::function<void()> templateLoaded;
        // An undo or redo has changed the template or the style; all properties are new.
        std::function<void()> templateChanged;
    };
    explicit PropertyHistory(Observers observers) : iObservers(std::move(observers)) {}

    QUndoStack& stack() { return iStack; }

    // Clears the history for another template.
    void reset(std::shared_ptr<FlashTemplate> tmpl);
    // Takes what has changed since the last call as the document's, not to be undone.
    void snapshotValues();
    // Records the user's changes since the last call as one undo step. text names it; by default
    // the property does.
    void recordEdits(const QString& text = QString());
    // The same for a look: its values are no edits, so another look replaces them.
    void recordLook(const QString& text);
    // Changes template and style as one undo step. Edits are kept where the new template has the
    // same setting and allows the value.
    void changeTemplate(const QString& name, const QString& stylePath, const QString& text);
    // The style in use was renamed, or deleted: the path is null then.
    void setStylePath(const QString& path) { iStylePath = path; }
    // Whether the user has given the property with that key another value.
    bool isEdited(const QString& key) const { return edits().contains(key); }

private:
    class Step;

    // The values are in tree order, which is the same whenever a template is loaded.
    struct State {
        QString tmplName;
        QString stylePath; // null without a style
        QStringList values;
        QStringList ownValues; // those without the user's edits
    };
    struct Edit {
        int type = pt_text;
        QString value;
    };

    State state() const { return {iTmpl->tmplName(), iStylePath, iValues, iOwnValues}; }
    void apply(const State& from, const State& to);
    void load(const QString& name, const QString& stylePath);
    // Of the user, by key. Without the page size, which is the document's.
    QHash<QString, Edit> edits() const;
    void push(State before, const QString& text);
    // Named after the first setting in which they differ; null for no difference.
    QString nameOfChange(const QStringList& before) const;

    std::shared_ptr<FlashTemplate> iTmpl;
    QString iStylePath;
    QStringList iValues;
    QStringList iOwnValues;
    Observers iObservers;
    QUndoStack iStack;
};
