#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/table/RowNode.h>

#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace orv::Disulfide {

/// A bond between two cysteines. A plain value.
struct ORV_WORKFLOW_EXPORT Bond
{
    QString firstChain;
    int firstPosition = 1; ///< counted from 1
    QString secondChain;
    int secondPosition = 1;
    QMap<QString, QVariant> otherCells; ///< of columns that this version doesn't know, written back

    bool operator==(const Bond &) const = default;
};

/// The table of disulfide bonds; docs/formats.md lists the columns. Stateless, any thread.
namespace DisulfideUtils {

/// A table without bonds: the columns alone.
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode defaultRowNode();

/// InvalidContent with the row as detail for a position that is no whole number above 0. Empty rows are
/// passed over.
[[nodiscard]] ORV_WORKFLOW_EXPORT Result<QList<Bond>> bondsFromRowNode(const RowNode &table);
[[nodiscard]] ORV_WORKFLOW_EXPORT RowNode bondsToRowNode(const QList<Bond> &bonds);

/// Why a bond can't end at this residue, or nothing: a part of a sentence.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString faultOfEnd(const QString &chain, int position,
                                                     const QHash<QString, QString> &sequences);

/// Whether the bonds are possible in \a sequences, which are known by the names of their chains: each end is
/// a cysteine, and none stands in two bonds. Every fault is appended to \a warnings, which may be null.
ORV_WORKFLOW_EXPORT bool validate(const QList<Bond> &bonds, const QHash<QString, QString> &sequences,
                                  QStringList *warnings);

} // namespace DisulfideUtils

} // namespace orv::Disulfide
