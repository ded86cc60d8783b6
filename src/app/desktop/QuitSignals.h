#pragma once

#include <QObject>

// Emits requested() on SIGTERM and the like, so that the program can exit cleanly.
class QuitSignals : public QObject {
    Q_OBJECT

public:
    explicit QuitSignals(QObject* parent = nullptr);

Q_SIGNALS:
    void requested();
};
