#pragma once

#include "project/MergedDocument.h"

#include <QStringList>
#include <memory>

struct PublishOptions;

// Several documents and pictures as one document.
namespace MergedInput {

// The files of the inputs, those of a folder by name, when they have to be merged: when there are
// several, or the only one is no PDF, or pages of it are chosen one by one. Empty for one
// document. Throws CommandError for a folder without any.
QStringList files(const PublishOptions& options);

// Null for one document. Throws CommandError, also when a file is changed meanwhile.
std::unique_ptr<MergedDocument> of(const PublishOptions& options);

} // namespace MergedInput
