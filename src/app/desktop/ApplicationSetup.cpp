#include "app/desktop/ApplicationSetup.h"

#include "app/desktop/BrisleafAppDelegate.h"
#include "app/desktop/LinedStyle.h"
#include "app/desktop/Translations.h"
#include "platform/Bundle.h"

#include <QApplication>
#include <QIcon>

void setUpApplication(const QStringList& languages) {
    QCoreApplication::setOrganizationName(QStringLiteral("Folvero"));
    QCoreApplication::setApplicationName(QString::fromUtf16(APP_NAME));
    QCoreApplication::setApplicationVersion(Bundle::version());
    QGuiApplication::setDesktopFileName(QStringLiteral("folvero"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/folvero.svg")));
    QApplication::setStyle(new LinedStyle);
    Translations::install(languages);
}
