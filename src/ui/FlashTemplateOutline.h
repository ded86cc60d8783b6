#pragma once

#include <QTreeView>

// The tree in which a template's properties are edited.
class FlashTemplateOutline : public QTreeView {
    Q_OBJECT

public:
    using QTreeView::QTreeView;
};
