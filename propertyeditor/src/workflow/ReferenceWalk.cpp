#include "ReferenceWalk.h"

#include "NameMatching.h"

#include <orv/core/JsonUtils.h>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace orv {

using namespace PropertyEditorStringConstants;

namespace {

constexpr QLatin1String kSamplesKey("Samples");
constexpr QLatin1String kSampleNameKey("SampleName");
constexpr QLatin1String kFileMetadataKey("FileMetadata");
constexpr QLatin1String kSequencesKey("sequences");
constexpr QLatin1String kFastaKey("fasta");

/// Members of a sample, or columns of the tree of rows of old documents.
constexpr std::array kSampleReferences = {QLatin1String("SamplePath"),      QLatin1String("FilePath"),
                                          QLatin1String("FileName"),        QLatin1String("Traces"),
                                          QLatin1String("TracesCsv"),       QLatin1String("TracesMs"),
                                          QLatin1String("ExtraReferences"), QLatin1String("Ms2Search")};

bool isSampleReference(const QString &name)
{
    return std::ranges::find(kSampleReferences, name) != kSampleReferences.end();
}

/// The group with the path and what stands around it.
const QRegularExpression &libraryPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral(
            R"(^(\s*\[\s*Library\s*\][^\[]*?^\s*ProjectPath\s*=[ \t]*"?)([^"\r\n]*?)("?[ \t]*\r?)$)"),
        QRegularExpression::MultilineOption);
    return pattern;
}

QStringList namesOfTabs(const QJsonArray &tabs)
{
    QStringList names;
    for (const auto tab : tabs)
        names.append(tab[NAME_KEY].toString());
    return names;
}

/// The key under which the value of a setting is called in reports.
QString settingName(PropertyId id, const QJsonObject &entry)
{
    return id == PropertyId::NoProperty ? entry.value(NAME_KEY).toString()
                                        : PropertiesNames::internalNameForType(id);
}

} // namespace

ReferenceWalk::Place ReferenceWalk::Place::at(const QString &key, const QString &label) const
{
    return {path.isEmpty() ? label : path + QLatin1String(" / ") + label,
            pointer + QLatin1Char('/') + jsonPointerToken(key)};
}

ReferenceWalk::Place ReferenceWalk::Place::at(qsizetype index, const QString &label) const
{
    return at(QString::number(index), label);
}

ReferenceWalk::Place ReferenceWalk::Place::inside(const QString &key) const
{
    return {path, pointer + QLatin1Char('/') + jsonPointerToken(key)};
}

QJsonObject ReferenceWalk::walk(QJsonObject document) const
{
    QJsonArray tabs = document.value(TABS_KEY).toArray();
    if (tabs.isEmpty())
        return document;
    const CountedNames names(namesOfTabs(tabs));
    const Place place = Place().inside(TABS_KEY);
    for (qsizetype i = 0; i < tabs.size(); ++i) {
        if (tabs.at(i).isObject())
            tabs[i] = walkTab(tabs.at(i).toObject(), place.at(i, CountedNames::label(names.keys().at(i))));
    }
    document.insert(TABS_KEY, tabs);
    return document;
}

QJsonObject ReferenceWalk::walkTab(QJsonObject tab, const Place &place) const
{
    QJsonArray cells = tab.value(CELLS_KEY).toArray();
    if (cells.isEmpty())
        return tab;
    const CountedNames columns(
        PropertyEditorJsonUtils::jsonArrayToStringList(tab.value(COLUMNS_KEY).toArray()));
    const qsizetype width = std::max<qsizetype>(1, columns.keys().size());
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (!cells.at(i).isObject())
            continue;
        const QString column =
            columns.keys().isEmpty() ? QString() : CountedNames::label(columns.keys().at(i % width));
        const Place cell = place.inside(CELLS_KEY).at(i, column);
        cells[i] = walkCell(cells.at(i).toObject(),
                            {cell.path + QStringLiteral(" / row %1").arg(i / width), cell.pointer});
    }
    tab.insert(CELLS_KEY, cells);
    return tab;
}

QJsonObject ReferenceWalk::walkCell(QJsonObject cell, const Place &place) const
{
    QJsonArray entries = cell.value(PROPERTIES_KEY).toArray();
    if (entries.isEmpty())
        return cell;
    const BaseItemType type =
        PropertyEditor::BaseItem::typeNameMap().key(cell.value(TYPE_KEY).toString(), BaseItemType::Unknown);
    for (qsizetype i = 0; i < entries.size(); ++i) {
        QJsonObject entry = entries.at(i).toObject();
        if (!entry.contains(VALUE_KEY))
            continue;
        const PropertyId id = PropertyEditorJsonUtils::findPropertyBackCompat(entry, type);
        const Place setting = place.inside(PROPERTIES_KEY).at(i, settingName(id, entry)).inside(VALUE_KEY);
        entry.insert(VALUE_KEY, walkSetting(id, entry.value(VALUE_KEY), setting));
        entries[i] = entry;
    }
    cell.insert(PROPERTIES_KEY, entries);
    return cell;
}

QJsonValue ReferenceWalk::walkSetting(PropertyId id, const QJsonValue &value, const Place &place) const
{
    if (id == PropertyId::SamplesTable && value.isObject())
        return walkSamples(value.toObject(), place);
    if (id == PropertyId::SequenceDatabases && value.isObject())
        return walkDatabases(value.toObject(), place);
    if (id == PropertyId::GlycanOptions && value.isObject())
        return walkGlycanRows(value.toObject(), place);
    if (PropertyEditorUtils::propertiesWithGlycanDatabases().contains(id))
        return walkGlycans(value, place);
    if (!value.isString())
        return value;
    const bool isReference =
        id == PropertyId::SequenceDatabases || PropertyEditorUtils::propertiesWithReferences().contains(id);
    if (isReference)
        return walkText(Kind::Reference, value.toString(), place);
    const QString text = value.toString();
    if (id == PropertyId::AdvancedConfiguration)
        return walkExpertText(text, place);
    return text.contains(QLatin1Char('\n')) ? value : walkText(Kind::PlainText, text, place);
}

QJsonValue ReferenceWalk::walkSamples(QJsonObject table, const Place &place) const
{
    QJsonArray samples = table.value(kSamplesKey).toArray();
    for (qsizetype i = 0; i < samples.size(); ++i) {
        const QJsonObject sample = samples.at(i).toObject();
        if (!sample.isEmpty())
            samples[i] =
                walkSample(sample, place.inside(kSamplesKey).at(i, sample.value(kSampleNameKey).toString()));
    }
    if (!samples.isEmpty())
        table.insert(kSamplesKey, samples);
    return walkSampleRows(table, place);
}

QJsonObject ReferenceWalk::walkSample(QJsonObject sample, const Place &place) const
{
    QJsonObject metadata = sample.value(kFileMetadataKey).toObject();
    ReferenceWalk follower([this, &metadata](Kind kind, const Place &there, const QString &text) {
        std::optional<QString> moved = m_visit(kind, there, text);
        if (moved && metadata.contains(text))
            metadata.insert(*moved, metadata.take(text));
        return moved;
    });
    for (const QLatin1String key : kSampleReferences) {
        if (sample.contains(key))
            sample.insert(key, follower.walkTexts(Kind::Reference, sample.value(key), place.at(key)));
    }
    if (!metadata.isEmpty())
        sample.insert(kFileMetadataKey, metadata);
    return sample;
}

/// The samples of old documents: a table whose head names the columns.
QJsonObject ReferenceWalk::walkSampleRows(QJsonObject root, const Place &place) const
{
    const QJsonArray head = root.value(DATA).toArray();
    QJsonArray rows = root.value(CHILDREN).toArray();
    const qsizetype nameColumn =
        std::find(head.begin(), head.end(), QJsonValue(kSampleNameKey)) - head.begin();
    for (qsizetype i = 0; i < rows.size(); ++i) {
        QJsonObject row = rows.at(i).toObject();
        QJsonArray cells = row.value(DATA).toArray();
        const Place sample = place.inside(CHILDREN).at(i, cells.at(nameColumn).toString()).inside(DATA);
        for (qsizetype column = 0; column < std::min(cells.size(), head.size()); ++column) {
            const QString name = head.at(column).toString();
            if (isSampleReference(name))
                cells[column] = walkTexts(Kind::Reference, cells.at(column), sample.at(column, name));
        }
        if (!cells.isEmpty())
            row.insert(DATA, cells);
        if (!row.isEmpty())
            rows[i] = row;
    }
    if (!rows.isEmpty())
        root.insert(CHILDREN, rows);
    return root;
}

QJsonValue ReferenceWalk::walkDatabases(QJsonObject table, const Place &place) const
{
    QJsonArray sequences = table.value(kSequencesKey).toArray();
    for (qsizetype i = 0; i < sequences.size(); ++i) {
        QJsonObject item = sequences.at(i).toObject();
        if (!item.contains(kFastaKey))
            continue;
        const Place fasta = place.inside(kSequencesKey).at(i, QStringLiteral("row %1").arg(i));
        item.insert(kFastaKey, walkTexts(Kind::Reference, item.value(kFastaKey), fasta.inside(kFastaKey)));
        sequences[i] = item;
    }
    if (!sequences.isEmpty())
        table.insert(kSequencesKey, sequences);
    return table;
}

/// Of the table in which each row may name databases in brackets.
QJsonValue ReferenceWalk::walkGlycanRows(QJsonObject root, const Place &place) const
{
    QJsonArray rows = root.value(CHILDREN).toArray();
    for (qsizetype i = 0; i < rows.size(); ++i) {
        QJsonObject row = rows.at(i).toObject();
        QJsonArray cells = row.value(DATA).toArray();
        const Place there = place.inside(CHILDREN).at(i, QStringLiteral("row %1").arg(i)).inside(DATA);
        for (qsizetype column = 0; column < cells.size(); ++column) {
            if (cells.at(column).isString())
                cells[column] =
                    walkBrackets(cells.at(column).toString(), there.inside(QString::number(column)));
        }
        if (!cells.isEmpty()) {
            row.insert(DATA, cells);
            rows[i] = row;
        }
    }
    if (!rows.isEmpty())
        root.insert(CHILDREN, rows);
    return root;
}

/// The value is an object, or the text of one.
QJsonValue ReferenceWalk::walkGlycans(const QJsonValue &value, const Place &place) const
{
    QJsonObject object = value.isString() ? JsonUtils::objectFromJson(value.toString().toUtf8()).valueOr({})
                                          : value.toObject();
    const QString text = PropertyEditorJsonUtils::storedSerializedGlycans(object);
    const QString moved = walkBrackets(text, place);
    if (moved == text)
        return value;
    PropertyEditorJsonUtils::updateStoredSerializedGlycans(&object, moved);
    return value.isString() ? QJsonValue(QString::fromUtf8(JsonUtils::toCompactJson(object)))
                            : QJsonValue(object);
}

QString ReferenceWalk::walkBrackets(const QString &text, const Place &place) const
{
    static const QRegularExpression brackets(QStringLiteral(R"(\[(.*?)\])"));
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : brackets.globalMatch(text)) {
        result += QStringView(text).mid(end, match.capturedStart(1) - end);
        result += walkText(Kind::GlycanDatabase, match.captured(1), place);
        end = match.capturedEnd(1);
    }
    result += QStringView(text).mid(end);
    return result;
}

/// Experts name the library of a search by a path.
QString ReferenceWalk::walkExpertText(const QString &text, const Place &place) const
{
    const QRegularExpressionMatch match = libraryPattern().match(text);
    if (!match.hasMatch())
        return text;
    const Place library{place.path + QLatin1String(" / Library/ProjectPath"), place.pointer};
    return text.left(match.capturedStart(2)) + walkText(Kind::Reference, match.captured(2), library) +
           text.mid(match.capturedEnd(2));
}

QJsonValue ReferenceWalk::walkTexts(Kind kind, const QJsonValue &value, const Place &place) const
{
    if (value.isString())
        return walkText(kind, value.toString(), place);
    if (!value.isArray())
        return value;
    QJsonArray texts = value.toArray();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (texts.at(i).isString())
            texts[i] = walkText(kind, texts.at(i).toString(), place.inside(QString::number(i)));
    }
    return texts;
}

QString ReferenceWalk::walkText(Kind kind, const QString &text, const Place &place) const
{
    return text.isEmpty() ? text : m_visit(kind, place, text).value_or(text);
}

} // namespace orv
