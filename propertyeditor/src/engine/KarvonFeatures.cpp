#include "KarvonFeatures.h"

#include <orv/chemistry/InclusionList.h>
#include <orv/chemistry/KarvonConstants.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/table/KeyValueSimpleParser.h>

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace orv {

using PropertyEditor::KeyValueItem;

namespace {

using TextOf = QString (*)(const QJsonObject &object, const KeyValueItem &item);

/// An object setting and the text in it that goes to the engine.
struct ObjectRow
{
    PropertyId id;
    TextOf textOf;
};

/// Tells the engine that the search is for oligonucleotides.
const QHash<QString, QString> &oligoOptions()
{
    static const QHash<QString, QString> options = {
        {QStringLiteral("enable_rps"), QStringLiteral("0")},
        {QStringLiteral("cleavage_flags"), QStringLiteral("0")},
        {QStringLiteral("oligo_search"), QStringLiteral("1")},
    };
    return options;
}

int machineTypeOf(KarvonMoleculeType molecule)
{
    static const QHash<KarvonMoleculeType, int> machineTypes = {
        {KarvonMoleculeType::Rna, 7},
        {KarvonMoleculeType::Dna, 5},
    };
    return machineTypes.value(molecule, 0);
}

QString modifications(const QJsonObject &object, const KeyValueItem &item)
{
    QString text = object.value(QLatin1String("modifications")).toString();
    if (!item.contains(PropertyId::KarvonMoleculeType))
        return text;
    KeyValueSimpleParser parser(text);
    parser.addOptions(oligoOptions());
    return parser.toString();
}

constexpr std::array kObjects = {
    ObjectRow{PropertyId::KarvonGlycanText,
              [](const QJsonObject &object, const KeyValueItem &) {
                  return object.value(QLatin1String("glycans")).toString();
              }},
    ObjectRow{
        PropertyId::KarvonInclusionFilter,
        [](const QJsonObject &object, const KeyValueItem &) { return InclusionList::toString(object); }},
    ObjectRow{PropertyId::KarvonModText, modifications},
    ObjectRow{PropertyId::KarvonPeakFilterSelected,
              [](const QJsonObject &object, const KeyValueItem &) {
                  return object.value(QLatin1String("peakfilter")).toString();
              }},
};

/// An object or its text; empty, with a warning unless there is no text, for anything else.
QJsonObject objectOf(PropertyId id, const QVariant &value)
{
    if (value.typeId() == QMetaType::QJsonObject)
        return value.toJsonObject();
    const QByteArray text = value.toString().toUtf8();
    if (text.isEmpty())
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        qCWarning(propertyEditorLog())
            << "The value is no JSON object and is left out:" << PropertiesNames::internalNameForType(id);
    return document.object();
}

} // namespace

KarvonFeatures::KarvonFeatures(const KeyValueItem &item)
{
    const QStringList keys = item.keys();
    for (const QString &key : keys) {
        const PropertyId id = PropertiesNames::findPropertyForName(key);
        const QVariant value = id == PropertyId::NoProperty ? QVariant() : item.value(key);
        if (!value.isNull())
            add(id, value, item);
    }
}

void KarvonFeatures::add(PropertyId id, const QVariant &value, const KeyValueItem &item)
{
    const auto *const row = std::ranges::find(kObjects, id, &ObjectRow::id);
    if (row != kObjects.end()) {
        const QJsonObject object = objectOf(id, value);
        if (object.isEmpty())
            return;
        if (const QString text = row->textOf(object, item); !text.isEmpty()) {
            m_features.insert(id, text);
            return;
        }
    }
    const QVariant real = UserVisibleListConverter::realListValue(id, value);
    // The molecule of an oligonucleotide search stands in for the machine; whichever comes later counts.
    if (id == PropertyId::KarvonMoleculeType)
        m_features.insert(PropertyId::KarvonMachineType, machineTypeOf(KarvonMoleculeType(real.toInt())));
    else
        m_features.insert(id, real);
}

QVariant KarvonFeatures::value(PropertyId id) const
{
    const QVariant stored = feature(id);
    return stored.isNull() ? PropertiesNames::defaultValueForType(id) : stored;
}

} // namespace orv
