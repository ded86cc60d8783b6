// folvero-desktop: makes page-flip books from PDF files in a window.

#include "app/desktop/ApplicationSetup.h"
#include "system/NameAliases.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    QStringList arguments = QApplication::arguments();
    // The document may have a name that is not UTF-8; Qt has removed its own options from argv.
    for (int i = 1; i < argc && i < arguments.size(); ++i) {
        if (!QByteArrayView(argv[i]).isValidUtf8())
            arguments[i] = NameAliases::decoded(argv[i]);
    }
    return runApplication(arguments);
}
