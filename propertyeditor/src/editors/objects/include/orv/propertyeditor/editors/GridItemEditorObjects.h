// The kinds of values that columns of tables show. Applications register the two of deconvolution options,
// which OrvGenericEditorObjectManager leaves out:
//
//     auto *manager = OrvGenericEditorObjectManager::instance();
//     manager->registerEditor(PropertySetCreator::Editor::IntactOptions, new IntactOptionsGenericObject);
//     manager->registerEditor(PropertySetCreator::Editor::OligoOptions, new OligoOptionsGenericObject);
#pragma once

#include <orv/propertyeditor/editors/GridItemDialogs.h>
#include <orv/propertyeditor/editors/GridItemEditorObject.h>

#include <QList>
#include <QVariant>

namespace orv {

/// A table that reads as a line for each row.
class ORV_PROPERTY_EDITOR_EXPORT RowsEditorObject : public GridItemEditorObject
{
public:
    /// The cells of a row that hold something, each number with all its digits.
    [[nodiscard]] QString toString(const QJsonObject &value) const override;
};

template<class Dialog>
class RowsGenericObject : public RowsEditorObject
{
protected:
    [[nodiscard]] GridItemDialog *createDialog(QWidget *parent) const override { return new Dialog(parent); }
};

using MassesGenericObject = RowsGenericObject<MassesGenericDialog>;
using IsotopeGenericObject = RowsGenericObject<IsotopeGenericDialog>;
using DisulfideGenericObject = RowsGenericObject<DisulfideGenericDialog>;
using IntactOptionsGenericObject = RowsGenericObject<IntactOptionsGenericDialog>;
using OligoOptionsGenericObject = RowsGenericObject<OligoOptionsGenericDialog>;

class ORV_PROPERTY_EDITOR_EXPORT ProteinsGenericObject : public GridItemEditorObject
{
public:
    /// A line for each protein: accession, alias and sequence.
    [[nodiscard]] QString toString(const QJsonObject &value) const override;

protected:
    [[nodiscard]] GridItemDialog *createDialog(QWidget *parent) const override;
};

class ORV_PROPERTY_EDITOR_EXPORT DetachedGlycansGenericObject : public GridItemEditorObject
{
public:
    /// How many there are.
    [[nodiscard]] QString toString(const QJsonObject &value) const override;

protected:
    [[nodiscard]] GridItemDialog *createDialog(QWidget *parent) const override;
};

class ORV_PROPERTY_EDITOR_EXPORT GlycanOptionsGenericObject : public GridItemEditorObject
{
public:
    /// The names of moieties, labels, adducts and derivatisations, in this order.
    [[nodiscard]] QString toString(const QJsonObject &value) const override;
    /// The table of a report: a row for each kind with its caption and its names as lines of HTML. Empty for
    /// a value that can't be read.
    [[nodiscard]] QList<QList<QVariant>> toReportModuleStructure(const QJsonObject &value) const;

protected:
    [[nodiscard]] GridItemDialog *createDialog(QWidget *parent) const override;
};

} // namespace orv
