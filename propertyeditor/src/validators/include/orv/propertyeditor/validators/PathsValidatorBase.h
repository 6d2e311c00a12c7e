#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/validators/Finding.h>
#include <orv/resources/ResourceReference.h>
#include <orv/samples/SamplesInput.h>

#include <QList>
#include <QSet>
#include <QString>

namespace orv::PropertyEditor {

class CheckRun;

/// The rules about the files of samples, which differ between a workflow on a desktop and one on a server.
/// May block on a disk or server. A run remembers what it has learnt of a resource; only that a sample's file
/// on a server exists is asked anew before it is used. On the thread of the check.
class ORV_WORKFLOW_EXPORT PathsValidatorBase
{
public:
    PathsValidatorBase() = default;
    virtual ~PathsValidatorBase();
    Q_DISABLE_COPY_MOVE(PathsValidatorBase)

    /// \a itemTypes are those of all items of the document.
    virtual void checkSamplesPaths(CheckRun &run, const QList<SamplesInput::Entry> &samples,
                                   const QSet<BaseItemType> &itemTypes) = 0;
    /// Whether \a reference, which stands at \a place, is null or can be used.
    virtual bool checkReference(CheckRun &run, const ResourceReferenceSPtr &reference,
                                const FindingPlace &place) = 0;
    /// The documents that a report is made of, which its table of samples names.
    virtual void checkDocuments(CheckRun &run, const QList<SamplesInput::Entry> &samples) = 0;
    /// Whether \a reference may hold mass spectra, told by its name.
    virtual bool isMsReference(const ResourceReferenceSPtr &reference) = 0;

    // The same by themselves: texts alone, which go to errors.
    void validateSamplesPaths(const QList<SamplesInput::Entry> &samples, const QSet<BaseItemType> &itemTypes,
                              QList<QString> *errors);
    bool validateReference(const ResourceReferenceSPtr &reference, QList<QString> *errors);
    void validateDocuments(const QList<SamplesInput::Entry> &samples, QList<QString> *errors);
};

} // namespace orv::PropertyEditor
