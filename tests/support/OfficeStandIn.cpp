#include "support/OfficeStandIn.h"

#include "support/TemplateLibrary.h"

#include <QFile>

OfficeStandIn::OfficeStandIn() : iPath(qgetenv("PATH")) {
    qputenv("PATH", QFile::encodeName(iFolder.path()));
}

OfficeStandIn::~OfficeStandIn() {
    qputenv("PATH", iPath);
}

void OfficeStandIn::does(const QByteArray& script) const {
    const QString program = iFolder.filePath("soffice");
    QFile::remove(program);
    TestFiles::write(program, "#!/bin/sh\necho >> '" + QFile::encodeName(iFolder.filePath("runs")) +
                                  "'\n" + script + "\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", QFile::encodeName(iFolder.path()) + ":/usr/bin:/bin");
}

int OfficeStandIn::runs() const {
    return int(QFile(iFolder.filePath("runs")).size());
}

void OfficeStandIn::makes(const QString& pdf) const {
    does("while [ $1 != --outdir ]; do shift; done; name=${3##*/}; cp '" + QFile::encodeName(pdf) +
         "' \"$2/${name%.*}.pdf\"");
}
