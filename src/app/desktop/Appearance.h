#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QPalette>

// Light or dark: as the system has it, also when that changes while the program runs, or as the
// user has chosen. The choice is kept across runs.
class Appearance : public QObject {
    Q_OBJECT

public:
    enum Choice { system = 0, light = 1, dark = 2 };

    explicit Appearance(QObject* parent = nullptr);

    Choice choice() const { return iChoice; }
    void setChoice(Choice choice);

    static QPalette palette(bool isDark);
    // Those of a message that something has gone wrong.
    struct NoteColors {
        QColor ground;
        QColor ink;
        QColor line;
    };
    static NoteColors noteColors(bool isDark);
    // The look of the parts that a palette alone does not settle.
    static QString styleSheet(bool isDark);

private Q_SLOTS:
    void systemSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void readSystemSetting();
    void apply() const;

    Choice iChoice = system;
    bool iSystemIsDark = false;
};
