#pragma once

#include <QByteArray>

namespace XMLEntities {

// XML in UTF-8 with its references to the entities that its own document type declares replaced by
// their texts. External and parameter entities are not read; references to them stay as they are.
// Throws PlatformException when entities refer to themselves or their texts add up to more than
// 1 MiB.
QByteArray resolved(const QByteArray& xml);

} // namespace XMLEntities
