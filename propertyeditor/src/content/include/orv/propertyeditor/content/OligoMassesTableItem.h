#pragma once

#include <orv/chemistry/MassTolerances.h>
#include <orv/chemistry/OligoImpurities.h>
#include <orv/propertyeditor/content/MassesTableItem.h>

namespace orv::PropertyEditor {

/// The masses of oligonucleotides, with the tolerances by which they are assigned and the impurities that
/// are expected.
class ORV_WORKFLOW_EXPORT OligoMassesTableItem : public MassesTableItem
{
    Q_OBJECT

public:
    OligoMassesTableItem();
    ~OligoMassesTableItem() override;

    [[nodiscard]] MassTolerances tolerances() const { return m_tolerances; }
    /// Announces changed() alone.
    void setTolerances(const MassTolerances &tolerances)
    {
        m_tolerances = tolerances;
        Q_EMIT changed();
    }
    [[nodiscard]] OligoImpurities impurities() const { return m_impurities; }
    /// Announces changed() alone.
    void setImpurities(const OligoImpurities &impurities)
    {
        m_impurities = impurities;
        Q_EMIT changed();
    }

    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;
    /// Tolerances and impurities that the document doesn't give stay as they are.
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;
    void clear() override;

private:
    MassTolerances m_tolerances;
    OligoImpurities m_impurities;
};

} // namespace orv::PropertyEditor
