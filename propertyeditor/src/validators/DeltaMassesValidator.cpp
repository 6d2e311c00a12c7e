#include "orv/propertyeditor/validators/DeltaMassesValidator.h"

#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/MassesTableItem.h>
#include <orv/propertyeditor/content/SamplesTableItem.h>
#include <orv/propertyeditor/validators/CheckRun.h>

namespace orv::PropertyEditor {

void DeltaMassesValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    const QList<BaseItem *> items = content.findAllItems(BaseItemType::Masses);
    if (items.isEmpty())
        return;
    const SamplesTableItem *table = content.samplesTable();
    if (!table || table->content().samples.samples.isEmpty()) {
        run.error(ValidatorText::tr("The workflow doesn't have any samples"),
                  {table, PropertyId::SamplesTable, {}}, addSamplesHint());
        return;
    }
    const auto *masses = qobject_cast<const MassesTableItem *>(items.constFirst());
    if (!masses)
        return;
    QStringList errors;
    QStringList warnings;
    masses->isValid(table->samplesInput(), &errors, &warnings);
    const FindingPlace place{masses, PropertyId::MassTable, {}};
    const QString hint = ValidatorText::tr("Correct the row in the table of masses, or remove it.");
    for (const QString &error : std::as_const(errors))
        run.error(error, place, hint);
    for (const QString &warning : std::as_const(warnings))
        run.warning(warning, place, hint);
}

} // namespace orv::PropertyEditor
