#include "desktop/DesktopProgram.h"
#include "support/ExpectedText.h"

namespace {

// What users see, hear or reach by keys. Sizes and places are left to the styles.
const QByteArrayList properties =
    QByteArray("windowTitle text title iconText placeholderText toolTip accessibleName "
               "accessibleDescription statusTip shortcut menuRole default autoDefault checkable "
               "checked readOnly wordWrap textFormat alignment textInteractionFlags focusPolicy "
               "frameShape movable toolButtonStyle contextMenuPolicy orientation textVisible "
               "childrenCollapsible maximum editTriggers acceptDrops horizontalScrollBarPolicy "
               "verticalScrollMode uniformItemSizes uniformRowHeights viewMode movement resizeMode "
               "mouseTracking windowModality tabChangesFocus autoRaise")
        .split(' ');

// What a field holds is the user's own, and the preview has title and icon of its page, once it has
// come.
QString valueOf(const QObject& object, const QByteArray& name) {
    if ((name == "text" && object.inherits("QLineEdit")) ||
        (name == "title" && object.inherits("QWebEngineView")))
        return {};
    const QVariant value = object.property(name);
    static const QRegularExpression usual("^(false|0|No|Non|Default|AutoText|TextHeur).*");
    return (value.userType() == QMetaType::QKeySequence ? value.value<QKeySequence>().toString()
                                                        : value.toString())
        .simplified()
        .remove(usual);
}

QString described(const QObject& object) {
    QStringList words{object.metaObject()->className(), object.objectName()};
    for (const QByteArray& name : properties) {
        if (const QString value = valueOf(object, name); !value.isEmpty())
            words << name + '=' + value;
    }
    if (object.property("shortcut").isValid() && !object.property("icon").value<QIcon>().isNull())
        words << "with an icon";
    const auto* widget = qobject_cast<const QWidget*>(&object);
    if (widget && widget->isHidden())
        words << "hidden";
    if (widget && widget->testAttribute(Qt::WA_TransparentForMouseEvents))
        words << "lets clicks through";
    if (!object.property("enabled").toBool())
        words << "disabled";
    if (const auto* label = qobject_cast<const QLabel*>(&object); label && label->buddy())
        words << "for a" << described(*label->buddy());
    for (const QAction* action : widget ? widget->actions() : QList<QAction*>())
        words << '[' + action->text() + ']';
    return words.join(' ');
}

// Of the window and its sheets, without the parts that Qt's own widgets consist of.
QByteArrayList linesOf(const QWidget& window) {
    static const QRegularExpression own("^(qt_|QScrollBar|QComboBoxPrivate|QQuickWidget)");
    QByteArrayList lines{described(window).toUtf8()};
    for (const QObject* object : window.findChildren<QObject*>()) {
        const QString line = described(*object);
        if ((object->isWidgetType() || qobject_cast<const QAction*>(object)) &&
            !line.endsWith(' ') && !line.contains(own) && !object->objectName().contains(own) &&
            object->parent()->objectName() != "qt_menubar_ext_button")
            lines << line.toUtf8();
    }
    return lines;
}

using Windows = DesktopProgram;

} // namespace

TEST_F(Windows, AreAsWrittenDown) {
    launch();
    program->ouputWindow().window().showWebBookParts(true);
    expectLinesOf(FOLVERO_WINDOWS_TEXT, linesOf(window()) << "");
}
