#include "app/desktop/PropertyHistory.h"

#include "ui/TemplateTexts.h"

#include <QCoreApplication>
#include <QUndoCommand>
#include <utility>
#include <vector>

namespace {

void walk(const FlashTemplate::Properties& properties,
          const std::function<void(FlashTemplateProperty&)>& visit) {
    for (const auto& property : properties) {
        visit(*property);
        walk(property->childProperties(), visit);
    }
}

struct Change {
    FlashTemplateProperty* property;
    QString before;
    QString after;
};

class ChangeValues : public QUndoCommand {
public:
    ChangeValues(std::vector<Change> changes, const QString& text, std::function<void()> done)
        : QUndoCommand(text), iChanges(std::move(changes)), iDone(std::move(done)) {}

    void undo() override {
        for (const Change& change : iChanges)
            change.property->setValue(change.before);
        iDone();
    }
    // The edit has already been made when the command is pushed.
    void redo() override {
        if (std::exchange(iIsMade, false))
            return;
        for (const Change& change : iChanges)
            change.property->setValue(change.after);
        iDone();
    }

private:
    std::vector<Change> iChanges;
    std::function<void()> iDone;
    bool iIsMade = true;
};

} // namespace

void PropertyHistory::reset(std::shared_ptr<FlashTemplate> tmpl) {
    iStack.clear();
    iTmpl = std::move(tmpl);
    snapshotValues();
}

void PropertyHistory::snapshotValues() {
    iValues.clear();
    if (iTmpl)
        walk(iTmpl->properties(),
             [this](FlashTemplateProperty& property) { iValues[&property] = property.value(); });
}

void PropertyHistory::recordEdits(const QString& text) {
    std::vector<Change> changes;
    if (iTmpl)
        walk(iTmpl->properties(), [this, &changes](FlashTemplateProperty& property) {
            const QString before = iValues.value(&property);
            if (before != property.value())
                changes.push_back({&property, before, property.value()});
        });
    if (changes.empty())
        return;
    snapshotValues();
    //: A setting's name in quotation marks; stands in "Undo %1".
    const QString quoted = QCoreApplication::translate("PropertyHistory", "“%1”");
    const QString name =
        text.isNull() ? quoted.arg(TemplateTexts::shown(changes.front().property->title())) : text;
    iStack.push(new ChangeValues(std::move(changes), name, [this] {
        snapshotValues();
        iChanged();
    }));
}
