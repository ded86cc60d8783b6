#include "ui/ValueEditor.h"

#include "template/FlashTemplateProperty.h"
#include "template/NumberRange.h"
#include "ui/FlashTmplFileCell.h"
#include "ui/PlainText.h"
#include "ui/TemplateTexts.h"
#include "util/ColorCategory.h"

#include <QRegularExpression>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

ValueValidator::ValueValidator(const FlashTemplateProperty& property, QObject* parent)
    : QValidator(parent), iType(property.propertyType()), iStored(property.value()) {
    const NumberRange range = NumberRange::of(property);
    iLeast = range.least;
    iMost = range.most;
}

QValidator::State ValueValidator::validate(QString& input, int& /*position*/) const {
    if (input == iStored)
        return Acceptable;
    if (iType == pt_number)
        return validateNumber(input);
    return iType == pt_color ? validateColor(input) : Acceptable;
}

// Players expect a decimal point, whatever the user's locale.
QValidator::State ValueValidator::validateNumber(QString& input) const {
    static const QRegularExpression form(QStringLiteral("^[+-]?[0-9]*\\.?[0-9]*$"));
    input.replace(u',', u'.');
    const bool isSigned = input.startsWith(u'-');
    if (!form.match(input).hasMatch() || (isSigned && iLeast >= 0))
        return Invalid;
    bool isNumber = false;
    const double number = input.toDouble(&isNumber);
    return isNumber && number >= iLeast && number <= iMost ? Acceptable : Intermediate;
}

QValidator::State ValueValidator::validateColor(const QString& input) const {
    static const QRegularExpression beginning(QStringLiteral("^(0x?|#)?[0-9a-f]{0,6}$|^[a-z ]*$"),
                                              QRegularExpression::CaseInsensitiveOption);
    if (!MyColorOper::hexRGBFromText(input).isNull())
        return Acceptable;
    return beginning.match(input).hasMatch() ? Intermediate : Invalid;
}

void ValueValidator::fixup(QString& input) const {
    bool isNumber = false;
    const double number = input.toDouble(&isNumber);
    if (iType == pt_number && isNumber)
        input = QString::number(std::clamp(number, iLeast, iMost));
}

ValueEditor::ValueEditor(const FlashTemplateProperty& property, QWidget* parent)
    : QLineEdit(parent), iType(property.propertyType()), iStored(property.value()) {
    setFrame(false);
    setAccessibleName(TemplateTexts::shown(property.title()));
    const QString tip = hint(property);
    setToolTip(PlainText::toolTip(tip));
    setAccessibleDescription(tip);
    if (iType != pt_number && iType != pt_color)
        return;
    setValidator(new ValueValidator(property, this));
    connect(this, &QLineEdit::textChanged, this, &ValueEditor::showState);
    connect(this, &QLineEdit::inputRejected, this, &ValueEditor::explain);
}

QString ValueEditor::value() const {
    return iType == pt_color && text() != iStored ? MyColorOper::hexRGBFromText(text()) : text();
}

bool ValueEditor::isReady() {
    if (hasAcceptableInput())
        return true;
    QString mended = text();
    validator()->fixup(mended);
    setText(mended);
    if (!hasAcceptableInput())
        explain();
    return hasAcceptableInput();
}

QString ValueEditor::hint(const FlashTemplateProperty& property) {
    if (property.propertyType() == pt_color)
        return tr("A colour: #RRGGBB, 0xRRGGBB, or an English name such as “red”.");
    if (property.propertyType() == pt_file && FlashTmplFileCell::isMissing(property.value()))
        return tr("The file %1 does not exist. Books are made without it.").arg(property.value());
    if (property.propertyType() != pt_number)
        return {};
    const NumberRange range = NumberRange::of(property);
    if (!range.hasLimits())
        return tr("A number.");
    const QString unit = range.unit.isEmpty() ? QString() : u' ' + range.unit;
    //: %1 and %2 are numbers, %3 is a unit with a space before it, or nothing.
    return tr("A number from %1 to %2%3.")
        .arg(QString::number(range.least), QString::number(range.most), unit);
}

void ValueEditor::showState() {
    const bool isWrong = !hasAcceptableInput();
    if (property("isWrong").toBool() == isWrong)
        return;
    setProperty("isWrong", isWrong);
    style()->unpolish(this);
    style()->polish(this);
}

void ValueEditor::explain() {
    QToolTip::showText(mapToGlobal(QPoint(0, height())), toolTip(), this);
}
