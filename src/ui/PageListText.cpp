#include "ui/PageListText.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

constexpr qsizetype maxParts = 5;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PageListText)
};

} // namespace

QString PageListText::of(const std::vector<int>& pages) {
    QStringList parts;
    std::size_t next = 0;
    while (next < pages.size() && parts.size() < maxParts) {
        const std::size_t first = next++;
        while (next < pages.size() && pages[next] == pages[next - 1] + 1)
            ++next;
        const QString from = QString::number(pages[first]);
        const QString to = QString::number(pages[next - 1]);
        //: A run of page numbers.
        parts << (next - first > 1 ? Texts::tr("%1 to %2").arg(from, to) : from);
    }
    const QString shown = parts.join(QStringLiteral(", "));
    if (next == pages.size())
        return shown;
    //: Follows page numbers.
    return shown + u' ' + Texts::tr("and %n more", nullptr, int(pages.size() - next));
}
