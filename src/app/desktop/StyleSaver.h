#pragma once

#include <QObject>
#include <QStringList>
#include <functional>

class FlashTemplate;
class MainWindow;
class NameWindow;

// Saves the settings of the book as a style of the user's own, with the preview as its picture.
class StyleSaver : public QObject {
    Q_OBJECT

public:
    struct Program {
        MainWindow& window;
        std::function<const FlashTemplate&()> flashTmpl;
        // Keys of values that belong to the document and not to its look.
        std::function<QStringList()> leftOut;
        // Gives the book the style that was saved.
        std::function<void(const QString& stylePath)> choose;
        // Whether to replace a style of the same name.
        std::function<bool(const QString& message, const QString& information)> replace;
    };
    explicit StyleSaver(Program program);

    // Asks for the name.
    void begin();
    NameWindow& nameWindow() const { return *iNameWindow; }

private:
    QString save(const QString& name) const;
    QByteArray picture() const;

    Program iProgram;
    NameWindow* iNameWindow;
};
