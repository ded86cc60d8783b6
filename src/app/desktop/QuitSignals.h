#pragma once

#include <QObject>

// Lets the program end in good order when the system or a terminal asks it to.
class QuitSignals : public QObject {
    Q_OBJECT

public:
    explicit QuitSignals(QObject* parent = nullptr);

Q_SIGNALS:
    void requested();
};
