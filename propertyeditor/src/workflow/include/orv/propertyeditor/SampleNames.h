#pragma once

#include <orv/core/Export.h>

#include <QSet>
#include <QString>
#include <QStringList>

namespace orv {

/// The names of a table's samples, from which settings choose by patterns: "*" stands for any text, "?" for
/// one character, and brackets hold a set, with QRegExp::Wildcard as the judge of what is odd. Case counts. A
/// pattern without such characters is found in no time, however many names there are. A plain value. \code
///     const SampleNames names({u"lot 1"_s, u"lot 2"_s, u"blank"_s});
///     names.matching({u"lot*"_s}); // "lot 1", "lot 2"
/// \endcode
class ORV_WORKFLOW_EXPORT SampleNames
{
public:
    explicit SampleNames(const QStringList &names);

    /// Each name once, those of the first pattern first.
    [[nodiscard]] QStringList matching(const QStringList &patterns) const;
    [[nodiscard]] bool hasMatch(const QStringList &patterns) const;

private:
    QStringList m_names; ///< each once, in their order
    QSet<QString> m_known;
};

} // namespace orv
