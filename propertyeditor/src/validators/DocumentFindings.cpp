#include "orv/propertyeditor/validators/DocumentFindings.h"

#include <KProperty>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/resources/ResourceReference.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <functional>

namespace orv::PropertyEditor {

using namespace PropertyEditorStringConstants;

namespace {

struct DocumentFindingsTr
{
    Q_DECLARE_TR_FUNCTIONS(DocumentFindings)
};

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

bool hasControl(const QString &text)
{
    return std::ranges::any_of(text, isControl);
}

/// The text with its control characters as a file writes them.
QString shown(const QString &text)
{
    QString result;
    for (const QChar character : text) {
        if (!isControl(character))
            result += character;
        else if (const qsizetype known = QStringView(u"\b\f\n\r\t").indexOf(character); known >= 0)
            result += QLatin1Char('\\') + QStringView(u"bfnrt").at(known);
        else
            result += QStringLiteral("\\u%1").arg(uint(character.unicode()), 4, 16, QLatin1Char('0'));
    }
    return result;
}

LocatedFinding controlFinding(const QString &path, const NamedPlace &place)
{
    return {
        place,
        Finding::Level::Warning,
        QStringLiteral("Text/controlCharacter"),
        DocumentFindingsTr::tr("The path \"%1\" holds a control character.").arg(shown(path)),
        {},
        DocumentFindingsTr::tr("A backslash that was written once makes one of the letter behind it: write "
                               "\\\\ in the file, or / instead.")};
}

/// One entry of "properties" in the text of a document.
struct EntryPlace
{
    NamedPlace place; ///< of its value
    QJsonObject entry;
    BaseItemType type = BaseItemType::Unknown;
    PropertyId id = PropertyId::NoProperty;
};

void forEachEntryOfCell(const QJsonObject &cell, const NamedPlace &cellPlace,
                        const std::function<void(const EntryPlace &)> &visit)
{
    const BaseItemType type =
        findBaseItemType(cell.value(TYPE_KEY).toString()).value_or(BaseItemType::Unknown);
    const QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QJsonObject entry = entries.at(i).toObject();
        const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat(entry, type);
        NamedPlace place = cellPlace;
        place.property = PropertiesNames::internalNameForType(id);
        place.pointer += QStringLiteral("/%1/%2/%3").arg(PROPERTIES_KEY).arg(i).arg(VALUE_KEY);
        visit({place, entry, type, id});
    }
}

void forEachEntry(const QJsonObject &document, const std::function<void(const EntryPlace &)> &visit)
{
    const QJsonArray tabs = document.value(TABS_KEY).toArray();
    for (qsizetype t = 0; t < tabs.size(); ++t) {
        const QJsonObject tab = tabs.at(t).toObject();
        const QJsonArray columns = tab.value(COLUMNS_KEY).toArray();
        const QJsonArray cells = tab.value(CELLS_KEY).toArray();
        for (qsizetype c = 0; c < cells.size() && !columns.isEmpty(); ++c) {
            NamedPlace place;
            place.tab = tab.value(NAME_KEY).toString();
            place.column = columns.at(c % columns.size()).toString();
            place.row = int(c / columns.size());
            place.pointer = QStringLiteral("/%1/%2/%3/%4").arg(TABS_KEY).arg(t).arg(CELLS_KEY).arg(c);
            forEachEntryOfCell(cells.at(c).toObject(), place, visit);
        }
    }
}

/// Texts below a value, as deep as the parser of the document lets it nest.
void forEachText(const QJsonValue &value, const QString &pointer,
                 const std::function<void(const QString &text, const QString &pointer)> &visit)
{
    if (value.isString()) {
        visit(value.toString(), pointer);
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (qsizetype i = 0; i < array.size(); ++i)
            forEachText(array.at(i), pointer + QLatin1Char('/') + QString::number(i), visit);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            forEachText(it.value(), pointer + QLatin1Char('/') + jsonPointerToken(it.key()), visit);
    }
}

/// The texts of the references that hold control characters, in their order.
QStringList oddReferences(const Content &content)
{
    QStringList texts;
    for (const ResourceReferenceSPtr &reference : content.allReferences()) {
        if (hasControl(reference->text()))
            texts.append(reference->text());
    }
    return texts;
}

bool isOneOf(const QSet<QString> &references, const QString &text)
{
    if (!hasControl(text))
        return false;
    const Result<ResourceReferenceSPtr> reference = ResourceReference::fromString(text);
    return references.contains(text) ||
           (reference && *reference && references.contains((*reference)->text()));
}

} // namespace

QList<LocatedFinding> DocumentFindings::controlCharacters(const Content &content, const QJsonObject &document)
{
    QList<LocatedFinding> findings;
    const QStringList texts = oddReferences(content);
    if (texts.isEmpty())
        return findings;
    const QSet<QString> odd(texts.begin(), texts.end());
    forEachEntry(document, [&](const EntryPlace &found) {
        forEachText(found.entry.value(VALUE_KEY), found.place.pointer,
                    [&](const QString &text, const QString &pointer) {
                        if (!isOneOf(odd, text))
                            return;
                        NamedPlace place = found.place;
                        place.pointer = pointer;
                        findings.append(controlFinding(text, place));
                    });
    });
    if (findings.isEmpty()) {
        for (const QString &text : texts)
            findings.append(controlFinding(text, {}));
    }
    return findings;
}

QList<LocatedFinding> DocumentFindings::numbersWithoutQuotes(const QJsonObject &document)
{
    QList<LocatedFinding> findings;
    forEachEntry(document, [&findings](const EntryPlace &found) {
        const QJsonValue value = found.entry.value(VALUE_KEY);
        if (!value.isDouble() || found.id == PropertyId::NoProperty || !KeyValueItem::holds(found.type) ||
            PropertiesNames::valueTypeOfPropertyType(found.id) != KProperty::Double)
            return;
        const QString number = QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
        findings.append(
            {found.place,
             Finding::Level::Warning,
             QStringLiteral("Text/numberWithoutQuotes"),
             DocumentFindingsTr::tr("The number %1 of the setting \"%2\" stands without quotes, and engines "
                                    "read 0 from it.")
                 .arg(number, found.place.property),
             {},
             DocumentFindingsTr::tr("Write \"%1\" in quotes; saving the document does so, too.")
                 .arg(number)});
    });
    return findings;
}

QList<LocatedFinding> DocumentFindings::of(const Content &content, const QJsonObject &document)
{
    return controlCharacters(content, document) + numbersWithoutQuotes(document);
}

} // namespace orv::PropertyEditor
