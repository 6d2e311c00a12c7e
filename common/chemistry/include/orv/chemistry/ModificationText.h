#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv {

/// A modification that a search looks for. A plain value.
struct ORV_WORKFLOW_EXPORT Modification
{
    enum class Use
    {
        Fixed,  ///< on each of the residues
        Common, ///< on some
        Rare,   ///< on few, so that a peptide has few of all rare ones together
    };

    QString name;
    QString mass;     ///< in Da with its sign, or a formula of what is added
    QString residues; ///< letters, "NTerm" or "CTerm", with commas between
    Use use = Use::Fixed;
    int limit = 1; ///< on one peptide, at most; of a fixed one 0, as it has none

    /// Of what stands in mass; nothing for what is neither number nor formula.
    [[nodiscard]] std::optional<double> massDa() const;

    /// "Oxidation / +15.994915 @ M | common1".
    [[nodiscard]] QString toString() const;
    /// InvalidContent with what is wrong as detail for any other text. Blanks around parts don't count.
    [[nodiscard]] static Result<Modification> fromString(const QString &line);

    [[nodiscard]] static QString useToString(Use use);
    [[nodiscard]] static std::optional<Use> useFromString(QStringView text);

    bool operator==(const Modification &) const = default;
};

/// The text of the modifications of a search: one in a line, beside comments, which begin with "%", and lines
/// of other meaning, which are kept. Stateless, any thread.
namespace ModificationText {

/// Above what people add to the list of a program.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString customMarker();

/// A line that means to be a modification, and what it says or why not.
struct ORV_WORKFLOW_EXPORT Line
{
    int number = 0; ///< counted from 1
    QString text;
    Modification modification;
    QString problem; ///< empty for a line that reads
};

[[nodiscard]] ORV_WORKFLOW_EXPORT QList<Line> lines(const QString &text);

/// \a text with \a modifications in the places of those that it has, in their order. Further ones stand
/// behind the last; all other lines stay.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString withLines(const QString &text, const QStringList &modifications);

} // namespace ModificationText

} // namespace orv
