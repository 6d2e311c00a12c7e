#include "FormChecks.h"

#include "Survival.h"

#include <orv/core/JsonScanner.h>
#include <orv/core/JsonUtils.h>
#include <orv/core/LossObserver.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/content/RawCell.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

/// Colons outside texts: one for each member of each object, whether a parser kept it or not.
qsizetype countMembersInText(const QByteArray &json)
{
    qsizetype count = 0;
    bool inText = false;
    for (qsizetype i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (inText && c == '\\')
            ++i;
        else if (c == '"')
            inText = !inText;
        else if (c == ':' && !inText)
            ++count;
    }
    return count;
}

qsizetype countMembers(const QJsonValue &value) // the parser bounds the depth
{
    qsizetype count = 0;
    if (value.isObject()) {
        for (const QJsonValue member : value.toObject())
            count += 1 + countMembers(member);
    } else if (value.isArray()) {
        for (const QJsonValue element : value.toArray())
            count += countMembers(element);
    }
    return count;
}

QJsonValue rootOf(const QJsonDocument &document)
{
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QString checkRefusedJson(const QByteArray &bytes, const Error &error)
{
    if (error.code() != ErrorCode::InvalidContent || error.errorMessage().isEmpty() ||
        error.details().size() < 2)
        return u"a refusal needs its code, a message, the place and a remedy"_s;
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    const std::optional<JsonFault> fault = document.isNull() ? std::nullopt : findJsonFault(bytes);
    if (fault && fault->kind != JsonFault::Kind::DuplicateKey)
        return {};
    if (!document.isNull() && countMembers(rootOf(document)) == countMembersInText(bytes))
        return u"refused, though a plain parse keeps all members"_s;
    return {};
}

QJsonObject withoutKeys(QJsonObject object, std::initializer_list<QLatin1StringView> keys)
{
    for (QLatin1StringView key : keys)
        object.remove(key);
    return object;
}

/// What of a value form must survive a write: all but the stamps.
QJsonObject substanceOf(const PropertyEditorContent &content)
{
    QJsonArray tabs;
    for (const auto &[name, columnsAndCells] : content.tabsAndContent()) {
        QJsonArray cells;
        for (const QVariant &cell : columnsAndCells.second)
            cells.append(withoutKeys(RawCell::objectOf(cell), {"metadata"_L1}));
        tabs.append(QJsonObject{{u"name"_s, name},
                                {u"columns"_s, QJsonArray::fromStringList(columnsAndCells.first)},
                                {u"cells"_s, cells}});
    }
    return {{u"tabs"_s, tabs},
            {u"metadata"_s, withoutKeys(content.metadata(), {"user"_L1, "created"_L1, "version"_L1})},
            {u"extendedMetadata"_s, content.extendedMetadataInfo()}};
}

/// Whether the last row of a tab is cut: the format has rectangles only, and writes such a tab empty.
bool hasCutRow(const QJsonObject &document)
{
    for (const QJsonValue tab : document.value("tabs"_L1).toArray()) {
        const qsizetype columns = tab.toObject().value("columns"_L1).toArray().size();
        if (columns > 0 && tab.toObject().value("cells"_L1).toArray().size() % columns != 0)
            return true;
    }
    return false;
}

/// Whether a written document must hold what was read.
enum class AfterWrite
{
    IsTheSame,
    MayDiffer
};

QString checkObjectFormWith(const QJsonObject &document, PropertyEditor::ValidationOptions options,
                            AfterWrite expected)
{
    LossCollector collector;
    PropertyEditor::Content content;
    content.setLossObserver(&collector);
    if (const Error error = content.assignFromJson(document, options)) {
        const bool known =
            error.code() == ErrorCode::MalformedStructure || error.code() == ErrorCode::InvalidContent;
        return known ? QString() : u"a refusal needs one of the codes of documents"_s;
    }
    const QByteArray written = content.toJson(PropertyEditor::PropertyConversionFlag::KeepPaths);
    if (expected == AfterWrite::MayDiffer)
        return {};
    const Result<QJsonObject> again = JsonUtils::objectFromJson(written);
    if (again.hasError())
        return u"what was written is no document: "_s + again.error().errorMessage();
    PropertyEditor::Content readBack;
    if (const Error error = readBack.assignFromJson(*again, options))
        return u"what was written is refused: "_s + error.errorMessage();
    const Result<QJsonObject> second =
        JsonUtils::objectFromJson(readBack.toJson(PropertyEditor::PropertyConversionFlag::KeepPaths));
    // Each load stamps cells of settings with its time.
    if (second.hasError() || !PropertyEditorJsonUtils::compareWorkflows(*again, *second, false) ||
        again->value("metadata"_L1) != second->value("metadata"_L1) ||
        again->value("extendedMetadata"_L1) != second->value("extendedMetadata"_L1))
        return u"a second write differs from the first"_s;
    if (collector.losses().isEmpty() && !survives(document.value("tabs"_L1), again->value("tabs"_L1)))
        return u"tabs were changed without a word"_s;
    return {};
}

} // namespace

QString checkJson(const QByteArray &bytes)
{
    if (const std::optional<JsonFault> fault = findJsonFault(bytes)) {
        // What is no JSON at all has no numbers: any text may surround its points.
        const QByteArrayView begin = fault->kind == JsonFault::Kind::IllegalEscape  ? "\\"
                                     : fault->kind == JsonFault::Kind::DuplicateKey ? "\""
                                                                                    : "";
        if (fault->offset < 0 || fault->offset >= bytes.size() ||
            !QByteArrayView(bytes).sliced(fault->offset).startsWith(begin))
            return u"a fault doesn't begin where it is said to"_s;
    }
    const Result<QJsonDocument> document = JsonUtils::documentFromJson(bytes);
    if (losesMarks(bytes))
        return {};
    if (document.hasError())
        return checkRefusedJson(bytes, document.error());
    if (countMembers(rootOf(*document)) != countMembersInText(bytes))
        return u"members were lost without a word"_s;
    for (const QJsonDocument::JsonFormat format : {QJsonDocument::Compact, QJsonDocument::Indented}) {
        const Result<QJsonDocument> again = JsonUtils::documentFromJson(document->toJson(format));
        if (again.hasError())
            return u"what was written is refused: "_s + again.error().errorMessage();
        if (*again != *document)
            return u"what was written reads as something else"_s;
    }
    return {};
}

QString checkValueForm(const QByteArray &bytes)
{
    const PropertyEditorContent content(bytes);
    if (!QJsonDocument::fromJson(bytes).isObject()) {
        const bool isEmpty = content.tabsAndContent().isEmpty() && content.metadata().isEmpty();
        return isEmpty ? QString() : u"what is no document must leave the value empty"_s;
    }
    const QByteArray written = content.toJson();
    if (losesMarks(bytes))
        return {};
    const Result<QJsonObject> again = JsonUtils::objectFromJson(written);
    if (again.hasError())
        return u"what was written is no document: "_s + again.error().errorMessage();
    if (substanceOf(PropertyEditorContent(written)) != substanceOf(content))
        return u"what was written reads as another value"_s;
    if (substanceOf(PropertyEditorContent(*again)) != substanceOf(content))
        return u"bytes and their parsed object read as different values"_s;
    return {};
}

QString checkObjectForm(const QByteArray &bytes)
{
    const Result<QJsonObject> document = JsonUtils::objectFromJson(bytes);
    if (document.hasError())
        return {};
    const bool mayDiffer = losesMarks(bytes) || hasCutRow(*document);
    const AfterWrite expected = mayDiffer ? AfterWrite::MayDiffer : AfterWrite::IsTheSame;
    QString wrong = checkObjectFormWith(*document, {}, expected);
    if (wrong.isEmpty())
        wrong =
            checkObjectFormWith(*document, PropertyEditor::ValidationOption::SkipTypeValidation, expected);
    return wrong;
}

} // namespace FormChecks
