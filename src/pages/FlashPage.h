#pragma once

#include <QString>
#include <memory>

// One page file of a book and its one-based page number: the number in the PDF for pages of a PDF,
// the order of adding for pages made from image files.
class FlashPage {
public:
    virtual ~FlashPage() = default;

    const QString& pageFilePath() const { return iPageFilePath; }
    void setPageFilePath(const QString& path) { iPageFilePath = path; }
    int pageIndex() const { return iPageIndex; }
    void setPageIndex(int index) { iPageIndex = index; }

    // A new page of the same class for the same file. Both arguments are ignored: a copy is never
    // resized or encoded again.
    virtual std::shared_ptr<FlashPage> copyPage(int page, int quality) const;

private:
    QString iPageFilePath;
    int iPageIndex = 0;
};
