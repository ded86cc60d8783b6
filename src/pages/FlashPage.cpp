#include "pages/FlashPage.h"

std::shared_ptr<FlashPage> FlashPage::copyPage(int /*page*/, int /*quality*/) const {
    return std::make_shared<FlashPage>(*this);
}
