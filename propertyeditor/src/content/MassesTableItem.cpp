#include "orv/propertyeditor/content/MassesTableItem.h"

#include <orv/chemistry/ChemistryConstants.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

/// Adds the columns that are missing; false if none is.
bool addMissingColumns(RowNode *node)
{
    bool added = false;
    for (const QString column : {kMassToleranceValue, kMassToleranceUnit}) {
        if (node->rootHasData(column))
            continue;
        node->addDataToRootAndResizeChildren(column, QVariant());
        added = true;
    }
    if (added)
        qCDebug(propertyEditorLog) << "Initializing default columns for match tolerance";
    return added;
}

/// Gives the first row a value in that column, unless it has one; false if it has.
bool addMissingValue(RowNode *node, const QString &column, const QVariant &value)
{
    QVariant &cell = node->getChildFirst()->getDataAt(column);
    if (cell.isValid())
        return false;
    qCDebug(propertyEditorLog) << "Initializing a default value for" << column;
    cell = value;
    return true;
}

} // namespace

MassesTableItem::MassesTableItem()
    : MassesTableItem(BaseItemType::Masses, {})
{}

MassesTableItem::MassesTableItem(BaseItemType type, const QList<PropertyId> &furtherObjects)
    : BaseTableItem(type, {{PropertyId::MatchTolerance}, furtherObjects, {}})
{}

MassesTableItem::~MassesTableItem() = default;

PropertyId MassesTableItem::propertyId() const
{
    return PropertyId::MassTable;
}

QList<DeltaMass> MassesTableItem::deltaMasses() const
{
    return MassUtils::deltaMassesFromRowNode(rootNode());
}

void MassesTableItem::setDeltaMasses(const QList<DeltaMass> &masses)
{
    rootNode() = MassUtils::deltaMassesToRowNode(masses);
    // Saved tables have no such column.
    rootNode().removeColumn(kId);
    Q_EMIT changed();
}

Error MassesTableItem::initializeDefaultMatchTolerance(RowNode *node, bool *defaulted)
{
    if (!node) {
        return {ErrorCode::MalformedStructure,
                QStringLiteral("Cannot initialize a null match tolerance object.")};
    }
    const bool changed = completeMatchTolerance(node);
    if (defaulted)
        *defaulted = changed;
    return Error::NoError;
}

bool MassesTableItem::completeMatchTolerance(RowNode *node)
{
    bool changed = addMissingColumns(node);
    if (node->getChildListSize() == 0) {
        qCDebug(propertyEditorLog) << "Initializing a default child for a match tolerance object";
        node->addNewChildMatchRootDataSize();
        changed = true;
    }
    VariantItems &cells = node->getChildFirst()->data;
    if (cells.size() < node->data.size())
        cells.resize(node->data.size());
    const QString firstUnit = MassUtils::possibleMassToleranceUnits().constFirst();
    changed = addMissingValue(node, kMassToleranceUnit, firstUnit) || changed;
    return addMissingValue(node, kMassToleranceValue, 0.0) || changed;
}

QVariant MassesTableItem::toleranceCell(const QString &column) const
{
    const RowNode *row = m_matchTolerance.getChildFirst();
    return row ? row->getDataAt(column) : QVariant();
}

bool MassesTableItem::setToleranceCell(const QString &column, const QVariant &value)
{
    m_matchToleranceDefaulted = false;
    m_matchTolerance.getChildFirst()->getDataAt(column) = value;
    Q_EMIT changed();
    return true;
}

double MassesTableItem::massTolerance() const
{
    return toleranceCell(kMassToleranceValue).toDouble();
}

bool MassesTableItem::setMassTolerance(double value)
{
    if (m_matchTolerance.getChildListSize() == 0) {
        qCWarning(propertyEditorLog) << "Cannot update an empty match tolerance object";
        return false;
    }
    return setToleranceCell(kMassToleranceValue, value);
}

QString MassesTableItem::massToleranceUnit() const
{
    return toleranceCell(kMassToleranceUnit).toString();
}

bool MassesTableItem::setMassToleranceUnit(const QString &unit)
{
    if (m_matchTolerance.getChildListSize() == 0) {
        qCWarning(propertyEditorLog) << "Cannot update an empty match tolerance object";
        return false;
    }
    if (!possibleMassToleranceUnits().contains(unit)) {
        qCWarning(propertyEditorLog) << "Invalid mass tolerance unit:" << unit;
        return false;
    }
    return setToleranceCell(kMassToleranceUnit, unit);
}

QStringList MassesTableItem::possibleMassToleranceUnits() const
{
    return MassUtils::possibleMassToleranceUnits();
}

bool MassesTableItem::isValid(const QList<SamplesInput::Entry> &samples, QStringList *errors,
                              QStringList *warnings) const
{
    QList<int> ids;
    ids.reserve(samples.size());
    for (const SamplesInput::Entry &sample : samples)
        ids.append(sample.id);
    QStringList localErrors;
    const bool valid = MassUtils::validate(deltaMasses(), ids, &localErrors, warnings);
    if (errors)
        errors->append(localErrors);
    return valid;
}

QJsonObject MassesTableItem::toJson(PropertyConversionFlag flag) const
{
    QJsonObject json = BaseTableItem::toJson(flag);
    if (!m_matchToleranceDefaulted) {
        appendProperty(&json, PropertyId::MatchTolerance,
                       PropertyEditorJsonUtils::rowNodeToObject(m_matchTolerance));
    }
    return json;
}

Error MassesTableItem::checkWritable() const
{
    ORV_RETURN_IF_ERROR(BaseTableItem::checkWritable());
    if (m_matchToleranceDefaulted)
        return Error::NoError;
    ORV_RETURN_IF_ERROR(checkTable(m_matchTolerance, PropertyId::MatchTolerance));
    return Error::NoError;
}

Error MassesTableItem::load(const QJsonObject &json, ValidationOptions options, const LoadContext &context)
{
    // A load that fails leaves no tolerance, so none may be written.
    m_matchTolerance.clear();
    m_matchToleranceDefaulted = true;
    ORV_RETURN_IF_ERROR(BaseTableItem::load(json, options, context));
    const QJsonObject entry = PropertyEditorJsonUtils::getPropertyWithType(json, PropertyId::MatchTolerance);
    if (!entry.isEmpty())
        m_matchTolerance = PropertyEditorJsonUtils::propValueToRowNode(entry);
    ORV_RETURN_IF_ERROR(initializeDefaultMatchTolerance(&m_matchTolerance, &m_matchToleranceDefaulted));
    if (!entry.isEmpty() && m_matchToleranceDefaulted)
        reportDefaultedTolerance(json, context);
    return Error::NoError;
}

void MassesTableItem::reportDefaultedTolerance(const QJsonObject &json, const LoadContext &context) const
{
    const QJsonArray entries = json.value(PROPERTIES_KEY).toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (PropertyEditorJsonUtils::findPropertyBackCompat(entries.at(i).toObject(), type()) !=
            PropertyId::MatchTolerance)
            continue;
        context.member(PROPERTIES_KEY)
            .lost(QString::number(i), tr("the match tolerance"),
                  tr("it lacks a value or unit, and becomes the default"));
        return;
    }
}

void MassesTableItem::clear()
{
    m_matchTolerance.clear();
    m_matchToleranceDefaulted = completeMatchTolerance(&m_matchTolerance);
    BaseTableItem::clear();
}

} // namespace orv::PropertyEditor
