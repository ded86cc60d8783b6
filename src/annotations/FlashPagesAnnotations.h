#pragma once

#include <QStringList>
#include <pugixml.hpp>

// The links of a book's pages, as the XML element "pagesAnnos", and the files that they need.
class FlashPagesAnnotations {
public:
    FlashPagesAnnotations() = default;
    virtual ~FlashPagesAnnotations() = default;
    FlashPagesAnnotations(const FlashPagesAnnotations&) = delete;
    FlashPagesAnnotations& operator=(const FlashPagesAnnotations&) = delete;

    // Full paths of files that the publisher copies with the book.
    const QStringList& needFiles() const { return iNeedFiles; }
    void setNeedFiles(const QStringList& files) { iNeedFiles = files; }

    // The root element, owned by this object; an empty node until links were read or set.
    pugi::xml_node pagesAnnotationsNode() const { return iDocument.document_element(); }
    // Copies the element.
    void setPagesAnnotationsNode(const pugi::xml_node& element);

protected:
    QStringList iNeedFiles;
    pugi::xml_document iDocument;
};
