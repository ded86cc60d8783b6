#include "app/desktop/Appearance.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QFontDatabase>
#include <QSettings>

namespace {

const QString settingsKey = QStringLiteral("appearance");

// The desktop portal's settings interface.
const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");
constexpr uint prefersDark = 1;

// A slow desktop portal must not delay the start.
constexpr int portalTimeout = 150; // ms

uint number(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

void setColor(QPalette& palette, QPalette::ColorRole role, const char* normal,
              const char* disabled = nullptr) {
    palette.setColor(role, QColor(QLatin1String(normal)));
    if (disabled)
        palette.setColor(QPalette::Disabled, role, QColor(QLatin1String(disabled)));
}

} // namespace

Appearance::Appearance(QObject* parent) : QObject(parent) {
    iChoice = Choice(QSettings().value(settingsKey, system).toInt());
    QDBusConnection::sessionBus().connect(
        portal, portalPath, portalSettings, QStringLiteral("SettingChanged"), this,
        SLOT(systemSettingChanged(QString, QString, QDBusVariant)));
    readSystemSetting();
    apply();
}

void Appearance::readSystemSetting() {
    iSystemIsDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    if (!QDBusConnection::sessionBus().isConnected())
        return;
    auto question =
        QDBusMessage::createMethodCall(portal, portalPath, portalSettings, QStringLiteral("Read"));
    question << appearanceGroup << colorScheme;
    const auto answer = QDBusConnection::sessionBus().call(question, QDBus::Block, portalTimeout);
    if (answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty())
        iSystemIsDark = number(answer.arguments().first()) == prefersDark;
}

void Appearance::systemSettingChanged(const QString& group, const QString& key,
                                      const QDBusVariant& value) {
    if (group != appearanceGroup || key != colorScheme)
        return;
    iSystemIsDark = number(value.variant()) == prefersDark;
    apply();
}

void Appearance::setChoice(Choice choice) {
    iChoice = choice;
    QSettings().setValue(settingsKey, int(choice));
    apply();
}

void Appearance::apply() const {
    const bool isDark = iChoice == dark || (iChoice == system && iSystemIsDark);
    QApplication::setPalette(palette(isDark));
    qApp->setStyleSheet(styleSheet(isDark));
}

QString Appearance::styleSheet(bool isDark) {
    QFile file(QStringLiteral(":/desktop.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = QString::fromUtf8(file.readAll());
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    sheet.replace(QStringLiteral("@fixedFont"),
                  QStringLiteral("normal %1pt \"%2\"").arg(fixed.pointSize()).arg(fixed.family()));
    const QPalette colors = palette(isDark);
    // Longer names come before names that are their prefix.
    for (const auto& [name, value] : std::initializer_list<std::pair<const char*, QColor>>{
             {"@accentHover", QColor(isDark ? "#3675b8" : "#2767ab")},
             {"@noteGround", noteColors(isDark).ground},
             {"@noteInk", noteColors(isDark).ink},
             {"@noteLine", noteColors(isDark).line},
             {"@onAccent", colors.color(QPalette::HighlightedText)},
             {"@accent", colors.color(QPalette::Highlight)},
             {"@base", colors.color(QPalette::Base)},
             {"@button", colors.color(QPalette::Button)},
             {"@edge", QColor(isDark ? "#5a5f69" : "#b9bec7")},
             {"@faint", QColor(isDark ? "#8b9099" : "#666c76")},
             {"@focus", QColor(isDark ? "#6aa9ec" : "#1f66b3")},
             {"@hover", QColor(isDark ? "#3b3f46" : "#e7e9ed")},
             {"@line", QColor(isDark ? "#3a3d43" : "#d8dbe0")},
             {"@press", QColor(isDark ? "#474b53" : "#dadde3")},
             {"@raised", QColor(isDark ? "#2d3035" : "#ffffff")},
             {"@text", colors.color(QPalette::WindowText)},
             {"@thumb", QColor(isDark ? "#565b64" : "#c0c5cd")},
             {"@window", colors.color(QPalette::Window)}})
        sheet.replace(QLatin1String(name), value.name());
    return sheet;
}

// Amber in both appearances, with readable text.
Appearance::NoteColors Appearance::noteColors(bool isDark) {
    if (isDark)
        return {QColor("#4a3a14"), QColor("#ffe9b8"), QColor("#7a6228")};
    return {QColor("#fff1cc"), QColor("#4a3500"), QColor("#e5c36a")};
}

QPalette Appearance::palette(bool isDark) {
    QPalette palette;
    setColor(palette, QPalette::Window, isDark ? "#26282c" : "#f2f3f5");
    setColor(palette, QPalette::WindowText, isDark ? "#e8e9ec" : "#1f2328",
             isDark ? "#7d828b" : "#8f959e");
    setColor(palette, QPalette::Base, isDark ? "#1d1f22" : "#ffffff");
    setColor(palette, QPalette::AlternateBase, isDark ? "#23252a" : "#f7f8fa");
    setColor(palette, QPalette::Text, isDark ? "#e8e9ec" : "#1f2328",
             isDark ? "#7d828b" : "#8f959e");
    setColor(palette, QPalette::PlaceholderText, isDark ? "#8b9099" : "#666c76");
    setColor(palette, QPalette::Button, isDark ? "#34373d" : "#fbfbfc");
    setColor(palette, QPalette::ButtonText, isDark ? "#e8e9ec" : "#1f2328",
             isDark ? "#7d828b" : "#8f959e");
    setColor(palette, QPalette::BrightText, "#ff5d5d");
    setColor(palette, QPalette::ToolTipBase, isDark ? "#3a3d44" : "#2b2f36");
    setColor(palette, QPalette::ToolTipText, "#f4f5f7");
    setColor(palette, QPalette::Highlight, isDark ? "#2f6fb0" : "#2f74c0",
             isDark ? "#4a4e56" : "#c3c8d0");
    setColor(palette, QPalette::HighlightedText, "#ffffff");
    setColor(palette, QPalette::Link, isDark ? "#7cb3ee" : "#1f64b0");
    setColor(palette, QPalette::LinkVisited, isDark ? "#b9a3ee" : "#6a4bb0");
    setColor(palette, QPalette::Light, isDark ? "#4a4e56" : "#ffffff");
    setColor(palette, QPalette::Midlight, isDark ? "#3d4047" : "#e9ebee");
    setColor(palette, QPalette::Mid, isDark ? "#3a3d43" : "#c9cdd4");
    setColor(palette, QPalette::Dark, isDark ? "#17181b" : "#a4aab3");
    setColor(palette, QPalette::Shadow, "#0b0c0d");
    return palette;
}
