#pragma once

#include <QObject>

class QFileDialog;
class QLabel;

// Shows the picture that is selected in a file panel, beside its list. Panels of the system are
// left as they are: they have a preview of their own.
class FilePreview : public QObject {
    Q_OBJECT

public:
    explicit FilePreview(QFileDialog& panel);

private:
    void show(const QString& file);

    QLabel* iPicture = nullptr;
};
