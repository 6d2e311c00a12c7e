#pragma once

#include <orv/core/Export.h>

#include <QHash>
#include <QString>
#include <QStringList>

namespace orv {

/// Text that holds option lines `key=value` among other lines, as the modifications of a search do:
/// \code
///     KeyValueSimpleParser parser(u"Oxidation / +15.994915 @ M | common1\n"_s);
///     parser.addOptions({{u"oligo_search"_s, u"1"_s}});
///     parser.toString(); // "Oxidation / +15.994915 @ M | common1\noligo_search=1\n"
/// \endcode
/// A key consists of letters, digits and underscores, begins with no digit and is told apart by the case of
/// letters; blanks around it don't count. The value is what stands behind the first "=", as it stands. All
/// other lines, comments with "%" among them, are kept where they are. A plain value.
class ORV_WORKFLOW_EXPORT KeyValueSimpleParser
{
public:
    explicit KeyValueSimpleParser(const QString &text);

    /// The options with their values; of a key that stands twice the last value.
    [[nodiscard]] QHash<QString, QString> options() const;

    /// Gives each key its value: in the place of its first line, whose fellows go away, or on a new line at
    /// the end, new ones in alphabetical order. A line break in a value would make lines of its own, and
    /// becomes a blank.
    void addOptions(const QHash<QString, QString> &options);

    /// Takes all lines of these keys away.
    void removeOptions(const QStringList &keys);

    /// The text, unchanged but for the options that were added or removed. It ends with a line feed if the
    /// text did that was given.
    [[nodiscard]] QString toString() const;

private:
    QStringList m_lines;
    bool m_endsWithLineFeed = false;
};

} // namespace orv
