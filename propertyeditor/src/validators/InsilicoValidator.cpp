#include "ValidatorHelpers.h"
#include "ValidatorText.h"

#include <orv/chemistry/InsilicoMode.h>
#include <orv/chemistry/InsilicoPeptidesCsvReader.h>
#include <orv/chemistry/ProteinDigestionItem.h>
#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/KeyValueItem.h>
#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/validators/InsilicoValidator.h>
#include <orv/resources/ResourceManager.h>
#include <orv/resources/ResourceReferenceUtils.h>

namespace orv::PropertyEditor {

namespace {

QString digestionHint()
{
    return validatorText("Enter an enzyme, its residues and the side of the cut, such as \"%1\".")
        .arg(QStringLiteral("Trypsin @ R,K | C-term"));
}

/// Checks the settings of one cell.
class Check
{
public:
    Check(const KeyValueItem &item, QUrl baseUrl, QList<QString> *warnings, QList<QString> *errors)
        : m_item(item)
        , m_baseUrl(std::move(baseUrl))
        , m_warnings(warnings)
        , m_errors(errors)
    {}

    void run() const
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
            report(m_warnings, validatorText("No modifications found, including fixed modifications."),
                   {&m_item, PropertyId::InSilicoModifications, {}},
                   validatorText("Enter the modifications that the peptides may carry."));
        }
    }

    void checkDigestion() const
    {
        const FindingPlace place{&m_item, PropertyId::Digestion, {}};
        const QString digestion = m_item.value(PropertyId::Digestion).toString();
        if (digestion.isEmpty())
            report(m_errors, validatorText("Invalid digestion syntax."), place, digestionHint());
        const Result<ProteinDigestionItem> item = ProteinDigestionItem::parse(digestion);
        if (item)
            return;
        report(m_errors, validatorText("Invalid digestion format: %1.").arg(digestion), place,
               item.error().details().join(QLatin1Char(' ')));
    }

    [[nodiscard]] Result<QString> getLocalPath(const ResourceReferenceSPtr &reference) const
    {
        auto handler = ResourceManager::retrieve(ResourceReferenceUtils::resolved(reference, m_baseUrl));
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
            report(m_errors, path.error().errorMessage(), place,
                   path.error().details().join(QLatin1Char(' ')));
            return;
        }
        QList<InsilicoPeptide> rows;
        QString warningText;
        QString errorText;
        Error error = InsilicoPeptidesCsvReader(*path).readAll(&rows, &warningText, &errorText);
        if (error) {
            qCWarning(propertyEditorLog).noquote()
                << "Cannot read the in-silico peptides:" << error.ecatch().errorMessage();
            report(m_errors, errorText, place, validatorText("Correct the file, or choose another one."));
        }
        if (!warningText.isEmpty())
            report(m_warnings, warningText, place, validatorText("Look through the file."));
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
        report(m_errors,
               validatorText("Peptide mass range out of order (%1 to %2), please change the values.\n")
                   .arg(lowerDa)
                   .arg(upperDa),
               {&m_item, PropertyId::PeptideMassMin, {}},
               validatorText("The smallest mass must lie below the largest."));
    }

    const KeyValueItem &m_item;
    QUrl m_baseUrl;
    QList<QString> *m_warnings;
    QList<QString> *m_errors;
};

} // namespace

bool InsilicoValidator::validate(const Content &content, const QUrl &workflowBaseUrl,
                                 QList<QString> *warnings, QList<QString> *errors) const
{
    const qsizetype errorsBefore = errors->size();
    for (const ColumnSettings &found :
         settingsInColumns(content, {BaseItemType::Senthia, BaseItemType::Trenq, BaseItemType::Dravik,
                                     BaseItemType::Intact}))
        Check(*found.item, workflowBaseUrl, warnings, errors).run();
    return errors->size() == errorsBefore;
}

} // namespace orv::PropertyEditor
