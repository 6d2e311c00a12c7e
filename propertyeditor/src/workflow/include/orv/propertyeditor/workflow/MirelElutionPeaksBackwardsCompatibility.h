#pragma once

#include <orv/core/Export.h>
#include <orv/core_ms/ElutionPeaksBackwardsCompatibility.h>
#include <orv/resources/ResourceReference.h>
#include <orv/samples/SamplesInput.h>
#include <orv/samples/TracesImportList.h>
#include <orv/table/RowNode.h>

#include <QList>
#include <QSharedPointer>
#include <QUrl>

#include <optional>

namespace orv {

namespace PropertyEditor {
class KeyValueItem;
}

/// Reads what documents below version 5.6.0 tell of peaks in traces: keys of a cell of settings, and trace
/// files of samples in rows.
class ORV_WORKFLOW_EXPORT MirelElutionPeaksBackwardsCompatibility
{
public:
    /// Takes the old keys out of \a item, whether their values are used or not; what a key doesn't tell has
    /// its old default. Missing files are asked for, see extractTracesFromMsFile. Relative files count from
    /// \a baseUrl, the workflow's folder with a slash at its end, or from the current folder.
    [[nodiscard]] static ElutionPeaksBackwardsCompatibility::Input
    inputFromWlfw(const RowNode &samples, const std::optional<RowNode> &customColumnsMetaData,
                  PropertyEditor::KeyValueItem *item, bool isIntact, const QUrl &baseUrl = {});
};

/// The samples in rows below the names of their columns, with ids from 1, their custom columns, and the
/// traces that their files have, each once. A trace of a table in a text file is used for the samples that
/// name it. \a customColumnsMetaData defines columns, each an object with "name" and "type". Text that is no
/// reference is left out with a warning in the log.
ORV_WORKFLOW_EXPORT void extractSamplesAndAllTracesFromWlfwSamplesRowNode(
    const RowNode &samples, const std::optional<RowNode> &customColumnsMetaData,
    QList<SamplesInput::SampleWithCustomColumns> *samplesOut, SamplesInput::CustomColumns *columnsOut,
    QList<TracesImportList::Entry> *tracesOut, const QUrl &baseUrl = {});

/// The traces of an MS file; none for a null or empty reference and for a file that can't be read, which is
/// shown or logged. A file that is missing is asked for through MissingFileQuestions; a person may choose
/// another one, which takes the place of *reference, and may wish not to be asked again, which sets
/// *stopAsking. A console application asks nothing and logs a line for each such file.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<TracesImportList::Entry>
extractTracesFromMsFile(QSharedPointer<ResourceReference> *reference, bool *stopAsking,
                        const QUrl &baseUrl = {});

} // namespace orv
