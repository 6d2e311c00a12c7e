#include "../Inputs.h"
#include "../Losses.h"
#include "../Output.h"
#include "../SettingsCell.h"
#include "Command.h"

#include <KPropertySet>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QFileInfo>
#include <QJsonDocument>

namespace orv::cli {

namespace {

using PropertyEditor::KeyValueItem;
using PropertyEditor::PropertyConversionFlag;

struct Assignment
{
    QString name;
    QString text;
};

class SetCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        m_cell.declare(arguments);
        arguments.positionals("NAME=VALUE", &m_assignments, "Properties with their new values",
                              {.isRequired = true});
        arguments.option("-o,--output", &m_output, "Where to write; - for standard output",
                         {.isRequired = true, .kind = ValueKind::File});
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<void> changed = change();
        const std::optional<Failure> &failure = changed.failureIfAny();
        if (failure)
            printFailure(failure->exitCode == BadOutput ? m_output : m_cell.file(), *failure);
        int exitCode = failure ? failure->exitCode : Done;
        const bool workflowIsPrinted = !failure && m_output == kStandardInput;
        if (options.json && !workflowIsPrinted)
            exitCode = std::max(exitCode, printJson(report(failure)));
        return exitCode;
    }

private:
    Outcome<void> change()
    {
        const Outcome<FoundCell> cell = m_cell.find();
        if (cell.hasFailed())
            return cell.failure();
        if (const Outcome<void> allowed = refuseNewer(cell->document); allowed.hasFailed())
            return allowed.failure();
        const Outcome<SettingsCell> settings = settingsOf(*cell);
        if (settings.hasFailed())
            return settings.failure();
        const auto &[item, lost] = *settings;
        printLosses(m_cell.file(), lost);
        if (const Outcome<void> assigned = assignAll(cell->document, item.get()); assigned.hasFailed())
            return assigned.failure();
        return write(cell->place.replacedIn(cell->document, item->toJson(PropertyConversionFlag::KeepPaths)));
    }

    /// A document of a newer format may hold in this cell what this version doesn't know.
    static Outcome<void> refuseNewer(const QJsonObject &document)
    {
        const PropertyEditorContent content(document);
        const QVersionNumber version = WflwMetaData::versionNumberFromMetaDataObject(content.metadata());
        if (version.majorVersion() <= WflwMetaData::WORKFLOW_JSON_VERSION_MAJOR)
            return {};
        return Failure{Negative, 0,
                       QStringLiteral("The document has the newer version %1 and is not changed; use the "
                                      "software that wrote it.")
                           .arg(version.toString())};
    }

    Outcome<void> assignAll(const QJsonObject &document, KeyValueItem *item)
    {
        const auto mode = WflwMetaData::contentMode(PropertyEditorContent(document).metadata());
        for (const QString &argument : m_assignments) {
            const qsizetype end = argument.indexOf(QLatin1Char('='));
            if (end <= 0)
                return Failure{WrongUsage, 0,
                               QStringLiteral("\"%1\" is not of the form NAME=VALUE.").arg(argument)};
            const Outcome<void> assigned = assign({argument.left(end), argument.mid(end + 1)}, mode, item);
            if (assigned.hasFailed())
                return assigned.failure();
        }
        return {};
    }

    Outcome<void> assign(const Assignment &assignment, PropertyEditorContent::ContentMode mode,
                         KeyValueItem *item)
    {
        const PropertyId id = PropertiesNames::findPropertyForName(assignment.name);
        const QString key = PropertiesNames::internalNameForType(id);
        if (id == PropertyId::NoProperty || !item->contains(key))
            return Failure{WrongUsage, 0,
                           QStringLiteral("The cell has no property \"%1\".").arg(assignment.name)};
        const KProperty &property = item->propertySet()->property(key.toUtf8());
        const Result<QVariant> value = PropertyText::toValue(id, assignment.text, property, mode);
        if (value.hasError())
            return failureFrom(value.error(), Negative);
        if (!item->setValue(key, *value))
            return Failure{Negative, 0, QStringLiteral("The value of \"%1\" can't be changed.").arg(key)};
        m_changed.append(key);
        return {};
    }

    [[nodiscard]] Outcome<void> write(const QJsonObject &document) const
    {
        return writeOutput(m_output, QJsonDocument(document).toJson());
    }

    [[nodiscard]] QJsonObject report(const std::optional<Failure> &failure) const
    {
        return {{QStringLiteral("output"), failure ? QJsonValue() : QJsonValue(m_output)},
                {QStringLiteral("changed"), failure ? QJsonArray() : QJsonArray::fromStringList(m_changed)},
                {QStringLiteral("error"), errorJson(failure)}};
    }

    CellArgument m_cell;
    QStringList m_assignments;
    QString m_output;
    QStringList m_changed;
};

} // namespace

std::unique_ptr<Command> createSetCommand()
{
    return std::make_unique<SetCommand>();
}

} // namespace orv::cli
