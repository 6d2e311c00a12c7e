#include "orv/propertyeditor/validators/InsilicoValidator.h"

#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/chemistry/InsilicoMode.h>
#include <orv/chemistry/InsilicoPeptidesCsvReader.h>
#include <orv/chemistry/ProteinDigestionItem.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/validators/CheckRun.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

namespace orv::PropertyEditor {

namespace {

QString digestionHint()
{
    return ValidatorText::tr("Enter an enzyme, its residues and the side of the cut, such as \"%1\".")
        .arg(QStringLiteral("Trypsin @ R,K | C-term"));
}

/// Checks the settings of one cell.
class InsilicoCheck
{
public:
    InsilicoCheck(CheckRun &run, const KeyValueItem &item)
        : m_run(run)
        , m_item(item)
    {}

    void check() const
    {
        if (isEnabled()) {
            checkModifications();
            checkDigestion();
            checkPeptidesFile();
        }
        checkMasses();
    }

private:
    [[nodiscard]] bool isEnabled() const
    {
        if (m_item.contains(PropertyId::EnableInSilico))
            return m_item.value(PropertyId::EnableInSilico).toBool();
        return m_item.contains(PropertyId::InSilicoMode) &&
               modeFromString(m_item.value(PropertyId::InSilicoMode).toString()) != InsilicoMode::Off;
    }

    [[nodiscard]] bool isEmptyObject(PropertyId id) const
    {
        return PropertyEditorJsonUtils::variantToObject(m_item.value(id)).isEmpty();
    }

    void checkModifications() const
    {
        const QVariant fixed = m_item.value(PropertyId::InSilicoFixedModification);
        bool isNumber = false;
        const bool isNone = fixed.toInt(&isNumber) == 0 && isNumber;
        if ((!fixed.isValid() || isNone) && isEmptyObject(PropertyId::InSilicoModifications) &&
            isEmptyObject(PropertyId::InSilicoGlycans)) {
            m_run.warning(ValidatorText::tr("No modifications found, including fixed modifications."),
                          {&m_item, PropertyId::InSilicoModifications, {}},
                          ValidatorText::tr("Enter the modifications that the peptides may carry."));
        }
    }

    void checkDigestion() const
    {
        const FindingPlace place{&m_item, PropertyId::Digestion, {}};
        const QString digestion = m_item.value(PropertyId::Digestion).toString();
        if (digestion.isEmpty())
            m_run.error(ValidatorText::tr("Invalid digestion syntax."), place, digestionHint());
        const Result<ProteinDigestionItem> item = ProteinDigestionItem::parse(digestion);
        if (item)
            return;
        m_run.error(ValidatorText::tr("Invalid digestion format: %1.").arg(digestion), place,
                    item.error().details().join(QLatin1Char(' ')));
    }

    [[nodiscard]] Result<QString> getLocalPath(const ResourceReferenceSPtr &reference) const
    {
        auto handler =
            ResourceManager::retrieve(ResourceReferenceUtils::resolved(reference, m_run.workflowBaseUrl()));
        if (!handler)
            return handler.ecatch();
        Result<QString> path = handler.value()->grab();
        if (!path)
            return path.ecatch();
        return path;
    }

    void checkPeptidesFile() const
    {
        const ResourceReferenceSPtr reference =
            ResourceReferenceUtils::fromVariant(m_item.value(PropertyId::InSilicoPeptidesFile));
        if (!reference || reference->isEmpty())
            return;
        const FindingPlace place{&m_item, PropertyId::InSilicoPeptidesFile, {}};
        const auto path = getLocalPath(reference);
        if (!path) {
            m_run.error(path.error().errorMessage(), place, path.error().details().join(QLatin1Char(' ')));
            return;
        }
        QList<InsilicoPeptide> rows;
        QString warningText;
        QString errorText;
        Error error = InsilicoPeptidesCsvReader(*path).readAll(&rows, &warningText, &errorText);
        if (error) {
            qCWarning(propertyEditorLog).noquote()
                << "Cannot read the in-silico peptides:" << error.ecatch().errorMessage();
            m_run.error(errorText, place, ValidatorText::tr("Correct the file, or choose another one."));
        }
        if (!warningText.isEmpty())
            m_run.warning(warningText, place, ValidatorText::tr("Look through the file."));
    }

    void checkMasses() const
    {
        const QVariant lower = m_item.value(PropertyId::PeptideMassMin);
        const QVariant upper = m_item.value(PropertyId::PeptideMassMax);
        if (!lower.isValid() || !upper.isValid())
            return;
        const double lowerDa = PropertyEditorJsonUtils::getValueFromValueUnit(lower).toDouble();
        const double upperDa = PropertyEditorJsonUtils::getValueFromValueUnit(upper).toDouble();
        if (lowerDa < upperDa)
            return;
        m_run.error(
            ValidatorText::tr("Peptide mass range out of order (%1 to %2), please change the values.\n")
                .arg(lowerDa)
                .arg(upperDa),
            {&m_item, PropertyId::PeptideMassMin, {}},
            ValidatorText::tr("The smallest mass must lie below the largest."));
    }

    CheckRun &m_run;
    const KeyValueItem &m_item;
};

} // namespace

void InsilicoValidator::check(CheckRun &run) const
{
    const Content &content = run.content();
    for (const ColumnSettings &found :
         settingsInColumns(content, {BaseItemType::Senthia, BaseItemType::Trenq, BaseItemType::Dravik,
                                     BaseItemType::Intact}))
        InsilicoCheck(run, *found.item).check();
}

} // namespace orv::PropertyEditor
