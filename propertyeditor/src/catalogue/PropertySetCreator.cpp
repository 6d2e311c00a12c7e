#include "orv/propertyeditor/PropertySetCreator.h"

#include "PropertyKinds.h"
#include "PropertyLosses.h"
#include "PropertyValueForms.h"

#include <KProperty>
#include <KPropertySet>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/KPropertySetUtils.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/WflwAdvancedSettings.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <memory>

namespace orv {

using namespace PropertyEditorStringConstants;
using PropertyEditor::LoadContext;
using PropertyEditor::PropertyConversionFlag;

namespace {

constexpr QLatin1Char kHiddenPrefix(':');
constexpr const char *kCommonGroup = "common";

using Editor = PropertySetCreator::Editor;

struct EditorRow
{
    PropertyId id;
    Editor editor;
};

// Sorted by number, as the look-up halves it.
constexpr std::array kEditors = {
    EditorRow{PropertyId::KarvonFragmentMassError, Editor::ValueUnit},
    EditorRow{PropertyId::KarvonFragmentMassError2, Editor::ValueUnit},
    EditorRow{PropertyId::KarvonGlycanText, Editor::Glycans},
    EditorRow{PropertyId::KarvonInclusionFilter, Editor::InclusionList},
    EditorRow{PropertyId::KarvonModText, Editor::Modifications},
    EditorRow{PropertyId::KarvonPeakFilterSelected, Editor::PeakFilter},
    EditorRow{PropertyId::KarvonPrecursorMassError, Editor::ValueUnit},
    EditorRow{PropertyId::DeconvolvedMassPlot, Editor::DeconvolvedMassPlot},
    EditorRow{PropertyId::DetachedGlycans, Editor::DetachedGlycans},
    EditorRow{PropertyId::Disulfide, Editor::Disulfide},
    EditorRow{PropertyId::GlycanOptions, Editor::GlycanOptions},
    EditorRow{PropertyId::InSilicoGlycans, Editor::Glycans},
    EditorRow{PropertyId::IntactOptions, Editor::IntactOptions},
    EditorRow{PropertyId::Isotope, Editor::Isotope},
    EditorRow{PropertyId::MassList, Editor::Masses},
    EditorRow{PropertyId::InSilicoModifications, Editor::Modifications},
    EditorRow{PropertyId::OligoOptions, Editor::OligoOptions},
    EditorRow{PropertyId::PeptideMassMax, Editor::ValueUnit},
    EditorRow{PropertyId::PeptideMassMin, Editor::ValueUnit},
    EditorRow{PropertyId::Proteins, Editor::Proteins},
    EditorRow{PropertyId::TheoreticalPeptides, Editor::TheoreticalTable},
    EditorRow{PropertyId::TracePlot, Editor::TracePlot},
};

bool isHidden(const KProperty &property)
{
    return property.name().startsWith(kHiddenPrefix.toLatin1());
}

/// The type of a hidden property; Invalid for what can't be one.
int hiddenType(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return KProperty::Bool;
    case QJsonValue::Double:
        return KProperty::Double;
    case QJsonValue::String:
        return KProperty::String;
    default:
        return KProperty::Invalid;
    }
}

int priorityOf(const KProperty &property)
{
    return property.option(kPriorityOption, int(PropertySetCreator::Priority::Unset)).toInt();
}

/// Fills a set from the JSON of a cell.
class SetFiller
{
    Q_DECLARE_TR_FUNCTIONS(PropertySetCreator)

public:
    SetFiller(const std::optional<BaseItemType> &expected, const LoadContext &context, KPropertySet *set)
        : m_allowed(expected ? &allowedProperties(*expected) : nullptr)
        , m_context(context)
        , m_set(set)
    {}

    Error fill(const QJsonObject &cell)
    {
        // The cell told of an unknown type when it was made.
        m_itemType = findBaseItemType(cell.value(TYPE_KEY).toString()).value_or(BaseItemType::Unknown);
        // Names of properties don't tell "Name" from "name": the cell's own members come first.
        constexpr std::array kOwnMembers = {META_IN_JSON_KEY, NAME_KEY, TITLE_KEY, TYPE_KEY};
        for (const QLatin1String key : kOwnMembers) {
            if (cell.contains(key))
                addHidden(key, cell.value(key));
        }
        for (auto it = cell.begin(); it != cell.end(); ++it) {
            const bool isOwn = std::ranges::find(kOwnMembers, it.key()) != kOwnMembers.end();
            if (!isOwn && (it.key() != PROPERTIES_KEY || !it->isArray()))
                addHidden(it.key(), it.value());
        }
        const QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
        const LoadContext context = m_context.member(PROPERTIES_KEY);
        for (qsizetype i = 0; i < entries.size(); ++i)
            ORV_RETURN_IF_ERROR(addEntry(entries.at(i), i, context));
        return Error::NoError;
    }

private:
    void addHidden(const QString &key, const QJsonValue &value)
    {
        const QByteArray name = (kHiddenPrefix + key).toUtf8();
        const int type = hiddenType(value);
        if (type == KProperty::Invalid || m_set->contains(name)) {
            m_context.lost(key, tr("member \"%1\" of a cell").arg(key),
                           type == KProperty::Invalid
                               ? tr("a cell of settings holds texts, numbers and switches only")
                               : tr("names that differ in case alone are one name"));
            return;
        }
        auto *property = new KProperty(name, value.toVariant(), {}, {}, type);
        property->setVisible(false);
        m_set->addProperty(property, kCommonGroup);
    }

    Error addEntry(const QJsonValue &value, qsizetype index, const LoadContext &context)
    {
        const QJsonObject entry = value.toObject();
        const QString name = entry.value(NAME_KEY).toString();
        const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat(name, m_itemType);
        if (m_allowed && !m_allowed->contains(id) && WflwAdvancedSettings::isWorkflowVerificationEnabled())
            return Error(ErrorCode::InvalidContent, tr("Property \"%1\" is not supported.").arg(name));
        QStringList errors;
        const int priority =
            entry.value(QLatin1String(kPriorityOption)).toInt(int(PropertySetCreator::Priority::High));
        std::unique_ptr<KProperty> property =
            newProperty(id, PropertySetCreator::Priority(priority), entry.value(VALUE_KEY), &errors);
        if (!property) {
            for (const QString &error : std::as_const(errors))
                qCWarning(propertyEditorLog).noquote() << error;
            drop(index, name, errors.join(QLatin1Char(' ')), context);
        } else if (m_seen.test(size_t(id))) {
            drop(index, name, tr("a setting of this name stands before it"), context);
        } else {
            m_seen.set(size_t(id));
            if (context.isObserved())
                reportEntryLosses(context.element(index), entry, *property);
            addToGroup(entry.value(GROUP_KEY).toString(), std::move(property));
        }
        return Error::NoError;
    }

    /// Neighbours mostly share a group, which then needn't be looked up.
    void addToGroup(const QString &group, std::unique_ptr<KProperty> property)
    {
        if (m_lastGroupName.isEmpty() || group != m_lastGroup) {
            m_lastGroup = group;
            m_lastGroupName = KPropertySetUtils::groupName(group);
            KPropertySetUtils::insertInKPropertySet(group, property.release(), m_set, -1);
        } else {
            m_set->addProperty(property.release(), m_lastGroupName);
        }
    }

    static void drop(qsizetype index, const QString &name, const QString &why, const LoadContext &context)
    {
        if (context.isObserved())
            context.lost(QString::number(index), tr("property \"%1\"").arg(name), why);
    }

    const QSet<PropertyId> *m_allowed; ///< null where all are
    const LoadContext &m_context;
    KPropertySet *m_set;
    /// No two properties have one name, in whatever case.
    PropertyIdSet m_seen;
    QString m_lastGroup;
    QByteArray m_lastGroupName;
    BaseItemType m_itemType = BaseItemType::Unknown;
};

/// Writes the entries of "properties" of a set.
class EntryWriter
{
public:
    EntryWriter(const KPropertySet &set, PropertyConversionFlag flag)
        : m_set(set)
        , m_flag(flag)
    {}

    /// Undefined if the value can't be stored.
    QJsonValue write(const KProperty &property)
    {
        QJsonValue value = PropertySetCreator::valueToJson(property, m_flag);
        const int priority = priorityOf(property);
        const bool hasPriority = priority != int(PropertySetCreator::Priority::Unset);
        if (value.isUndefined() || (!property.isVisible() && !hasPriority))
            return value;
        QJsonObject entry;
        if (const QString &caption = groupCaptionOf(property); !caption.isEmpty())
            entry.insert(GROUP_KEY, caption);
        entry.insert(NAME_KEY, QString::fromUtf8(property.name()));
        if (hasPriority)
            entry.insert(QLatin1String(kPriorityOption), priority);
        entry.insert(VALUE_KEY, value);
        return entry;
    }

private:
    /// Empty for the group which has none. Neighbours mostly share a group.
    const QString &groupCaptionOf(const KProperty &property)
    {
        const QByteArray name = m_set.groupNameForProperty(property);
        if (name != m_groupName || m_groupName.isNull()) {
            m_groupName = name;
            m_caption = m_set.groupCaption(name);
            if (m_caption == m_set.groupCaption(kCommonGroup))
                m_caption.clear();
        }
        return m_caption;
    }

    const KPropertySet &m_set;
    PropertyConversionFlag m_flag;
    QByteArray m_groupName;
    QString m_caption;
};

Error emptyCell(const QByteArray &json)
{
    qCWarning(propertyEditorLog) << "Entire JSON:" << json;
    return {ErrorCode::MalformedStructure, PropertySetCreator::tr("Invalid JSON object.")};
}

} // namespace

Result<KPropertySet *> PropertySetCreator::jsonToPropertySet(const QByteArray &json,
                                                             const std::optional<BaseItemType> &type,
                                                             const LoadContext &context)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        qCWarning(propertyEditorLog) << "Parse error in JSON at offset" << parseError.offset
                                     << "message:" << parseError.errorString();
        qCWarning(propertyEditorLog) << "Entire JSON:" << json;
        return Error(ErrorCode::MalformedStructure, tr("Failed to parse json."));
    }
    if (document.object().isEmpty())
        return emptyCell(json);
    return objectToPropertySet(document.object(), type, context);
}

Result<KPropertySet *> PropertySetCreator::objectToPropertySet(const QJsonObject &cell,
                                                               const std::optional<BaseItemType> &type,
                                                               const LoadContext &context)
{
    if (cell.isEmpty())
        return emptyCell(QJsonDocument(cell).toJson(QJsonDocument::Compact));
    auto set = std::make_unique<KPropertySet>();
    if (Error error = SetFiller(type, context, set.get()).fill(cell); error.hasError())
        return error;
    WflwMetaData::setPresetMetaData(set.get());
    return set.release();
}

bool PropertySetCreator::propertySetToJson(const KPropertySet &set, QByteArray *json,
                                           PropertyConversionFlag flag)
{
    const std::optional<QJsonObject> cell = propertySetToObject(set, flag);
    if (cell)
        *json = QJsonDocument(*cell).toJson(QJsonDocument::Indented);
    return cell.has_value();
}

std::optional<QJsonObject> PropertySetCreator::propertySetToObject(const KPropertySet &set,
                                                                   PropertyConversionFlag flag)
{
    QJsonObject cell;
    QJsonArray entries;
    EntryWriter writer(set, flag);
    for (KPropertySetIterator it(set); it.current(); ++it) {
        const KProperty &property = *it.current();
        if (isHidden(property)) {
            cell.insert(QString::fromUtf8(property.name().mid(1)), property.value().toString());
            continue;
        }
        const QJsonValue entry = writer.write(property);
        if (entry.isUndefined()) {
            qCWarning(propertyEditorLog) << "Cannot store the value of" << property.name();
            return {};
        }
        entries.append(entry);
    }
    cell.insert(PROPERTIES_KEY, entries);
    return cell;
}

KProperty *PropertySetCreator::createDefaultProperty(PropertyId id, Priority priority)
{
    auto property = std::make_unique<KProperty>();
    if (!setKPropertyType(id, property.get())) {
        qCWarning(propertyEditorLog) << "Can't set type for property" << id;
        return nullptr;
    }
    setTexts(id, property.get());
    QVariant value = PropertiesNames::defaultValueForType(id);
    if (property->type() == KProperty::ValueFromList) {
        fillListData(id, property.get());
        bool ok = false;
        value = listText(id, value, &ok);
        if (!ok) {
            qCWarning(propertyEditorLog)
                << "Problems with finding list value for property" << property->name();
            value = {};
        }
    } else if (property->type() == PropertiesTraits::CheckableListType) {
        property->setOption(OPTION_AVAILABLE_ITEMS.data(),
                            UserVisibleListConverter::valuesForCheckableList(id));
    }
    property->setValue(value, KProperty::ValueOption::IgnoreOld);
    applyEditor(editorForProperty(id), property.get());
    property->setOption(kPriorityOption, int(priority));
    return property.release();
}

bool PropertySetCreator::modifyKProperty(PropertyId id, Priority priority, const QJsonValue &value,
                                         KProperty *property, QList<QString> *errors)
{
    return makeOfKind(id, priority, property, errors) && readInto(id, value, property, errors);
}

bool PropertySetCreator::modifyKProperty(PropertyId id, Priority priority, KProperty *property,
                                         QList<QString> *errors)
{
    if (editorForProperty(id) != Editor::Unset)
        return modifyKProperty(id, priority, QJsonObject{{DATA, QString()}}, property, errors);
    // In a file, null is no entry of a list; here nobody chose one, and the first stands.
    const QJsonValue value = listPropertiesData().contains(id) ? QJsonValue(0) : QJsonValue();
    return modifyKProperty(id, priority, value, property, errors);
}

bool PropertySetCreator::setKPropertyType(PropertyId id, KProperty *property)
{
    const QString typeName = PropertiesNames::valueTypeNameOfPropertyType(id);
    if (!setKPropertyTypeFromString(typeName.toUtf8(), property))
        return false;
    const QMap<QByteArray, QString> options = PropertiesNames::typeOptionsOfPropertyType(id);
    for (auto it = options.begin(); it != options.end(); ++it)
        property->setOption(it.key().constData(), it.value());
    return true;
}

bool PropertySetCreator::setKPropertyTypeFromString(const QByteArray &typeName, KProperty *property)
{
    if (typeName.isEmpty()) {
        qCWarning(propertyEditorLog) << "Type name is empty for property" << property->name();
        return false;
    }
    const PropertiesTraits::TypeFeatures features =
        PropertiesTraits::typeFeatures(QString::fromUtf8(typeName));
    property->setType(features.type);
    for (auto it = features.options.begin(); it != features.options.end(); ++it)
        property->setOption(it.key().constData(), it.value());
    return true;
}

PropertySetCreator::Editor PropertySetCreator::editorForProperty(PropertyId id)
{
    static_assert(std::ranges::is_sorted(kEditors, {}, &EditorRow::id));
    const auto *const found = std::ranges::lower_bound(kEditors, id, {}, &EditorRow::id);
    return found != kEditors.end() && found->id == id ? found->editor : Editor::Unset;
}

const QMap<PropertyId, QStringList> &PropertySetCreator::listPropertiesData()
{
    return UserVisibleListConverter::listItemsMap();
}

bool PropertySetCreator::isStringSerializableList(PropertyId id)
{
    return UserVisibleListConverter::isStringSerializableList(id);
}

} // namespace orv
