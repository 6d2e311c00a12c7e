#pragma once

#include <orv/propertyeditor/editors/ResourceReferenceDelegateBase.h>

namespace orv {

/// Makes editors of references to the server. Holds no state. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TalvaneResourceReferenceDelegate : public ResourceReferenceDelegateBase
{
public:
    QWidget *createEditor(int type, QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
};

} // namespace orv
