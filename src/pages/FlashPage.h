#pragma once

#include <QString>
#include <memory>

// A page file of a book with its one-based page number: the number in the PDF, or the order of
// adding for pages made from image files.
class FlashPage {
public:
    virtual ~FlashPage() = default;

    const QString& pageFilePath() const { return iPageFilePath; }
    void setPageFilePath(const QString& path) { iPageFilePath = path; }
    int pageIndex() const { return iPageIndex; }
    void setPageIndex(int index) { iPageIndex = index; }

    // Returns a new page of the same class for the same file. Both arguments are ignored: a copy is
    // never resized or re-encoded.
    virtual std::shared_ptr<FlashPage> copyPage(int page, int quality) const;

private:
    QString iPageFilePath;
    int iPageIndex = 0;
};
