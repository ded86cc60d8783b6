#pragma once

#include "template/FlashTemplateProperty.h"
#include "ui/TextFieldCell.h"

#include <memory>

// A cell that edits a property of the template.
class FlashTmplCell : public TextFieldCell {
public:
    using TextFieldCell::TextFieldCell;

    const std::shared_ptr<FlashTemplateProperty>& pro() const { return iPro; }
    void setPro(std::shared_ptr<FlashTemplateProperty> pro) { iPro = std::move(pro); }

private:
    std::shared_ptr<FlashTemplateProperty> iPro;
};
