#pragma once

#include <orv/core/Export.h>

#include <QByteArrayView>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv {

/// A key that stands twice in one object of a JSON text.
struct DuplicateKey
{
    QString key;
    qsizetype offset = 0; ///< byte offset of the second occurrence
};

/// Finds the first key that stands twice in one object of \a json, which must be well-formed JSON. Parsers
/// silently keep one of the two, so a document would lose the other. Linear in time; memory grows with the
/// keys of the objects that are open at one place. Byte order marks at the beginning of a key don't count, as
/// QJsonDocument drops them.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<DuplicateKey> findDuplicateKey(QByteArrayView json);

/// The lines, counted from 1, on which the values begin that \a pointers (RFC 6901) name in \a json, which
/// must be well-formed JSON. Pointers to nothing are absent. One walk over the text, however many there are.
[[nodiscard]] ORV_WORKFLOW_EXPORT QHash<QString, qsizetype> linesOfPointers(QByteArrayView json,
                                                                            const QStringList &pointers);

} // namespace orv
