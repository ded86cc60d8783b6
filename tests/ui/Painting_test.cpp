#include "ui/Cell.h"
#include "ui/FlashTmplColorCell.h"
#include "ui/FlashTmplFileCell.h"
#include "ui/ImagePreviewCell.h"
#include "ui/SelectTemplateWindow.h"
#include "ui/SelectTemplateWindowDelegate.h"

#include "support/ExpectedText.h"
#include "support/TemplateLibrary.h"

#include <QSvgGenerator>
#include <QtWidgets>

namespace {

// What is painted as SVG, without the pixels of pictures and the parts that say nothing.
class Drawing {
public:
    void add(const QByteArray& name, const std::function<void(QPainter&)>& paint) {
        QBuffer svg;
        QSvgGenerator device;
        device.setOutputDevice(&svg);
        device.setResolution(72);
        QPainter painter(&device);
        paint(painter);
        painter.end();
        static const QRegularExpression noise(
            "data:[^\"]*|</?(defs|svg|title|desc|\\?xml)[^>]*>|Qt SVG[^<]*|Generated with Qt|</g>"
            "| (stroke-line\\w+|vector-effect|xml:space|image-rendering|preserveAspectRatio)="
            "\"[^\"]*\"|\\s*font-family=[^>]*normal\"\\s*|<g[^>]*>\\s*(?=<g|$)|\\s+(?=[\n>])");
        iLines << name << QString::fromUtf8(svg.data()).remove(noise).toUtf8().split('\n');
        iLines.removeAll("");
    }
    QByteArrayList lines() const { return iLines; }

private:
    QByteArrayList iLines;
};

const QFont font("DejaVu Sans", 10);

QStyleOptionViewItem row(const QWidget& view, QStyle::State state) {
    QStyleOptionViewItem option;
    option.rect = QRect(10, 20, 230, 210);
    option.font = font;
    option.fontMetrics = QFontMetrics(font);
    option.palette = QPalette(QColor("#c0d0e0"));
    option.state = state | QStyle::State_Enabled;
    option.widget = &view;
    return option;
}

void addRows(const QAbstractItemView& view, const QByteArray& name, Drawing& drawing) {
    for (const auto& [label, state] : {std::pair(" plain", QStyle::State_None),
                                       {" selected", QStyle::State_Selected},
                                       {" hovered", QStyle::State_MouseOver},
                                       {" focused", QStyle::State_HasFocus}}) {
        for (int i = 0; i < view.model()->rowCount(); ++i) {
            drawing.add(name + QByteArray::number(i) + label, [&,
                                                               state = state](QPainter& painter) {
                view.itemDelegate()->paint(&painter, row(view, state), view.model()->index(i, 0));
            });
        }
    }
}

} // namespace

TEST(Painting, IsAsWrittenDown) {
    TemplateLibrary library;
    library.addTemplate("desk");
    library.addTemplateFile("torn", "<template>");
    QImage picture(400, 200, QImage::Format_RGB32);
    picture.fill(Qt::darkBlue);
    library.addStyle("desk", "Night", "");
    library.addStyle("desk", "A long name of a style that has no picture", "");
    ASSERT_TRUE(picture.save(library.stylePath("desk", "Night") + "/shot.jpg") &&
                picture.scaled(64, 64).save(library.templatePath("desk") + "/icon.png"));
    SelectTemplateWindowDelegate chooser;
    chooser.prepairToTmpl("desk", {});
    Drawing drawing;
    addRows(*chooser.window().iTableViewTmpls, "template ", drawing);
    QListView& styles = *chooser.window().iImgBrowserView;
    addRows(styles, "style ", drawing);
    for (const int i : {1, 0}) {
        QHelpEvent help(QEvent::ToolTip, {}, {});
        const QModelIndex index = styles.model()->index(i, 0);
        styles.itemDelegate()->helpEvent(&help, &styles, row(styles, {}), index);
        drawing.add("tool tip: " + QToolTip::text().toUtf8(), [](QPainter&) {});
    }

    const QWidget view;
    FlashTmplColorCell color;
    color.setColor2(Qt::darkGreen);
    FlashTmplFileCell file("a file.png");
    ImagePreviewCell empty("Title");
    empty.setSubTitle("Below");
    ImagePreviewCell full("Title");
    full.setImage(QPixmap::fromImage(picture.scaled(20, 10)));
    PopUpButtonCell list({"One", "A long choice that is cut off at its end, as it has no room"});
    list.selectItemAtIndex(1);
    ButtonCell box("A box");
    box.showValue("YES");
    for (Cell* cell : std::initializer_list<Cell*>{&color, &file, &empty, &full, &list, &box}) {
        for (const auto state : {QStyle::State_None, QStyle::State_Selected}) {
            auto option = row(view, state);
            option.rect.setHeight(24);
            cell->setRow(option, false);
            drawing.add("cell", [&](QPainter& painter) { cell->paint(painter, option); });
        }
    }
    expectLinesOf(FOLVERO_PAINTING_TEXT, drawing.lines() << "");
}
