#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/samples/SequenceDatabaseItem.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QList>
#include <QString>

namespace orv::PropertyEditor {

/// Tables of sequence databases in documents. Static functions.
class ORV_WORKFLOW_EXPORT SequenceDatabaseItems
{
    Q_DECLARE_TR_FUNCTIONS(SequenceDatabaseItems)

public:
    /// The rows in the entry of a property. Old documents have one path in the place of the table; a text
    /// that is no reference makes an empty one. Otherwise the errors of JsonUtils::arrayValue and of the
    /// rows.
    [[nodiscard]] static Result<QList<SequenceDatabaseItem>> fromJson(const QJsonObject &entry);

    /// The value of the property.
    [[nodiscard]] static QJsonObject toJson(const QList<SequenceDatabaseItem> &items);

    /// Whether every row names a FASTA file that is there. The same file twice is a warning. Texts are
    /// appended to the lists, which must be there. Asks the disk or the server.
    static bool validate(const QList<SequenceDatabaseItem> &items, QList<QString> *errors,
                         QList<QString> *warnings);
};

} // namespace orv::PropertyEditor
