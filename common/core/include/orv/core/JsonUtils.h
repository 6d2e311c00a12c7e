#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

/// JSON with errors that name the place.
namespace orv::JsonUtils {

/// A place in a text: line and column count from 1, columns in characters; a byte order mark is none.
struct TextPosition
{
    qsizetype line = 1;
    qsizetype column = 1;
};

/// Where the byte \a offset of the UTF-8 text \a json lies; an offset behind the end is the end.
[[nodiscard]] ORV_WORKFLOW_EXPORT TextPosition positionOfOffset(QByteArrayView json, qsizetype offset);

/// Parses UTF-8 JSON text, with or without a byte order mark. Text that would lose something on the way is
/// refused too: the same key twice in one object, an escape that JSON doesn't know, and empty text. Errors
/// have the code InvalidContent, the parser's words as message, and line, column and remedy as details.
/// Nesting is bounded by the parser (1024 levels), and never recursive on the stack beyond that.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QJsonDocument> documentFromJson(const QByteArray &json);

/// As documentFromJson; text whose root is not an object fails with InvalidContent.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QJsonObject> objectFromJson(const QByteArray &json);

/// An object, and what of its text can't be trusted.
struct DoubtfulObject
{
    QJsonObject object;
    Error fault; ///< a success for text that objectFromJson takes; otherwise why it refuses it
};

/// As objectFromJson, but reads on behind a key that stands twice and an unknown escape, as QJsonDocument
/// does: for those who show a document and write nothing.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<DoubtfulObject> doubtfulObjectFromJson(const QByteArray &json);

/// Why text that QJsonDocument reads would lose something on the way; a success for text that loses nothing.
[[nodiscard]] ORV_WORKFLOW_EXPORT Error faultOf(const QByteArray &json);

/// The member \a key of \a object when it has the wanted type; otherwise an InvalidContent error whose
/// message names the key, and which type stands there instead.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QJsonObject> objectValue(const QJsonObject &object,
                                                                  const QString &key);
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QJsonArray> arrayValue(const QJsonObject &object,
                                                                const QString &key);
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QString> stringValue(const QJsonObject &object, const QString &key);

/// Compact UTF-8 text of an object.
[[nodiscard]] ORV_WORKFLOW_EXPORT QByteArray toCompactJson(const QJsonObject &object);

/// The word for a JSON type in messages: "an object", "a string", "nothing", ...
[[nodiscard]] ORV_WORKFLOW_EXPORT QString typeDescription(QJsonValue::Type type);

} // namespace orv::JsonUtils
