// The dialogs of the values that columns of tables show.
#pragma once

#include <orv/propertyeditor/editors/GridItemDialog.h>

namespace orv {

class ORV_PROPERTY_EDITOR_EXPORT ProteinsGenericDialog : public GridItemDialog
{
    Q_OBJECT

public:
    explicit ProteinsGenericDialog(QWidget *parent = nullptr);
};

/// The value is the table of masses alone, and holds no tolerance.
class ORV_PROPERTY_EDITOR_EXPORT MassesGenericDialog : public GridItemDialog
{
    Q_OBJECT

public:
    explicit MassesGenericDialog(QWidget *parent = nullptr);
};

class ORV_PROPERTY_EDITOR_EXPORT IsotopeGenericDialog : public GridItemDialog
{
    Q_OBJECT

public:
    explicit IsotopeGenericDialog(QWidget *parent = nullptr);
};

class ORV_PROPERTY_EDITOR_EXPORT DisulfideGenericDialog : public GridItemDialog
{
    Q_OBJECT

public:
    explicit DisulfideGenericDialog(QWidget *parent = nullptr);
};

class ORV_PROPERTY_EDITOR_EXPORT DetachedGlycansGenericDialog : public GridItemDialog
{
    Q_OBJECT

public:
    explicit DetachedGlycansGenericDialog(QWidget *parent = nullptr);
};

class ORV_PROPERTY_EDITOR_EXPORT GlycanOptionsGenericDialog : public GridItemDialog
{
    Q_OBJECT

public:
    explicit GlycanOptionsGenericDialog(QWidget *parent = nullptr);
};

class ORV_PROPERTY_EDITOR_EXPORT IntactOptionsGenericDialog : public GridItemDialog
{
    Q_OBJECT

public:
    explicit IntactOptionsGenericDialog(QWidget *parent = nullptr);
};

class ORV_PROPERTY_EDITOR_EXPORT OligoOptionsGenericDialog : public GridItemDialog
{
    Q_OBJECT

public:
    explicit OligoOptionsGenericDialog(QWidget *parent = nullptr);
};

} // namespace orv
