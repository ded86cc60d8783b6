#include "pages/FlashPageImage.h"

std::shared_ptr<FlashPage> FlashPageImage::copyPage(int /*page*/, int /*quality*/) const {
    return std::make_shared<FlashPageImage>(*this);
}
