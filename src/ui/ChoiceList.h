#pragma once

#include <QWidget>

class QButtonGroup;
class QVBoxLayout;

// Radio buttons one beneath the other, each with a line that says what it is for.
class ChoiceList : public QWidget {
    Q_OBJECT

public:
    explicit ChoiceList(QWidget* parent = nullptr);

    QButtonGroup* group;

    void add(int id, const QString& name, const QString& purpose);

private:
    QVBoxLayout* iLayout;
};
