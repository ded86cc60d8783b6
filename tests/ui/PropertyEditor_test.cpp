#include "ui/FlashTemplateModel.h"
#include "ui/FlashTemplateOutline.h"
#include "ui/FlashTmplColorCell.h"
#include "ui/FlashTmplFileCell.h"
#include "ui/PropertyCellDelegate.h"

#include "platform/NotificationCenter.h"
#include "support/RecordedLog.h"
#include "support/TemplateLibrary.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

QString property(const char* key, const char* value, const char* attributes, const char* source) {
    return text("<property %1><key>%2</key><title>Title of %2</title><desc>About %2</desc>"
                "<value>%3</value><valueSource>%4</valueSource><defaultValue/>"
                "<aTitle>Yes, please</aTitle></property>")
        .arg(text(attributes), text(key), text(value), text(source));
}

const QString properties = TemplateLibrary::composite(
    text("group"), property("words", "Hello", "type='pt_text'", "") +
                       property("count", "4", "type='pt_number'", "") +
                       property("color", "0xff8000", "type='pt_color'", "") +
                       property("choice", "b", "type='pt_list'", "a,b,c") +
                       property("picture", "old.png", "type='pt_file'", "Image files|*.jpg;*.png") +
                       property("flag", "No", "type='pt_text' aType='check'", ""));

// The editor over a template with a property of every kind, without a window around it.
class Editor : public testing::Test {
protected:
    Editor() {
        library.addTemplate(text("float"), properties);
        tmpl = std::make_shared<FlashTemplate>();
        delegate.setFlashTmpl(tmpl);
        subscription = NotificationCenter::defaultCenter().addObserver(
            QString::fromUtf16(FlashTmplProValueChangedNotification), nullptr,
            [this](const Notification& message) {
                changed << static_cast<const FlashTemplateProperty*>(message.object)->key();
            });
    }

    FlashTemplateProperty* item(const char* key) const {
        const auto* group = delegate.child(0, nullptr);
        for (const auto& child : group->childProperties()) {
            if (child->key() == text(key))
                return child.get();
        }
        return nullptr;
    }
    QString value(const char* key) const { return tmpl->propertyValueFor(text(key), {}); }
    std::unique_ptr<Cell> cell(const char* key) {
        return delegate.dataCellForTableColumn(valueColumn, item(key));
    }
    void set(const char* key, const QVariant& object) {
        delegate.setObjectValue(object, valueColumn, item(key));
    }

    const QString valueColumn = text("value");
    TemplateLibrary library;
    std::shared_ptr<FlashTemplate> tmpl;
    FlashTemplateOutlineDelegate delegate;
    QStringList changed;
    NotificationCenter::Subscription subscription;
};

// The same in a view that is shown.
class EditorView : public Editor {
protected:
    EditorView() : model(delegate), cells(new PropertyCellDelegate(view)) {
        view.setModel(&model);
        view.setItemDelegate(cells);
        view.resize(500, 400);
        view.setColumnWidth(0, 200);
        view.expandAll();
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    }

    QModelIndex index(const char* key) const {
        const QModelIndex group = model.index(0, 0);
        for (int row = 0; row < model.rowCount(group); ++row) {
            const QModelIndex found = model.index(row, FlashTemplateModel::value, group);
            if (FlashTemplateModel::item(found)->key() == text(key))
                return found;
        }
        return {};
    }
    QPoint at(const char* key, int fromLeft) const {
        const QRect rect = view.visualRect(index(key));
        return {fromLeft >= 0 ? rect.left() + fromLeft : rect.right() + fromLeft,
                rect.center().y()};
    }
    template <typename Widget>
    Widget* openEditor(const char* key) {
        view.setCurrentIndex(index(key));
        view.edit(index(key));
        return view.findChild<Widget*>();
    }

    FlashTemplateOutline view;
    FlashTemplateModel model;
    PropertyCellDelegate* cells;
};

} // namespace

TEST_F(Editor, HasNoRowsWithoutATemplate) {
    FlashTemplateProperty* group = delegate.child(0, nullptr);
    delegate.setFlashTmpl(nullptr);
    EXPECT_EQ(delegate.numberOfChildrenOfItem(nullptr), 0);
    EXPECT_EQ(delegate.numberOfChildrenOfItem(group), 0);
    EXPECT_EQ(delegate.child(0, nullptr), nullptr);
    EXPECT_FALSE(delegate.isItemExpandable(group));
    EXPECT_FALSE(delegate.objectValueForTableColumn(valueColumn, group).isValid());
}

TEST_F(Editor, ShowsTheTree) {
    FlashTemplateProperty* group = delegate.child(0, nullptr);
    EXPECT_EQ(delegate.numberOfChildrenOfItem(nullptr), 1);
    EXPECT_EQ(delegate.numberOfChildrenOfItem(group), 6);
    EXPECT_EQ(delegate.child(6, group), nullptr);
    EXPECT_EQ(delegate.child(-1, group), nullptr);
    EXPECT_TRUE(delegate.isItemExpandable(group));
    EXPECT_FALSE(delegate.isItemExpandable(item("words")));
    EXPECT_FALSE(delegate.isItemExpandable(nullptr));
    FlashTemplateProperty empty;
    empty.setPropertyType(pt_composite);
    EXPECT_FALSE(delegate.isItemExpandable(&empty));
}

TEST_F(Editor, TellsWhatStandsInAField) {
    const auto shown = [&](const char* column, FlashTemplateProperty* item) {
        return delegate.objectValueForTableColumn(column ? text(column) : QString(), item);
    };
    EXPECT_EQ(shown("key", item("words")), text("Title of words"));
    EXPECT_EQ(shown(nullptr, item("words")), text("Title of words"));
    EXPECT_EQ(shown("value", item("words")), text("Hello"));
    EXPECT_EQ(shown("value", item("picture")), text("go go bay,hello world....just ok"));
    EXPECT_EQ(shown("value", item("flag")), 0);
    item("flag")->setValue(text("enable"));
    EXPECT_EQ(shown("value", item("flag")), 1);
    EXPECT_FALSE(shown("other", item("words")).isValid());
    FlashTemplateProperty blank;
    blank.setTitle(QString());
    EXPECT_EQ(shown("key", &blank), text("(Untitled)"));
    EXPECT_EQ(shown("value", &blank), text("(Unknown)"));
}

TEST_F(Editor, HasACellForEachKind) {
    for (const char* key : {"words", "count"})
        EXPECT_EQ(cell(key), nullptr);
    EXPECT_EQ(delegate.dataCellForTableColumn(text("key"), item("color")), nullptr);
    EXPECT_EQ(delegate.dataCellForTableColumn(valueColumn, delegate.child(0, nullptr)), nullptr);

    const auto color = cell("color");
    EXPECT_EQ(dynamic_cast<FlashTmplColorCell&>(*color).color(), QColor(255, 128, 0));
    EXPECT_EQ(dynamic_cast<FlashTmplColorCell&>(*color).title(), text("0xff8000"));
    const auto file = cell("picture");
    EXPECT_EQ(dynamic_cast<FlashTmplFileCell&>(*file).title(), text("old.png"));
    EXPECT_EQ(dynamic_cast<FlashTmplFileCell&>(*file).pro(), item("picture"));
    const auto flag = cell("flag");
    EXPECT_EQ(dynamic_cast<ButtonCell&>(*flag).title(), text("Yes, please"));

    item("choice")->setValue(text("c"));
    const auto list = cell("choice");
    auto& choice = dynamic_cast<PopUpButtonCell&>(*list);
    EXPECT_EQ(choice.itemTitles(), (QStringList{text("a"), text("b"), text("c")}));
    EXPECT_EQ(choice.indexOfSelectedItem(), 1);
    delegate.willDisplayCell(choice, valueColumn, item("choice"));
    EXPECT_EQ(choice.indexOfSelectedItem(), 2);
    item("choice")->setValue(text("unknown"));
    EXPECT_EQ(dynamic_cast<PopUpButtonCell&>(*cell("choice")).indexOfSelectedItem(), -1);
}

TEST_F(Editor, CellsFollowTheValueBeforeTheyAreShown) {
    const auto flag = cell("flag");
    const auto file = cell("picture");
    item("flag")->setValue(text("YES"));
    item("picture")->setValue(text("new.png"));
    delegate.willDisplayCell(*flag, valueColumn, item("flag"));
    delegate.willDisplayCell(*file, valueColumn, item("picture"));
    EXPECT_TRUE(dynamic_cast<ButtonCell&>(*flag).state());
    EXPECT_EQ(dynamic_cast<FlashTmplFileCell&>(*file).title(), text("new.png"));
}

TEST_F(Editor, TakesWhatCellsDeliver) {
    struct Case {
        const char* key;
        QVariant object;
        const char* value;
    };
    for (const auto& [key, object, wanted] :
         {Case{"words", text("Good bye"), "Good bye"}, Case{"words", text(""), ""},
          Case{"count", text("7"), "7"}, Case{"color", text("0x010203"), "0x010203"},
          Case{"choice", 2, "c"}, Case{"picture", text("/a/b.png"), "/a/b.png"},
          Case{"flag", true, "YES"}, Case{"flag", false, "NO"}}) {
        changed.clear();
        set(key, object);
        EXPECT_EQ(value(key), text(wanted));
        EXPECT_EQ(changed, QStringList{text(key)});
        set(key, object);
        EXPECT_EQ(changed.size(), 1) << "the same value again";
    }
    changed.clear();
    set("choice", 7);
    delegate.setObjectValue(text("x"), text("key"), item("words"));
    EXPECT_EQ(value("choice"), text("c"));
    EXPECT_TRUE(changed.isEmpty());
}

TEST_F(Editor, FilesAreChosenByTheirKind) {
    EXPECT_EQ(FlashTemplateOutlineDelegate::allowedTypes(text("Image files|*.jpg;*.png")),
              (QStringList{text(""), text("jpg"), text("png")}));
    EXPECT_EQ(FlashTemplateOutlineDelegate::allowedTypes(text("*.mp3")),
              (QStringList{text(""), text("mp3")}));
    QString proposed;
    QStringList types;
    std::optional<QString> answer = text("/new/picture.jpg");
    delegate.setFilePanel([&](const QString& file, const QStringList& allowed) {
        proposed = file;
        types = allowed;
        return answer;
    });
    const auto made = cell("picture");
    auto& file = dynamic_cast<FlashTmplFileCell&>(*made);
    delegate.onSelectFile(file);
    EXPECT_EQ(proposed, text("old.png"));
    EXPECT_EQ(types, (QStringList{text(""), text("jpg"), text("png")}));
    EXPECT_EQ(file.title(), text("/new/picture.jpg"));
    answer = std::nullopt;
    delegate.onSelectFile(file);
    EXPECT_EQ(file.title(), text(""));
    const RecordedLog log;
    delegate.openPanelDidEnd(text("/sheet.png"), 0, file);
    EXPECT_EQ(file.title(), text("/sheet.png"));
    EXPECT_EQ(log.texts(), (QStringList{text("die end,/sheet.png"), text("title is:")}));
}

TEST_F(Editor, AnnouncesAnotherSelection) {
    const void* sender = nullptr;
    const auto watching = NotificationCenter::defaultCenter().addObserver(
        QString::fromUtf16(UpdateFlashTmplProTipNotification), nullptr,
        [&](const Notification& message) { sender = message.object; });
    delegate.outlineViewSelectionDidChange();
    EXPECT_EQ(sender, &delegate);
}

TEST_F(EditorView, TextsAreEditedInPlace) {
    for (const char* key : {"words", "count", "color", "picture"}) {
        auto* edit = openEditor<QLineEdit>(key);
        ASSERT_NE(edit, nullptr) << key;
        EXPECT_EQ(edit->text(), value(key));
        edit->selectAll();
        QTest::keyClicks(edit, text("12"));
        QTest::keyClick(edit, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return value(key) == text("12"); })) << key;
        EXPECT_TRUE(QTest::qWaitFor([&] { return !view.findChild<QLineEdit*>(); }));
    }
    EXPECT_EQ(changed.size(), 4);
}

TEST_F(EditorView, EverySettingIsReachedAndEditedWithTheKeyboardAlone) {
    delegate.setColorPanel([](const QColor&) { return QColor(1, 2, 3); });
    delegate.setFilePanel([](const QString&, const QStringList&) { return text("/new.png"); });
    view.setFocus();
    const auto press = [&](const char* key, Qt::Key with) {
        view.setCurrentIndex(model.index(0, FlashTemplateModel::key));
        while (FlashTemplateModel::item(view.currentIndex())->key() != text(key))
            QTest::keyClick(&view, Qt::Key_Down);
        QTest::keyClick(&view, with);
    };
    const auto editors = [&] {
        auto open = view.viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        open.removeIf([](const QWidget* editor) { return !editor->isVisible(); });
        return open;
    };
    const auto editorIsClosed = [&] {
        return QTest::qWaitFor([&] { return editors().isEmpty(); });
    };
    const auto type = [&](const QString& typed, Qt::Key end) {
        ASSERT_EQ(editors().size(), 1);
        QWidget* edit = editors().first();
        QTest::keyClicks(edit, typed);
        QTest::keyClick(edit, end);
    };
    int typed = 0;
    for (const char* key : {"words", "count", "color", "picture"}) {
        for (const auto with : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
            press(key, with);
            type(QString::number(++typed), Qt::Key_Return);
            EXPECT_TRUE(editorIsClosed());
            EXPECT_EQ(value(key), QString::number(typed)) << key;
        }
    }
    press("words", Qt::Key_Space);
    type(text("by"), Qt::Key_Tab);
    EXPECT_EQ(value("words"), text("by"));
    type(text("0,8"), Qt::Key_Backtab);
    EXPECT_EQ(value("count"), text("0.8")) << "players know no comma";
    type(text("0,8"), Qt::Key_Return);
    EXPECT_TRUE(editorIsClosed());
    EXPECT_EQ(value("words"), text("0,8"));
    press("color", Qt::Key_Space);
    EXPECT_EQ(value("color"), text("0x010203"));
    press("picture", Qt::Key_Space);
    EXPECT_EQ(value("picture"), text("/new.png"));
    QString was = value("choice");
    for (const auto with : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Space}) {
        for (const auto end : {Qt::Key_Escape, Qt::Key_Return}) {
            press("choice", with);
            const auto* list = qobject_cast<QComboBox*>(editors().value(0));
            ASSERT_TRUE(list && QTest::qWaitFor([&] { return list->view()->isVisible(); }));
            QTest::keyClick(list->view(), was == text("c") ? Qt::Key_Up : Qt::Key_Down);
            QTest::keyClick(list->view(), end);
            EXPECT_TRUE(editorIsClosed());
            EXPECT_EQ(value("choice") == was, end == Qt::Key_Escape);
        }
        was = value("choice");
    }
    for (const auto with : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Space}) {
        const QString before = value("flag");
        press("flag", with);
        EXPECT_NE(value("flag"), before);
    }
}

TEST_F(EditorView, TheSwatchStaysFreeWhileItsTextIsEdited) {
    auto* edit = openEditor<QLineEdit>("color");
    ASSERT_NE(edit, nullptr);
    EXPECT_GE(edit->geometry().left(), view.visualRect(index("color")).left() + 20);
    QTest::keyClick(edit, Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !view.findChild<QLineEdit*>(); }));
    const auto* file = openEditor<QLineEdit>("picture");
    ASSERT_NE(file, nullptr);
    EXPECT_LE(file->geometry().right(), view.visualRect(index("picture")).right() - 14);
}

TEST_F(EditorView, AChoiceIsMadeInAList) {
    auto* list = openEditor<QComboBox>("choice");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->currentText(), text("b"));
    list->setCurrentIndex(2);
    Q_EMIT list->activated(2);
    EXPECT_EQ(value("choice"), text("c"));
}

TEST_F(EditorView, ACheckBoxIsClickedOrToggledWithTheSpaceBar) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at("flag", 12));
    EXPECT_EQ(value("flag"), text("YES"));
    view.setCurrentIndex(index("flag"));
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(value("flag"), text("NO"));
}

TEST_F(EditorView, TheSwatchOpensTheColourPanel) {
    QColor shown;
    delegate.setColorPanel([&](const QColor& initial) {
        shown = initial;
        return QColor(1, 2, 3);
    });
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at("color", 12));
    EXPECT_EQ(shown, QColor(255, 128, 0));
    EXPECT_EQ(value("color"), text("0x010203"));
    view.setCurrentIndex(index("color"));
    shown = QColor();
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(shown, QColor(1, 2, 3));
}

TEST_F(EditorView, TheButtonChoosesAFileAndCancellingClearsIt) {
    std::optional<QString> answer = text("/new.png");
    delegate.setFilePanel([&](const QString&, const QStringList&) { return answer; });
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, at("picture", -8));
    QTest::mouseMove(view.viewport(), at("picture", 30));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, at("picture", 30));
    EXPECT_EQ(value("picture"), text("old.png")) << "released outside";
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at("picture", -8));
    EXPECT_EQ(value("picture"), text("/new.png"));
    answer = std::nullopt;
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at("picture", -8));
    EXPECT_EQ(value("picture"), text(""));
    EXPECT_EQ(changed, (QStringList{text("picture"), text("picture")}));
}

TEST_F(EditorView, TheButtonLightsUpUnderThePointer) {
    const auto look = [&] { return view.viewport()->grab().toImage(); };
    QTest::mouseMove(view.viewport(), at("words", 5));
    const QImage before = look();
    QTest::mouseMove(view.viewport(), at("picture", -8));
    QTest::qWait(20);
    EXPECT_FALSE(look() == before);
    QTest::mouseMove(view.viewport(), at("words", 5));
    QTest::qWait(20);
    EXPECT_TRUE(look() == before);
}
