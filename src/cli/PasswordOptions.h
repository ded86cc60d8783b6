#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// Where a command finds the password of its document: never in its arguments, which others see.
struct PasswordOptions {
    bool ask = false;       // on the terminal
    QString file;           // its first line; null for none
    QByteArray environment; // what FOLVERO_PASSWORD held

    // Removes the variable, which the processes that this one starts would inherit.
    void takeEnvironment();
    // Sets it again, for programs that are to have the password.
    void giveEnvironment() const;

    bool isGiven() const { return ask || !file.isNull() || !environment.isEmpty(); }
    // In UTF-8; empty for none. Asks or reads once and keeps it. Throws CommandError.
    QByteArray password() const;

private:
    mutable std::optional<QByteArray> iPassword;
};
