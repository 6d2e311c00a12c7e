#pragma once

#include <orv/core/ApplicationType.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/propertyeditor/validators/PathsValidatorBase.h>

#include <QSet>

namespace orv::PropertyEditor {

class SamplesTableItem;

/// Rules that files on a disk and on a server share. Texts are in the context QObject.
namespace PathRules {

/// Of the sample that stands in that row of \a table.
[[nodiscard]] FindingPlace placeOf(const SamplesTableItem *table, const SamplesInput::Entry &sample,
                                   qsizetype row);

/// Whether the sample has neither an MS file nor traces, which is an error.
bool reportEmptyPaths(CheckRun &run, const SamplesInput::Entry &sample, const FindingPlace &place);

/// Whether \a reference is null, an MS file or a project that a sample may refer to.
[[nodiscard]] bool isMsFileOrProject(const ResourceReferenceSPtr &reference);
/// The error for one that isn't.
void reportWrongMsFile(CheckRun &run, const SamplesInput::Entry &sample, const FindingPlace &place);

/// Whether \a trace has a type that the document can take. \a word is what MS files are called there.
void checkTraceType(CheckRun &run, PathsValidatorBase &paths, const ResourceReferenceSPtr &trace,
                    const QString &word, const QSet<BaseItemType> &itemTypes, const FindingPlace &place);

/// The applications of the documents of one report.
class DocumentTypes
{
public:
    /// Reports a document that a report can't be made of.
    void add(CheckRun &run, const SamplesInput::Entry &document, const FindingPlace &place);
    /// Reports documents of several types.
    void finish(CheckRun &run, const SamplesTableItem *table) const;

private:
    QSet<ApplicationType> m_types;
};

/// Whether the document has no path, which is an error.
bool reportEmptyDocument(CheckRun &run, const SamplesInput::Entry &document, const FindingPlace &place);

/// What to do about a reference that can't be used.
[[nodiscard]] QString chooseAnotherHint();

} // namespace PathRules

} // namespace orv::PropertyEditor
