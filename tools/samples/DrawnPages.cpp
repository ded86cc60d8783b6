#include "DrawnPages.h"

#include <QPageSize>
#include <QRegularExpression>
#include <algorithm>
#include <map>

namespace {

// The objects of a file as QPdfWriter writes it: one plain cross-reference table, every object
// begun by "N 0 obj" on a line of its own.
std::map<int, QByteArray> objectsOf(const QByteArray& file) {
    const qsizetype table = file.lastIndexOf("\nxref\n") + 1;
    const QList<QByteArray> lines = file.mid(table).split('\n');
    const int count = lines[1].split(' ').at(1).toInt();
    std::map<qsizetype, int> starts;
    for (int object = 1; object < count; ++object)
        if (lines[2 + object].contains(" n"))
            starts[lines[2 + object].left(10).toLongLong()] = object;
    std::map<int, QByteArray> objects;
    for (auto start = starts.begin(); start != starts.end(); ++start) {
        const auto next = std::next(start);
        const qsizetype end = next == starts.end() ? table : next->first;
        const qsizetype body = file.indexOf('\n', start->first) + 1;
        objects[start->second] = file.mid(body, file.lastIndexOf("endobj", end) - body);
    }
    return objects;
}

// Copies objects from one file into another under new numbers.
class ObjectCopier {
public:
    ObjectCopier(PDFBuilder& pdf, const std::map<int, QByteArray>& objects) : iPdf(pdf) {
        for (const auto& [number, body] : objects)
            iNumbers[number] = pdf.reserveObject();
    }

    void copy(int number, const QByteArray& body) {
        static const QByteArray streamMark = "stream\n";
        const qsizetype stream = body.indexOf(streamMark);
        if (stream < 0) {
            iPdf.setObject(iNumbers.at(number), renumbered(body));
            return;
        }
        const qsizetype begin = stream + streamMark.size();
        const qsizetype end = body.lastIndexOf("\nendstream");
        iPdf.setRawStream(iNumbers.at(number), renumbered(body.left(stream)),
                          body.mid(begin, end - begin));
    }

    QByteArray renumbered(const QByteArray& body) const {
        static const QRegularExpression reference(QStringLiteral("\\b(\\d+) 0 R\\b"));
        const QString text = QString::fromLatin1(body);
        QString result;
        qsizetype copied = 0;
        for (auto found = reference.globalMatch(text); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            result += text.mid(copied, match.capturedStart() - copied);
            const auto number = iNumbers.find(match.captured(1).toInt());
            result += QString::number(number == iNumbers.end() ? 0 : number->second) +
                      QStringLiteral(" 0 R");
            copied = match.capturedEnd();
        }
        return (result + text.mid(copied)).toLatin1();
    }

private:
    PDFBuilder& iPdf;
    std::map<int, int> iNumbers;
};

bool isDocumentLevel(const QByteArray& body) {
    return body.contains("/Type /Catalog\n") || body.contains("/Type /Pages\n") ||
           body.contains("/CreationDate ");
}

// The entries of a page's dictionary that stay true in another document.
QByteArray pageEntries(const QByteArray& body) {
    QByteArray result;
    for (const QByteArray& line : body.split('\n')) {
        const bool dropped = line == "<<" || line == ">>" || line.startsWith("/Type") ||
                             line.startsWith("/Parent") || line.startsWith("/Annots");
        if (!dropped)
            result += line + '\n';
    }
    return result;
}

} // namespace

DrawnPages::DrawnPages(PDFBuilder& pdf, QSizeF pageSize)
    : iPdf(pdf), iSize(pageSize), iWriter(&iFile), iAnnotations(1) {
    iFile.open(QIODevice::WriteOnly);
    iWriter.setPageSize(QPageSize(pageSize, QPageSize::Point, QString(), QPageSize::ExactMatch));
    iWriter.setPageMargins(QMarginsF());
    iWriter.setResolution(72); // so that a unit is a point
    iPainter.begin(&iWriter);
}

void DrawnPages::nextPage() {
    iWriter.newPage();
    iAnnotations.emplace_back();
}

void DrawnPages::drawEach(const std::vector<std::function<void(QPainter&)>>& drawings) {
    bool first = true;
    for (const auto& draw : drawings) {
        if (!first)
            nextPage();
        first = false;
        iPainter.save();
        iPainter.setRenderHint(QPainter::Antialiasing);
        draw(iPainter);
        iPainter.restore();
    }
}

void DrawnPages::addLink(const QRectF& area, const QByteArray& target) {
    const QRectF rect(area.x(), iSize.height() - area.bottom(), area.width(), area.height());
    iAnnotations.back().push_back(PDFBuilder::link(rect, target));
}

void DrawnPages::finish() {
    iPainter.end();
    const std::map<int, QByteArray> objects = objectsOf(iFile.data());
    ObjectCopier copier(iPdf, objects);
    size_t pageIndex = 0;
    for (const auto& [number, body] : objects) {
        if (isDocumentLevel(body))
            continue;
        if (!body.contains("/Type /Page\n")) {
            copier.copy(number, body);
            continue;
        }
        PDFBuilder::Page page;
        page.annotations = iAnnotations.at(pageIndex++);
        page.extraEntries = copier.renumbered(pageEntries(body));
        iPdf.addPage(page);
    }
}
