#pragma once

#include <QByteArray>

namespace XMLEntities {

// Expands references to entities that the document's own DTD declares; input and output are UTF-8.
// External and parameter entities are not loaded, their references are left as they are. Throws
// PlatformException when entities refer to themselves or the expanded texts exceed 1 MiB.
QByteArray resolved(const QByteArray& xml);

} // namespace XMLEntities
