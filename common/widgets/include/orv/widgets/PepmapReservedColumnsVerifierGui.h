#pragma once

#include <orv/widgets/Export.h>

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// Keeps imported columns from taking the place of those that results have themselves. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT PepmapReservedColumnsVerifierGui
{
public:
    /// Whether the table of intact peaks can have these columns beside its own; if not, a box names those
    /// that must be called otherwise.
    [[nodiscard]] static bool verifyIntactPeaksTable(const QMap<QString, QList<QVariant>> &columns,
                                                     QWidget *parent);

    /// The names among \a columns that the table of intact peaks has itself; case, blanks and underscores
    /// don't count. Any thread.
    [[nodiscard]] static QStringList reservedInIntactPeaksTable(const QStringList &columns);
};

} // namespace orv
