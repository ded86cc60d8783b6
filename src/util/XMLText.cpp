#include "util/XMLText.h"

namespace {

class TextCollector : public pugi::xml_tree_walker {
public:
    bool for_each(pugi::xml_node& node) override {
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
            iText += node.value();
        return true;
    }
    const std::string& text() const { return iText; }

private:
    std::string iText;
};

} // namespace

QString XMLText::textOf(const pugi::xml_node& element) {
    TextCollector collector;
    pugi::xml_node start = element;
    start.traverse(collector);
    return QString::fromStdString(collector.text());
}
