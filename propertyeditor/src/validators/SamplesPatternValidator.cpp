#include "orv/propertyeditor/validators/SamplesPatternValidator.h"

#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/SampleNames.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/resources/FileTypeUtils.h>
#include <orv/samples/SampleUtils.h>

#include <QHash>

#include <algorithm>
#include <optional>

namespace orv::PropertyEditor {

namespace {

using Samples = QList<SamplesInput::SampleWithCustomColumns>;

/// The documents of one type, by the samples that they work on.
struct DocumentsOfType
{
    BaseItemType type;
    QList<const BaseItem *> withSamples = {};
    QList<const BaseItem *> withoutSamples = {};
};

DocumentsOfType &documentsOfType(QList<DocumentsOfType> *groups, BaseItemType type)
{
    const auto found = std::find_if(groups->begin(), groups->end(),
                                    [type](const auto &group) { return group.type == type; });
    if (found != groups->end())
        return *found;
    return groups->emplaceBack(DocumentsOfType{type});
}

/// Which documents have samples. Many say the same of theirs, which is then found out once.
class ChosenSamples
{
public:
    /// \a samples must outlive the object.
    explicit ChosenSamples(const Samples &samples)
        : m_samples(samples)
    {}

    bool areThere(const KeyValueItem &document)
    {
        const QString text = document.value(PropertyId::Samples).toString();
        const auto known = m_known.constFind(text);
        if (known != m_known.cend())
            return *known;
        const QStringList patterns = splitSamples(text);
        return *m_known.insert(text, patterns.isEmpty() || names().hasMatch(patterns));
    }

private:
    const SampleNames &names()
    {
        if (!m_names) {
            QStringList names;
            names.reserve(m_samples.size());
            for (const SamplesInput::Entry &sample : m_samples)
                names.append(sample.name);
            m_names.emplace(names);
        }
        return *m_names;
    }

    const Samples &m_samples;
    std::optional<SampleNames> m_names; ///< most documents take all samples, and need no names
    QHash<QString, bool> m_known;       ///< by the text that chooses
};

bool isProjectToCompareWith(const SamplesInput::Entry &sample)
{
    const ApplicationType application = FileTypeUtils::appType(sample.msFile);
    return application == ApplicationType::Dravik || application == ApplicationType::Intact;
}

/// Tells one text of all \a documents; of the workflow if there are none.
void reportAll(CheckRun &run, Finding::Level level, const QString &text,
               const QList<const BaseItem *> &documents)
{
    if (documents.isEmpty()) {
        run.add({level, {}, text, {}, {}});
        return;
    }
    const QString hint =
        ValidatorText::tr("Enter names of samples, or patterns such as \"lot*\"; separate them by "
                          "\";\". Empty uses all samples.");
    QList<FindingPlace> places;
    for (const BaseItem *document : documents)
        places.append({document, PropertyId::Samples, {}});
    run.add({level, {}, text, {}, hint}, places);
}

void checkSamples(CheckRun &run, const DocumentsOfType &documents)
{
    const QString type = BaseItem::typeToString(documents.type);
    if (documents.withSamples.isEmpty()) {
        reportAll(run, Finding::Level::Error,
                  ValidatorText::tr("%1 documents don't use any valid samples. At least one %1 document "
                                    "should use valid samples")
                      .arg(type),
                  documents.withoutSamples);
    } else if (!documents.withoutSamples.isEmpty()) {
        reportAll(run, Finding::Level::Warning,
                  ValidatorText::tr("Not all %1 documents use valid samples").arg(type),
                  documents.withoutSamples);
    }
}

} // namespace

void SamplesPatternValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    if (!content.findAllItems(BaseItemType::MultiDocReport).isEmpty())
        return;
    const SamplesTableItem *table = content.samplesTable();
    const Samples samples = table ? table->content().samples.samples : Samples();
    if (samples.isEmpty()) {
        run.error(ValidatorText::tr("The workflow doesn't have any samples"),
                  {table, PropertyId::SamplesTable, {}}, addSamplesHint());
        return;
    }
    const QList<BaseItem *> documents = content.findDocumentItems();
    if (documents.isEmpty())
        return;
    if (samples.size() == 1 && isProjectToCompareWith(samples.constFirst())) {
        run.error(ValidatorText::tr("Reference sample requires at least one non-reference sample."),
                  {table, PropertyId::SamplesTable, samples.constFirst().name, 0},
                  ValidatorText::tr("Add the MS file of a sample that is compared with the project."));
        return;
    }
    QList<DocumentsOfType> groups;
    ChosenSamples chosen(samples);
    for (const BaseItem *document : documents) {
        DocumentsOfType &group = documentsOfType(&groups, document->type());
        const auto *settings = qobject_cast<const KeyValueItem *>(document);
        if (settings) {
            (chosen.areThere(*settings) ? group.withSamples : group.withoutSamples).append(document);
            continue;
        }
        run.error(ValidatorText::tr("Cannot handle a %1 document type").arg(document->typeString()),
                  {document, PropertyId::NoProperty, {}}, ValidatorText::tr("Remove the document."));
    }
    for (const DocumentsOfType &group : groups)
        checkSamples(run, group);
}

} // namespace orv::PropertyEditor
