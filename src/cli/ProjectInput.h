#pragma once

#include <QStringList>

struct PublishOptions;

// A project in place of documents.
namespace ProjectInput {

// The options with what a project says where the command line says nothing; unchanged when the
// input is no project. Warns of documents that were changed. Throws CommandError when the project
// can't be read or a file of it is missing.
PublishOptions resolved(const PublishOptions& options);

// The inputs, and the files of a project that can be read.
QStringList filesOf(const PublishOptions& options);

} // namespace ProjectInput
