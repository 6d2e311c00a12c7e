#pragma once

#include <orv/core/Export.h>

#include <QByteArrayView>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv {

/// What QJsonDocument reads without a word, and as something else than was meant.
struct JsonFault
{
    enum class Kind
    {
        DuplicateKey,  ///< a key that stands twice in one object: only one of the values would be kept
        IllegalEscape, ///< a backslash before a character that JSON doesn't escape: it would vanish
        IllegalNumber  ///< a point that has no digit on one side: other programs refuse it
    };

    Kind kind = Kind::DuplicateKey;
    QString text;         ///< the key, the escape, backslash included, or the number
    qsizetype offset = 0; ///< in bytes: of the key's second occurrence, the backslash or the number

    bool operator==(const JsonFault &) const = default;
};

/// The first fault of \a json, which QJsonDocument must have read. Linear in time; memory grows with the keys
/// of the objects that are open at one place. Byte order marks at the beginning of a key don't count, as
/// QJsonDocument drops them.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<JsonFault> findJsonFault(QByteArrayView json);

/// The lines, counted from 1, on which the values begin that \a pointers (RFC 6901) name in \a json, which
/// must be well-formed JSON. Pointers to nothing are absent. One walk over the text, however many there are.
[[nodiscard]] ORV_WORKFLOW_EXPORT QHash<QString, qsizetype> linesOfPointers(QByteArrayView json,
                                                                            const QStringList &pointers);

} // namespace orv
