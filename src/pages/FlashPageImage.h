#pragma once

#include "pages/FlashPage.h"

// A page that is an image file of the user's or of the program's resources.
class FlashPageImage : public FlashPage {
public:
    std::shared_ptr<FlashPage> copyPage(int page, int quality) const override;
};
