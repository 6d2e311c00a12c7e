#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>
#include <orv/samples/ElutionPeaksOptions.h>
#include <orv/samples/TracesImportList.h>

#include <QJsonObject>
#include <QList>
#include <QStringList>

namespace orv {

/// Which traces of the samples are used, and how peaks are found in them. A plain value.
///
/// JSON form: {"TracesImportList": [...], "ElutionPeaksOptions": [...]}; members that were absent or null
/// stay so while their list is empty, and members that this version doesn't know are kept.
class ORV_WORKFLOW_EXPORT TraceImportAndProcessingOptions
{
public:
    TracesImportList traces;
    QList<ElutionPeaksOptions> peaksOptions; ///< presets, which traces name

    /// Fails with InvalidContent for a member of the wrong type, naming it and its place.
    [[nodiscard]] static Result<TraceImportAndProcessingOptions> fromJson(const QJsonObject &json);
    [[nodiscard]] QJsonObject toJson() const;

    /// Errors: a faulty preset, two of one name, an imported trace that names a preset which isn't there.
    /// Warnings: a trace listed twice, an imported trace of no sample. True if no error was added.
    bool validate(QStringList *warnings, QStringList *errors) const;

    bool operator==(const TraceImportAndProcessingOptions &) const = default;

private:
    QJsonObject m_unknownMembers;
};

} // namespace orv
