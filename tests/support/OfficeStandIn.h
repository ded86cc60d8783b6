#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

// In place of LibreOffice, for as long as it exists: none is installed, until it does something.
class OfficeStandIn {
public:
    OfficeStandIn();
    ~OfficeStandIn();
    OfficeStandIn(const OfficeStandIn&) = delete;
    OfficeStandIn& operator=(const OfficeStandIn&) = delete;

    // The program is that script of the shell.
    void does(const QByteArray& script) const;
    // It turns every document into that PDF.
    void makes(const QString& pdf) const;
    // How often it was started.
    int runs() const;

private:
    QTemporaryDir iFolder;
    QByteArray iPath;
};
