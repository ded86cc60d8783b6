#pragma once

#include "output/FolveroOutput.h"

// Writes a book as an application for the Mac: a bundle made from the application shell among the
// program's resources, with the book in its resource folder.
//
// A run replaces an earlier bundle of the same name as a whole, at its end, or not at all.
class FolveroOutputApp : public FolveroOutput {
public:
    FolveroOutputApp() = default;
    // The bundle lies in the folder and has the name with the extension "app" in place of its own.
    FolveroOutputApp(std::shared_ptr<FlashPageSource> pageSource,
                     std::shared_ptr<FlashTemplate> flashTemplate, const QString& saveToFolder,
                     const QString& toName);

    // Makes the folder when it is missing.
    void ouputTheBook() override;
    // The bundle, unless it is that of a book.
    QStringList foreignFiles() const override;

    QString outputHTMLFileName() const override;
    // Path of the bundle.
    QString outputFileName() const override;

private:
    void publishInto(const QString& bundle);
};
