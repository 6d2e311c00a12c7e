#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/VerificationFunction.h>
#include <orv/resources/ResourceReference.h>

#include <QList>
#include <QString>

/// The rules that a keyword alone names; each is a VerificationFunction.
namespace orv::PropertyVerificationFunctions {

using ContentMode = PropertyEditorContent::ContentMode;

/// An empty reference, or one that names an existing file of this machine. A file on a network drive passes
/// with a warning. Asks the disk.
ORV_WORKFLOW_EXPORT bool verifyLocalUrlPrivate(PropertyId id, const ResourceReferenceSPtr &reference,
                                               QList<QString> *errors, QList<QString> *warnings);

/// An empty reference, or one that the server can resolve.
ORV_WORKFLOW_EXPORT bool verifyTalvaneUrl(PropertyId id, const ResourceReferenceSPtr &reference,
                                          QList<QString> *errors, QList<QString> *warnings);

/// "local-url"
ORV_WORKFLOW_EXPORT bool verifyLocalUrl(PropertyId id, const QVariant &value, ContentMode mode,
                                        QList<QString> *errors, QList<QString> *warnings);

/// "local-or-talvane-url": a file of this machine on the desktop, one of the server for the server.
ORV_WORKFLOW_EXPORT bool verifyLocalOrTalvaneUrl(PropertyId id, const QVariant &value, ContentMode mode,
                                                 QList<QString> *errors, QList<QString> *warnings);

/// "modifications": the text below the marker of custom modifications can't begin twice.
ORV_WORKFLOW_EXPORT bool verifyModifications(PropertyId id, const QVariant &value, ContentMode mode,
                                             QList<QString> *errors, QList<QString> *warnings);

/// "glycans": every glycan database that stands in square brackets exists, and comes with the application
/// where the document is for the server. All bad files are told. Asks the disk.
ORV_WORKFLOW_EXPORT bool verifyGlycans(PropertyId id, const QVariant &value, ContentMode mode,
                                       QList<QString> *errors, QList<QString> *warnings);

/// "isotope": a table with a row.
ORV_WORKFLOW_EXPORT bool verifyIsotope(PropertyId id, const QVariant &value, ContentMode mode,
                                       QList<QString> *errors, QList<QString> *warnings);

/// "digestion_valid": fails without a text; the check of in-silico settings tells what is wrong.
ORV_WORKFLOW_EXPORT bool verifyDigestion(PropertyId id, const QVariant &value, ContentMode mode,
                                         QList<QString> *errors, QList<QString> *warnings);

} // namespace orv::PropertyVerificationFunctions
