#include "annotations/FlashPagesAnnotations.h"

void FlashPagesAnnotations::setPagesAnnotationsNode(const pugi::xml_node& element) {
    pugi::xml_document copy;
    copy.append_copy(element);
    iDocument = std::move(copy);
}
