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
        const std::optional<Failure> failure = change();
        if (failure)
            printFailure(failure->exitCode == BadOutput ? m_output : m_cell.file(), *failure);
        int exitCode = failure ? failure->exitCode : Done;
        const bool workflowIsPrinted = !failure && m_output == kStandardInput;
        if (options.json && !workflowIsPrinted)
            exitCode = std::max(exitCode, printJson(report(failure)));
        return exitCode;
    }

private:
    std::optional<Failure> change()
    {
        const auto found = m_cell.find();
        if (const auto *failure = std::get_if<Failure>(&found))
            return *failure;
        const auto &cell = std::get<FoundCell>(found);
        if (std::optional<Failure> refusal = refuseNewer(cell.document))
            return refusal;
        const auto settings = settingsOf(cell);
        if (const auto *failure = std::get_if<Failure>(&settings))
            return *failure;
        const auto &[item, lost] = std::get<SettingsCell>(settings);
        printLosses(m_cell.file(), lost);
        if (std::optional<Failure> failure = assignAll(cell.document, item.get()))
            return failure;
        return write(cell.place.replacedIn(cell.document, item->toJson(PropertyConversionFlag::KeepPaths)));
    }

    /// A document of a newer format may hold in this cell what this version doesn't know.
    static std::optional<Failure> refuseNewer(const QJsonObject &document)
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

    std::optional<Failure> assignAll(const QJsonObject &document, KeyValueItem *item)
    {
        const auto mode = WflwMetaData::contentMode(PropertyEditorContent(document).metadata());
        for (const QString &argument : m_assignments) {
            const qsizetype end = argument.indexOf(QLatin1Char('='));
            if (end <= 0)
                return Failure{WrongUsage, 0,
                               QStringLiteral("\"%1\" is not of the form NAME=VALUE.").arg(argument)};
            if (auto failure = assign({argument.left(end), argument.mid(end + 1)}, mode, item))
                return failure;
        }
        return {};
    }

    std::optional<Failure> assign(const Assignment &assignment, PropertyEditorContent::ContentMode mode,
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

    [[nodiscard]] std::optional<Failure> write(const QJsonObject &document) const
    {
        return writeOutput(m_output, QJsonDocument(document).toJson());
    }

    [[nodiscard]] QJsonObject report(const std::optional<Failure> &failure) const
    {
        return {{QStringLiteral("output"), failure ? QJsonValue() : QJsonValue(m_output)},
                {QStringLiteral("changed"), failure ? QJsonArray() : QJsonArray::fromStringList(m_changed)},
                {QStringLiteral("error"), failure ? QJsonValue(orv::cli::toJson(*failure)) : QJsonValue()}};
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
