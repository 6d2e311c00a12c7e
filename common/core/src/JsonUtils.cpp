#include "orv/core/JsonUtils.h"

#include <orv/core/JsonScanner.h>

#include <QCoreApplication>

#include <algorithm>

namespace orv::JsonUtils {

namespace {

struct JsonUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(JsonUtils)
};

QString placeText(QByteArrayView json, qsizetype offset)
{
    const TextPosition position = positionOfOffset(json, offset);
    return JsonUtilsTr::tr("Line %1, column %2.").arg(position.line).arg(position.column);
}

bool looksLikeUtf16(const QByteArray &json)
{
    // Without a mark: of the two bytes of a bracket or a blank, one is zero.
    return json.startsWith("\xFF\xFE") || json.startsWith("\xFE\xFF") ||
           (json.size() >= 4 && (json[0] == '\0') != (json[1] == '\0'));
}

QString remedyFor(QJsonParseError::ParseError error, const QByteArray &json)
{
    if (json.isEmpty())
        return JsonUtilsTr::tr("The text is empty.");
    if (looksLikeUtf16(json))
        return JsonUtilsTr::tr("The text looks like UTF-16; save it as UTF-8.");
    if (json.contains('\0'))
        return JsonUtilsTr::tr("The file is binary, no text; name another file.");
    switch (error) {
    case QJsonParseError::IllegalUTF8String:
        return JsonUtilsTr::tr("The text is not valid UTF-8 from there on; save it as UTF-8.");
    case QJsonParseError::DeepNesting:
        return JsonUtilsTr::tr("Arrays and objects are nested too deeply; at most 1024 levels are read.");
    case QJsonParseError::IllegalNumber:
        return JsonUtilsTr::tr("There is no number that a double can store.");
    case QJsonParseError::GarbageAtEnd:
        return JsonUtilsTr::tr("Text follows behind the document; remove it.");
    case QJsonParseError::DocumentTooLarge:
        return JsonUtilsTr::tr("The document is too large for one JSON document.");
    default:
        return JsonUtilsTr::tr("Mend the text at that place, or restore the file from a copy.");
    }
}

struct FaultWords
{
    QString message; ///< %1 is the key or the escape
    QString remedy;
};

FaultWords wordsFor(JsonFault::Kind kind)
{
    switch (kind) {
    case JsonFault::Kind::DuplicateKey:
        return {JsonUtilsTr::tr("the key \"%1\" stands twice in one object"),
                JsonUtilsTr::tr("Only one of the two values could be kept; remove the wrong one.")};
    case JsonFault::Kind::IllegalEscape:
        return {JsonUtilsTr::tr("the escape %1 is none that JSON knows"),
                JsonUtilsTr::tr("The backslash would be lost; to mean one, write \\\\. Look at the other "
                                "backslashes too: \\t, \\n and the like are read as control characters.")};
    case JsonFault::Kind::IllegalNumber:
        return {JsonUtilsTr::tr("the number %1 is none that JSON knows"),
                JsonUtilsTr::tr("A point has digits on both sides: write 0.5 and 1.0.")};
    }
    Q_UNREACHABLE();
}

Result<QJsonDocument> parsed(const QByteArray &json)
{
    QJsonParseError parseError;
    QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error == QJsonParseError::NoError && !document.isNull())
        return document;
    Error error(ErrorCode::InvalidContent, parseError.errorString());
    error.addDetail(placeText(json, parseError.offset));
    error.addDetail(remedyFor(parseError.error, json));
    return error;
}

template<typename T>
Result<T> typedValue(const QJsonObject &object, const QString &key, QJsonValue::Type type,
                     T (*convert)(const QJsonValue &))
{
    const QJsonValue value = object.value(key);
    if (value.type() == type)
        return convert(value);
    return Error(ErrorCode::InvalidContent,
                 JsonUtilsTr::tr("\"%1\" must be %2, but there is %3.")
                     .arg(key, typeDescription(type), typeDescription(value.type())));
}

} // namespace

TextPosition positionOfOffset(QByteArrayView json, qsizetype offset)
{
    const QByteArrayView before = json.first(std::clamp<qsizetype>(offset, 0, json.size()));
    QByteArrayView line = before.sliced(before.lastIndexOf('\n') + 1);
    if (line.size() == before.size() && line.startsWith("\xEF\xBB\xBF"))
        line = line.sliced(3);
    const auto beginsCharacter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; };
    TextPosition position;
    position.line += std::count(before.begin(), before.end(), '\n');
    position.column += std::count_if(line.begin(), line.end(), beginsCharacter);
    return position;
}

Error faultOf(const QByteArray &json)
{
    const std::optional<JsonFault> fault = findJsonFault(json);
    if (!fault)
        return Error::NoError;
    const FaultWords words = wordsFor(fault->kind);
    Error error(ErrorCode::InvalidContent, words.message.arg(fault->text));
    error.addDetail(placeText(json, fault->offset));
    error.addDetail(words.remedy);
    return error;
}

Result<QJsonDocument> documentFromJson(const QByteArray &json)
{
    Result<QJsonDocument> document = parsed(json);
    if (document.hasError())
        return document.ecatch();
    ORV_RETURN_IF_ERROR(faultOf(json));
    return document;
}

Result<QJsonObject> objectFromJson(const QByteArray &json)
{
    Result<DoubtfulObject> doubtful = doubtfulObjectFromJson(json);
    if (doubtful.hasError())
        return doubtful.ecatch();
    ORV_RETURN_IF_ERROR(doubtful->fault);
    return doubtful->object;
}

Result<DoubtfulObject> doubtfulObjectFromJson(const QByteArray &json)
{
    Result<QJsonDocument> document = parsed(json);
    if (document.hasError())
        return document.ecatch();
    if (!document->isObject())
        return Error(ErrorCode::InvalidContent, JsonUtilsTr::tr("The JSON document is not an object."));
    return DoubtfulObject{document->object(), faultOf(json)};
}

Result<QJsonObject> objectValue(const QJsonObject &object, const QString &key)
{
    return typedValue<QJsonObject>(object, key, QJsonValue::Object,
                                   [](const QJsonValue &value) { return value.toObject(); });
}

Result<QJsonArray> arrayValue(const QJsonObject &object, const QString &key)
{
    return typedValue<QJsonArray>(object, key, QJsonValue::Array,
                                  [](const QJsonValue &value) { return value.toArray(); });
}

Result<QString> stringValue(const QJsonObject &object, const QString &key)
{
    return typedValue<QString>(object, key, QJsonValue::String,
                               [](const QJsonValue &value) { return value.toString(); });
}

QByteArray toCompactJson(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString typeDescription(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Null:
        return JsonUtilsTr::tr("null");
    case QJsonValue::Bool:
        return JsonUtilsTr::tr("a bool");
    case QJsonValue::Double:
        return JsonUtilsTr::tr("a number");
    case QJsonValue::String:
        return JsonUtilsTr::tr("a string");
    case QJsonValue::Array:
        return JsonUtilsTr::tr("an array");
    case QJsonValue::Object:
        return JsonUtilsTr::tr("an object");
    case QJsonValue::Undefined:
        break;
    }
    return JsonUtilsTr::tr("nothing");
}

} // namespace orv::JsonUtils
