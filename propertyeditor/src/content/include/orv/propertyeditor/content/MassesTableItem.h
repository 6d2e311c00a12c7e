#pragma once

#include <orv/chemistry/DeltaMass.h>
#include <orv/chemistry/MassUtils.h>
#include <orv/propertyeditor/content/BaseTableItem.h>
#include <orv/samples/SamplesInput.h>

namespace orv::PropertyEditor {

/// The table of expected masses and of mass differences, and the tolerance within which masses match. A
/// tolerance that the document doesn't give is made of defaults, which aren't written back: a load followed
/// by a save invents none.
class ORV_WORKFLOW_EXPORT MassesTableItem : public BaseTableItem
{
    Q_OBJECT
    Q_PROPERTY(QStringList possibleMassToleranceUnits READ possibleMassToleranceUnits)
    Q_PROPERTY(QString massToleranceUnit READ massToleranceUnit)
    Q_PROPERTY(double massTolerance READ massTolerance)
    Q_PROPERTY(bool hasMatchTolerance READ hasMatchTolerance)

public:
    /// Without any match tolerance until a load or clear().
    MassesTableItem();
    ~MassesTableItem() override;

    [[nodiscard]] QList<DeltaMass> deltaMasses() const;
    /// Replaces the table. The numbers by which editors know the rows aren't kept. Announces changed() alone.
    void setDeltaMasses(const QList<DeltaMass> &masses);

    /// Whether the tolerance was given, and isn't made of defaults.
    [[nodiscard]] bool hasMatchTolerance() const { return !m_matchToleranceDefaulted; }
    /// In massToleranceUnit(); 0 where there is none.
    [[nodiscard]] double massTolerance() const;
    /// False, with a warning, while there is no match tolerance.
    bool setMassTolerance(double value);
    /// Empty where there is none.
    [[nodiscard]] QString massToleranceUnit() const;
    /// False, with a warning, while there is no match tolerance and for what isn't possible.
    bool setMassToleranceUnit(const QString &unit);
    /// "Dalton" and "ppm".
    [[nodiscard]] QStringList possibleMassToleranceUnits() const;

    /// Whether the masses can be matched in these samples. Both lists are appended to; they may be null.
    bool isValid(const QList<SamplesInput::Entry> &samples, QStringList *errors, QStringList *warnings) const;

    QJsonObject toJson(orv::PropertyEditor::PropertyConversionFlag flag) const override;
    Error load(const QJsonObject &json, ValidationOptions options, const LoadContext &context) override;
    [[nodiscard]] Error checkWritable() const override;
    void clear() override;

protected:
    MassesTableItem(BaseItemType type, const QList<PropertyId> &furtherObjects);

    [[nodiscard]] PropertyId propertyId() const override;

    /// Gives \a node what a match tolerance lacks; \a defaulted, which may be null, tells whether that was
    /// anything. MalformedStructure for a null node.
    static Error initializeDefaultMatchTolerance(RowNode *node, bool *defaulted);

private:
    /// Whether anything was missing.
    static bool completeMatchTolerance(RowNode *node);
    [[nodiscard]] QVariant toleranceCell(const QString &column) const;
    bool setToleranceCell(const QString &column, const QVariant &value);
    void reportDefaultedTolerance(const QJsonObject &json, const LoadContext &context) const;

    RowNode m_matchTolerance;
    bool m_matchToleranceDefaulted = true;
};

} // namespace orv::PropertyEditor
