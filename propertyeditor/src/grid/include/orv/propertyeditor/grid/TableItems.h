// Columns that are others with a property of their own.
#pragma once

#include <orv/propertyeditor/grid/OptionsItemBase.h>
#include <orv/propertyeditor/grid/ProteinsItemBase.h>

namespace orv {

class ORV_PROPERTY_EDITOR_EXPORT IntactProteinsItem : public ProteinsItemBase
{
    Q_OBJECT

public:
    explicit IntactProteinsItem(GridCommunicationManager *manager)
        : ProteinsItemBase(PropertyId::IntactProteins, manager)
    {}
};

class ORV_PROPERTY_EDITOR_EXPORT OligoProteinsItem : public ProteinsItemBase
{
    Q_OBJECT

public:
    explicit OligoProteinsItem(GridCommunicationManager *manager)
        : ProteinsItemBase(PropertyId::OligoMolecules, manager)
    {}
};

class ORV_PROPERTY_EDITOR_EXPORT IntactOptionsItem : public OptionsItemBase
{
public:
    IntactOptionsItem()
        : OptionsItemBase(PropertyId::IntactOptions)
    {}
};

class ORV_PROPERTY_EDITOR_EXPORT OligoOptionsItem : public OptionsItemBase
{
public:
    OligoOptionsItem()
        : OptionsItemBase(PropertyId::OligoOptions)
    {}
};

} // namespace orv
