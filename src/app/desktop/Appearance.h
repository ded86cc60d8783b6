#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QPalette>

// Light or dark: follows the system's setting, including changes at run time, or the user's choice.
// The choice is kept across runs.
class Appearance : public QObject {
    Q_OBJECT

public:
    // A C function has the name, too. NOLINTNEXTLINE(clang-diagnostic-shadow)
    enum Choice { system = 0, light = 1, dark = 2 };

    explicit Appearance(QObject* parent = nullptr);

    Choice choice() const { return iChoice; }
    void setChoice(Choice choice);

    static QPalette palette(bool isDark);
    // Colours of an error message.
    struct NoteColors {
        QColor ground;
        QColor ink;
        QColor line;
    };
    static NoteColors noteColors(bool isDark);
    // Styles that a palette alone can't express.
    static QString styleSheet(bool isDark);

private Q_SLOTS:
    void systemSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void readSystemSetting();
    void apply() const;

    Choice iChoice = system;
    bool iSystemIsDark = false;
};
