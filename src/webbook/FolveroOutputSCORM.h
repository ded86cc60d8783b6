#pragma once

#include "webbook/FolveroOutputWeb.h"

// Writes a web book as a course for learning platforms: one file, NAME.zip, in the form of SCORM
// 1.2. The platform learns at which page a reader is, for how long, and whether the end was
// reached.
class FolveroOutputSCORM : public FolveroOutputWeb {
public:
    // toName: of the archive; its extension is replaced.
    FolveroOutputSCORM(std::shared_ptr<FlashPageSource> pageSource,
                       std::shared_ptr<FlashTemplate> flashTemplate, const QString& saveToFolder,
                       const QString& toName);

    QString outputFileName() const override;
    QStringList foreignFiles() const override;

protected:
    WebBook webBook() const override;
    PublishSteps stepsFor(const WebBook& book) override;

private:
    QString iPackageName;
};
