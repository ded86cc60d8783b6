// folvero-desktop: makes page-flip books from PDF files in a window.

#include "app/desktop/ApplicationSetup.h"

#include <QApplication>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    return runApplication(QApplication::arguments());
}
