#include "app/desktop/StyleSaver.h"

#include "app/desktop/MainMenu.h"
#include "app/desktop/MainWindow.h"
#include "app/desktop/PreviewView.h"
#include "template/FlashTemplate.h"
#include "template/OwnStyles.h"
#include "template/StyleFolders.h"
#include "ui/NameWindow.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPixmap>

namespace {

// As large as the pictures of the library's styles.
constexpr QSize pictureSize(480, 360);
constexpr int pictureQuality = 85;

} // namespace

StyleSaver::StyleSaver(Program program)
    : iProgram(std::move(program)),
      //: The button that saves a style.
      iNameWindow(new NameWindow(tr("Save as a style"), tr("&Save"), &iProgram.window)) {
    connect(iProgram.window.menu->saveStyle, &QAction::triggered, this, &StyleSaver::begin);
}

// The name of a style of the user's own is proposed again, to save what has been changed since.
void StyleSaver::begin() {
    const FlashTemplate& tmpl = iProgram.flashTmpl();
    const QString path = FlashTemplate::styleFolder(tmpl.tmplName(), tmpl.styleName());
    iNameWindow->ask(StyleFolders::isOwn(path) ? tmpl.styleName() : QString(),
                     [this](const QString& name) { return save(name); });
}

QString StyleSaver::save(const QString& name) const {
    const FlashTemplate& tmpl = iProgram.flashTmpl();
    Message error = OwnStyles::nameError(tmpl.tmplName(), name);
    if (!error.isNull())
        return error.local();
    const QString path = StyleFolders::ownFor(tmpl.tmplName(), name);
    if (QFileInfo::exists(path) &&
        !iProgram.replace(tr("Replace the style “%1”?").arg(name),
                          tr("You have saved a style of this name before. Its settings would be "
                             "lost.")))
        return QStringLiteral("");
    if (!OwnStyles::save(tmpl, name, iProgram.leftOut(), picture(), &error))
        return tr("The style was not saved. %1").arg(error.local());
    iProgram.choose(path);
    return {};
}

// The middle of the preview.
QByteArray StyleSaver::picture() const {
    const QPixmap whole = iProgram.window.webView->grab();
    QRect part({}, pictureSize.scaled(whole.size(), Qt::KeepAspectRatio));
    part.moveCenter(whole.rect().center());
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    whole.copy(part)
        .scaled(pictureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .save(&buffer, "JPG", pictureQuality);
    return jpeg;
}
