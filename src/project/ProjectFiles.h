#pragma once

#include "base/Message.h"
#include "project/Project.h"

#include <QStringList>

// The files that a project names: its documents, and files that values of the template name. They
// are looked for where they were, then at the same place beside the project, then in its folder: a
// project that is moved together with its files finds them.
namespace ProjectFiles {

// What is needed to find that file again; without size and digest when it can't be read.
Project::File describe(const QString& path);

// A project with the paths of the files that were found, and what there is to say about them.
struct Located {
    Project project;
    Messages changed; // files that are used although they are not what they were
    // Those that are nowhere, and where they were looked for.
    Messages missingDocuments;
    Messages missingValues;
};
Located locate(Project project, const QString& projectFolder);

} // namespace ProjectFiles
