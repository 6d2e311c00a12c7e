#pragma once

#include <orv/core/Export.h>

#include <QString>
#include <QStringList>

/// The text of the glycans of a search: files of databases in square brackets and compositions, one in a
/// line, beside comments, which begin with "%" and are kept. Stateless, any thread.
///
///     % Glycan databases
///     [data/n_glycans.txt]
///     % Custom glycan text below
///     HexNAc(4)Hex(3)Fuc(1) @ NGlycan | rare1
namespace orv::GlycanText {

/// The paths in brackets, as they are written.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList databases(const QString &text);
/// \a text with \a paths in the places of those that it has; further ones stand behind the last.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString withDatabases(const QString &text, const QStringList &paths);

/// The lines of compositions, as they are written.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList compositions(const QString &text);
[[nodiscard]] ORV_WORKFLOW_EXPORT QString withCompositions(const QString &text, const QStringList &lines);

/// The composition of such a line, without what stands behind "@".
[[nodiscard]] ORV_WORKFLOW_EXPORT QString compositionOf(const QString &line);
/// What stands behind "@": kind of site and number on a peptide. Empty for none.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString placeOf(const QString &line);

/// Why a composition or what stands behind it can't be read; empty where it can.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString problemOfComposition(const QString &composition);

} // namespace orv::GlycanText
