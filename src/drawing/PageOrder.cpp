#include "drawing/PageOrder.h"

#include <QByteArrayList>

namespace {

using Part = PageCut::Part;

constexpr const char* partNames[] = {"whole", "left", "right"};

} // namespace

// "N", "N web", "N text", and where the book's numbers are not the document's "... of INDEX PART".
QByteArray PageOrder::line() const {
    QByteArray line = QByteArray::number(page);
    if (wanted == PageFiles::web)
        line += " web";
    else if (wanted == PageFiles::text)
        line += " text";
    if (cut.part != Part::whole || cut.index != page - 1)
        line += " of " + QByteArray::number(cut.index) + ' ' + partNames[int(cut.part)];
    return line;
}

PageOrder PageOrder::fromLine(const QByteArray& line) {
    const QByteArrayList words = line.split(' ');
    PageOrder order{words[0].toInt(), words[0].toInt() - 1};
    if (words.contains("web"))
        order.wanted = PageFiles::web;
    else if (words.contains("text"))
        order.wanted = PageFiles::text;
    if (const qsizetype of = words.indexOf("of"); of > 0) {
        order.cut.index = words.value(of + 1).toInt();
        for (const Part part : {Part::left, Part::right}) {
            if (words.value(of + 2) == partNames[int(part)])
                order.cut.part = part;
        }
    }
    return order;
}
