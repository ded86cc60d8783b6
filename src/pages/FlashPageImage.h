#pragma once

#include "pages/FlashPage.h"

// A page that is an image file, provided by the user or among the program's resources.
class FlashPageImage : public FlashPage {
public:
    std::shared_ptr<FlashPage> copyPage(int page, int quality) const override;
};
