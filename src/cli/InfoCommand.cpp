#include "cli/InfoCommand.h"

#include "base/PlatformException.h"
#include "cli/InputFile.h"
#include "cli/ProjectInfo.h"
#include "console/Terminal.h"
#include "pdf/AnnotationBudget.h"
#include "project/ProjectFile.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct PageInfo {
    QSizeF size; // points, as displayed
    int rotation = 0;
    std::vector<PDFAnnotation> links; // those with a target
    QString error;

    bool looksLike(const PageInfo& other) const {
        return size == other.size && rotation == other.rotation && error == other.error;
    }
};

PageInfo infoOf(const PDFDocument& document, int index, AnnotationBudget& budget) {
    PageInfo facts;
    try {
        const PDFPage page = document.page(index);
        facts.size = page.displaySize();
        facts.rotation = page.rotation;
        if (budget.isSpent())
            return facts;
        auto annotations = document.annotations(index);
        budget.spend(annotations);
        for (auto& annotation : annotations) {
            if (annotation.type == QStringLiteral("Link") &&
                (!annotation.url.isNull() || annotation.destinationPage))
                facts.links.push_back(std::move(annotation));
        }
    } catch (const PlatformException& failure) {
        facts.error = failure.reason();
    }
    return facts;
}

QJsonObject linkAsJson(const PDFAnnotation& link) {
    QJsonObject object{{QStringLiteral("x"), link.bounds.x()},
                       {QStringLiteral("y"), link.bounds.y()},
                       {QStringLiteral("width"), link.bounds.width()},
                       {QStringLiteral("height"), link.bounds.height()}};
    if (!link.url.isNull())
        object[QStringLiteral("url")] = link.url;
    else
        object[QStringLiteral("page")] = *link.destinationPage + 1;
    return object;
}

QJsonArray outlineAsJson(const std::vector<PDFOutlineNode>& nodes) {
    QJsonArray array;
    for (const PDFOutlineNode& node : nodes) {
        QJsonObject object{{QStringLiteral("title"), node.label}};
        if (node.destinationPage >= 0)
            object[QStringLiteral("page")] = node.destinationPage + 1;
        if (!node.children.empty())
            object[QStringLiteral("children")] = outlineAsJson(node.children);
        array.append(object);
    }
    return array;
}

void printAsJson(const PDFDocument& document) {
    QJsonArray pages;
    AnnotationBudget budget;
    for (int i = 0; i < document.pageCount(); ++i) {
        const PageInfo facts = infoOf(document, i, budget);
        QJsonObject page{{QStringLiteral("number"), i + 1}};
        if (facts.error.isNull()) {
            page[QStringLiteral("width")] = facts.size.width();
            page[QStringLiteral("height")] = facts.size.height();
            page[QStringLiteral("rotation")] = facts.rotation;
        } else {
            page[QStringLiteral("error")] = facts.error;
        }
        QJsonArray links;
        for (const PDFAnnotation& link : facts.links)
            links.append(linkAsJson(link));
        page[QStringLiteral("links")] = links;
        pages.append(page);
    }
    const QJsonObject object{{QStringLiteral("title"), document.information("Title")},
                             {QStringLiteral("pageCount"), document.pageCount()},
                             {QStringLiteral("pages"), pages},
                             {QStringLiteral("outline"), outlineAsJson(document.outline())}};
    Terminal::print(QString::fromUtf8(QJsonDocument(object).toJson()).trimmed());
}

void printRun(int first, int last, const PageInfo& facts, std::size_t links) {
    const QString pages = first == last ? QStringLiteral("Page %1").arg(first)
                                        : QStringLiteral("Pages %1-%2").arg(first).arg(last);
    if (!facts.error.isNull()) {
        Terminal::print(QStringLiteral("%1: can't be read (%2)").arg(pages, facts.error));
        return;
    }
    QString line = QStringLiteral("%1: %2 x %3 points")
                       .arg(pages)
                       .arg(facts.size.width())
                       .arg(facts.size.height());
    if (facts.rotation != 0)
        line += QStringLiteral(", rotated by %1").arg(facts.rotation);
    if (links != 0)
        line += QStringLiteral(", %1 %2").arg(links).arg(links == 1 ? QStringLiteral("link")
                                                                    : QStringLiteral("links"));
    Terminal::print(line);
}

void printPages(const PDFDocument& document) {
    PageInfo current;
    int first = 0;
    std::size_t links = 0;
    AnnotationBudget budget;
    for (int i = 0; i < document.pageCount(); ++i) {
        PageInfo facts = infoOf(document, i, budget);
        if (i > 0 && !facts.looksLike(current)) {
            printRun(first + 1, i, current, links);
            first = i;
            links = 0;
        }
        links += facts.links.size();
        current = std::move(facts);
    }
    if (document.pageCount() > 0)
        printRun(first + 1, document.pageCount(), current, links);
}

void printOutline(const std::vector<PDFOutlineNode>& nodes, int depth) {
    for (const PDFOutlineNode& node : nodes) {
        const QString page = node.destinationPage < 0
                                 ? QString()
                                 : QStringLiteral(" (page %1)").arg(node.destinationPage + 1);
        Terminal::print(QString(qsizetype{2} * depth, u' ') + node.label + page);
        printOutline(node.children, depth + 1);
    }
}

} // namespace

void runInfo(const QString& pdf, const QByteArray& password, bool json) {
    if (ProjectFile::isProject(pdf) && QFileInfo(pdf).isFile()) {
        runProjectInfo(pdf, json);
        return;
    }
    const auto document = InputFile::open(pdf, password);
    if (json) {
        printAsJson(*document);
        return;
    }
    const QString title = document->information("Title");
    if (!title.isEmpty())
        Terminal::print(QStringLiteral("Title: %1").arg(title));
    Terminal::print(QStringLiteral("Pages: %1").arg(document->pageCount()));
    printPages(*document);
    const auto outline = document->outline();
    if (!outline.empty()) {
        Terminal::print(QStringLiteral("Outline:"));
        printOutline(outline, 1);
    }
}
