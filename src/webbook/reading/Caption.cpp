#include "webbook/reading/Caption.h"

#include <QRegularExpression>

bool Caption::startsLike(const QString& text) {
    static const QRegularExpression start(
        QStringLiteral(
            R"re(^\s*(?:fig(?:ure|ura|uur|\.)?|abb(?:ildung|\.)|afb(?:eelding|\.)|obr(?:ázek|\.)|rys(?:unek|\.)|рис(?:унок|\.)|мал(?:юнок|\.)|ilustraci[oó]n|illustration|scheme|chart|plate|图|圖|図|شکل|الشكل|شكل|איור)\s*\d)re"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return start.match(text.left(40)).hasMatch();
}
