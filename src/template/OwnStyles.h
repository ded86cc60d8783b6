#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class FlashTemplate;

// Styles that users save, rename and delete themselves; see StyleFolders. Errors are for users.
namespace OwnStyles {

// Why a template's own style can't be called that; null when it can, also when there is one
// already. The names of the library's styles are taken, since books name their style.
Message nameError(const QString& tmplName, const QString& name);

// Why the own style in that folder can't be used; null when it can.
Message failureOf(const QString& stylePath);

// Saves all values but those of the keys that are left out, and a picture, a JPEG file, which may
// be empty. Replaces a style of that name. Returns false with *error when nothing was saved.
bool save(const FlashTemplate& tmpl, const QString& name, const QStringList& leftOut,
          const QByteArray& picture, Message* error);

// Never replaces another style. False with *error when nothing was changed.
bool rename(const QString& stylePath, const QString& name, Message* error);

// Other files that somebody put into the folder stay. False with *error when the style is still
// there.
bool remove(const QString& stylePath, Message* error);

} // namespace OwnStyles
