#pragma once

#include <QLineEdit>
#include <QValidator>

class FlashTemplateProperty;

// What may be typed for a setting of that kind. A comma in a number becomes a point, and a number
// out of range the nearest in it.
class ValueValidator : public QValidator {
    Q_OBJECT

public:
    ValueValidator(const FlashTemplateProperty& property, QObject* parent);

    State validate(QString& input, int& position) const override;
    void fixup(QString& input) const override;

private:
    State validateNumber(QString& input) const;
    State validateColor(const QString& input) const;

    int iType;
    QString iStored; // always accepted
    double iLeast;
    double iMost;
};

// Edits the value of a setting as text. Marks a text that is not accepted and explains what is.
class ValueEditor : public QLineEdit {
    Q_OBJECT

public:
    ValueEditor(const FlashTemplateProperty& property, QWidget* parent);

    // As it is stored: a colour in the notation of templates.
    QString value() const;
    // Mends the text if possible. False, with an explanation, where it can't be stored.
    bool isReady();

    // What a setting's value may be, or what is wrong with it; empty where there is nothing to say.
    static QString hint(const FlashTemplateProperty& property);

private:
    void showState();
    void explain();

    int iType;
    QString iStored;
};
