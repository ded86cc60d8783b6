#pragma once

#include "template/FlashTemplateProperty.h"
#include "ui/TextFieldCell.h"

// A cell that edits a property of the template.
class FlashTmplCell : public TextFieldCell {
public:
    using TextFieldCell::TextFieldCell;

    // Owned by its template.
    FlashTemplateProperty* pro() const { return iPro; }
    void setPro(FlashTemplateProperty* pro) { iPro = pro; }

private:
    FlashTemplateProperty* iPro = nullptr;
};
