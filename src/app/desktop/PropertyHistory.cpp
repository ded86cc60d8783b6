#include "app/desktop/PropertyHistory.h"

#include "ui/TemplateTexts.h"

#include <QCoreApplication>
#include <QUndoCommand>
#include <algorithm>
#include <utility>

namespace {

using Nodes = std::vector<FlashTemplateProperty*>;

// The document's, whatever template is chosen.
const QStringList pageSizeKeys{QStringLiteral("pageWidth"), QStringLiteral("pageHeight")};

void append(Nodes& all, const FlashTemplate::Properties& properties) {
    for (const auto& property : properties) {
        all.push_back(property.get());
        append(all, property->childProperties());
    }
}

// In tree order.
Nodes nodesOf(const FlashTemplate* tmpl) {
    Nodes all;
    if (tmpl)
        append(all, tmpl->properties());
    return all;
}

QStringList valuesOf(const FlashTemplate* tmpl) {
    QStringList values;
    for (const auto* node : nodesOf(tmpl))
        values << node->value();
    return values;
}

// Calls back with each place where the lists differ; a damaged template may have lost its end.
template <typename Visit>
void forEachDifference(const QStringList& before, const QStringList& after, Visit visit) {
    for (qsizetype at = 0; at < std::min(before.size(), after.size()); ++at) {
        if (before[at] != after[at])
            visit(at);
    }
}

void replaceDifferences(QStringList& values, const QStringList& before, const QStringList& after) {
    forEachDifference(before, after, [&](qsizetype at) {
        if (at < values.size())
            values[at] = after[at];
    });
}

void setValues(const Nodes& nodes, const QStringList& values) {
    for (std::size_t at = 0; at < std::min(nodes.size(), std::size_t(values.size())); ++at)
        nodes[at]->setValue(values[qsizetype(at)]);
}

} // namespace

class PropertyHistory::Step : public QUndoCommand {
public:
    Step(PropertyHistory& history, State before, State after, const QString& text)
        : QUndoCommand(text),
          iHistory(history),
          iBefore(std::move(before)),
          iAfter(std::move(after)) {}

    void undo() override { iHistory.apply(iAfter, iBefore); }
    // It has already been made when the command is pushed.
    void redo() override {
        if (!std::exchange(iIsMade, false))
            iHistory.apply(iBefore, iAfter);
    }

private:
    PropertyHistory& iHistory;
    State iBefore;
    State iAfter;
    bool iIsMade = true;
};

void PropertyHistory::reset(std::shared_ptr<FlashTemplate> tmpl) {
    iStack.clear();
    iTmpl = std::move(tmpl);
    iStylePath = iTmpl && !iTmpl->styleName().isEmpty()
                     ? FlashTemplate::styleFolder(iTmpl->tmplName(), iTmpl->styleName())
                     : QString();
    iValues = iOwnValues = valuesOf(iTmpl.get());
}

void PropertyHistory::snapshotValues() {
    const QStringList now = valuesOf(iTmpl.get());
    replaceDifferences(iOwnValues, iValues, now);
    iValues = now;
}

void PropertyHistory::recordEdits(const QString& text) {
    const QString name = nameOfChange(iValues);
    if (name.isNull())
        return;
    State before = state();
    iValues = valuesOf(iTmpl.get());
    push(std::move(before), text.isNull() ? name : text);
}

void PropertyHistory::recordLook(const QString& text) {
    if (nameOfChange(iValues).isNull())
        return;
    State before = state();
    snapshotValues();
    push(std::move(before), text);
}

void PropertyHistory::changeTemplate(const QString& name, const QString& stylePath,
                                     const QString& text) {
    State before = state();
    QHash<QString, Edit> kept = edits();
    load(name, stylePath);
    iOwnValues = valuesOf(iTmpl.get());
    for (auto* node : nodesOf(iTmpl.get())) {
        const Edit edit = kept.take(node->key());
        const bool isAllowed =
            edit.type == node->propertyType() && !edit.value.isNull() &&
            (edit.type != pt_list || node->valueSource().split(u',').contains(edit.value));
        if (isAllowed)
            node->setValue(edit.value);
    }
    iValues = valuesOf(iTmpl.get());
    push(std::move(before), text);
}

QHash<QString, PropertyHistory::Edit> PropertyHistory::edits() const {
    QHash<QString, Edit> edits;
    const Nodes nodes = nodesOf(iTmpl.get());
    forEachDifference(iOwnValues, iValues, [&](qsizetype at) {
        const FlashTemplateProperty& node = *nodes[std::size_t(at)];
        if (!pageSizeKeys.contains(node.key()))
            edits.insert(node.key(), {node.propertyType(), node.value()});
    });
    return edits;
}

void PropertyHistory::push(State before, const QString& text) {
    iStack.push(new Step(*this, std::move(before), state(), text));
}

QString PropertyHistory::nameOfChange(const QStringList& before) const {
    const Nodes nodes = nodesOf(iTmpl.get());
    QString name;
    forEachDifference(before, valuesOf(iTmpl.get()), [&](qsizetype at) {
        //: A setting's name in quotation marks; stands in "Undo %1".
        const QString quoted = QCoreApplication::translate("PropertyHistory", "“%1”");
        if (name.isNull())
            name = quoted.arg(TemplateTexts::shown(nodes[std::size_t(at)]->title()));
    });
    return name;
}

void PropertyHistory::load(const QString& name, const QString& stylePath) {
    if (stylePath.isNull()) {
        iTmpl->loadTemplate(name);
        iTmpl->setStyleName({});
    } else {
        iTmpl->changeTmplTo(name, stylePath);
    }
    iStylePath = stylePath;
    iObservers.templateLoaded();
}

// Within one template only what differs is set: the document may have changed other values since.
void PropertyHistory::apply(const State& from, const State& to) {
    const bool isReloaded = from.tmplName != to.tmplName || from.stylePath != to.stylePath;
    if (isReloaded) {
        QHash<QString, QString> pageSize;
        for (const QString& key : pageSizeKeys)
            pageSize[key] = iTmpl->propertyValueFor(key, {});
        load(to.tmplName, to.stylePath);
        setValues(nodesOf(iTmpl.get()), to.values);
        for (const QString& key : pageSizeKeys)
            iTmpl->setPropertyValue(key, pageSize[key]);
        iOwnValues = to.ownValues;
    } else {
        QStringList values = valuesOf(iTmpl.get());
        replaceDifferences(values, from.values, to.values);
        setValues(nodesOf(iTmpl.get()), values);
        replaceDifferences(iOwnValues, from.ownValues, to.ownValues);
    }
    iValues = valuesOf(iTmpl.get());
    isReloaded ? iObservers.templateChanged() : iObservers.valuesChanged();
}
