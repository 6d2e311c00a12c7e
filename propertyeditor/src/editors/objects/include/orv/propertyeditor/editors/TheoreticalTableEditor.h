#pragma once

#include <orv/propertyeditor/editors/IGenericEditorObject.h>

namespace orv {

/// The table of theoretical peptides. The proteins and disulfide bonds from which they follow stand in the
/// property's options of these names, where other columns leave them.
class ORV_PROPERTY_EDITOR_EXPORT TheoreticalTableEditor : public IGenericEditorObject
{
public:
    /// The names of the columns and a line for each peptide, with tabulators between the cells.
    [[nodiscard]] QString toString(const QJsonObject &value) const override;
    /// Of the text that toString() gives; empty, with a warning in the log, for a row of bad data.
    [[nodiscard]] QJsonObject fromString(const QString &text) const override;
    /// A row of bad data is told in a box, and the dialog opens empty.
    bool handleEditObject(QJsonObject *value, const KProperty &property, QWidget *parent) const override;
};

} // namespace orv
