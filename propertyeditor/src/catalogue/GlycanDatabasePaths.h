#pragma once

#include <QJsonObject>
#include <QString>
#include <QUrl>

class KProperty;

namespace orv {

/// Glycan databases are named in square brackets inside the glycan text of a property, with paths that may be
/// relative to the workflow. The functions make such paths absolute against \a baseUrl, the folder of the
/// workflow; without a base nothing changes. No state; any thread.
///
/// A relative path is a path, not a URL, so that "#", "?", "%" and blanks in names survive. An absolute one
/// that begins with "/" and doesn't exist is looked for below the base, for portable folders name their
/// files "file:///NAME". Paths with a drive letter stay as they are.

/// Rewrites the glycans in the value \a json, if any path changes.
void updateGlycanDatabaseToAbsolute(const QUrl &baseUrl, QJsonObject *json);

/// Tells the editors of the property which folder its paths are relative to. Null is passed over.
void updateGlycanPropertyWithAbsolutePath(KProperty *property, const QUrl &baseUrl);

/// The glycan text \a text, with double backslashes made single, against the folder that the property was
/// told.
[[nodiscard]] QString resolveGlycansStringsFromWflw(const QString &text, const KProperty *property);

} // namespace orv
