#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/MassesTableItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/DeltaMassesValidator.h>

namespace orv::PropertyEditor {

bool DeltaMassesValidator::validate(const Content &content, const QUrl & /*workflowBaseUrl*/,
                                    QList<QString> *warnings, QList<QString> *errors) const
{
    const QList<BaseItem *> items = content.findAllItems(BaseItemType::Masses);
    if (items.isEmpty())
        return true;
    const SamplesTableItem *table = content.samplesTable();
    if (!table || table->samplesInput().isEmpty()) {
        report(errors, validatorText("The workflow doesn't have any samples"),
               {table, PropertyId::SamplesTable, {}}, addSamplesHint());
        return false;
    }
    const auto *masses = qobject_cast<const MassesTableItem *>(items.constFirst());
    if (!masses)
        return true;
    const qsizetype warningsBefore = warnings->size();
    const qsizetype errorsBefore = errors->size();
    const bool isValid = masses->isValid(table->samplesInput(), errors, warnings);
    for (const QString &text : errors->mid(errorsBefore) + warnings->mid(warningsBefore)) {
        Findings::note(text, {masses, PropertyId::MassTable, {}},
                       validatorText("Correct the row in the table of masses, or remove it."));
    }
    return isValid;
}

} // namespace orv::PropertyEditor
