#include "../FileIdentity.h"
#include "../Inputs.h"
#include "../Losses.h"
#include "../NewerDocument.h"
#include "../Output.h"
#include "../ReferredFiles.h"
#include "../SettingsCell.h"
#include "Command.h"

#include <KPropertySet>
#include <orv/core/JsonMerge.h>
#include <orv/core/NearestNames.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySearch.h>
#include <orv/propertyeditor/PropertyText.h>
#include <orv/propertyeditor/content/CellStamps.h>
#include <orv/propertyeditor/content/LoadContext.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QFileInfo>

namespace orv::cli {

namespace {

using PropertyEditor::KeyValueItem;
using PropertyEditor::PropertyConversionFlag;

struct Assignment
{
    QString name;
    QString text;
};

/// The properties of the catalogue that the cell holds.
QList<PropertyId> propertiesIn(const KeyValueItem &item)
{
    QList<PropertyId> ids;
    for (const PropertyId id : PropertiesNames::names()->keys()) {
        if (item.contains(PropertiesNames::internalNameForType(id)))
            ids.append(id);
    }
    return ids;
}

/// The property of the cell that people mean by \a text: a name of either generation, or a caption.
Outcome<PropertyId> propertyIn(const KeyValueItem &item, const QString &text)
{
    const QList<PropertyId> present = propertiesIn(item);
    if (const PropertyId id = PropertiesNames::findPropertyForName(text); present.contains(id))
        return id;
    QStringList names;
    PropertyId captioned = PropertyId::NoProperty;
    for (const PropertyId id : PropertySearch::captioned(text)) {
        if (!present.contains(id))
            continue;
        captioned = id;
        names.append(PropertiesNames::internalNameForType(id));
    }
    if (names.size() == 1)
        return captioned;
    if (names.size() > 1) {
        return Failure{
            WrongUsage, 0,
            QStringLiteral("The caption \"%1\" stands for several properties of the cell: %2. Give "
                           "a name.")
                .arg(text, names.join(QLatin1String(", ")))};
    }
    return Failure{WrongUsage, 0,
                   QStringLiteral("The cell has no property \"%1\".").arg(text) +
                       NearestNames::question(text, PropertySearch::namesAndCaptions(present))};
}

class SetCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        m_cell.declare(arguments);
        arguments.positionals(
            "NAME=VALUE", &m_assignments,
            "Names or captions of properties with their new values, such as 'Precursor mass tolerance=5 ppm'",
            {.isRequired = true});
        arguments.option("-o,--output", &m_output, "Where to write; - for standard output",
                         {.isRequired = true, .kind = ValueKind::File, .use = FileUse::WrittenAsTold});
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
        const Outcome<void> allowed =
            refuseNewer(cell->document, QStringLiteral("is not changed; use the software that wrote it"));
        if (allowed.hasFailed())
            return allowed.failure();
        if (Outcome<void> free = refuseReferred(cell->document, m_cell.file(), {m_output}); free.hasFailed())
            return free;
        const Outcome<SettingsCell> settings = settingsOf(*cell);
        if (settings.hasFailed())
            return settings.failure();
        const auto &[item, lostByLoad] = *settings;
        const QList<Loss> lost = lostByLoad + lossesOfStamp(*cell);
        printLosses(m_cell.file(), lost);
        if (!lost.isEmpty() && isSameFile(workflowFileOf(m_cell.file()), m_output)) {
            return Failure{
                Negative, 0,
                QStringLiteral("Not written over itself, since something would be lost; name another "
                               "output.")};
        }
        if (const Outcome<void> assigned = assignAll(cell->document, item.get()); assigned.hasFailed())
            return assigned.failure();
        if (const Error unwritable = item->checkWritable())
            return failureFrom(unwritable, Negative);
        return write(*cell, item->toJson(PropertyConversionFlag::KeepPaths));
    }

    static QList<Loss> lossesOfStamp(const FoundCell &found)
    {
        LossCollector losses;
        CellStamps::reportUnreadable(found.cell,
                                     PropertyEditor::LoadContext(&losses, pointerOf(found.place)));
        return losses.losses();
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
        const Outcome<PropertyId> meant = propertyIn(*item, assignment.name);
        if (meant.hasFailed())
            return meant.failure();
        const QString key = PropertiesNames::internalNameForType(*meant);
        const KProperty &property = item->propertySet()->property(key.toUtf8());
        const Result<QVariant> value = PropertyText::toValue(*meant, assignment.text, property, mode);
        if (value.hasError())
            return failureFrom(value.error(), Negative);
        if (!item->setValue(key, *value))
            return Failure{Negative, 0, QStringLiteral("The value of \"%1\" can't be changed.").arg(key)};
        m_changed.append(key);
        return {};
    }

    [[nodiscard]] Outcome<void> write(const FoundCell &found, const QJsonObject &cell) const
    {
        // A load renews the stamp; it is right where something was changed.
        if (CellStamps::differsInStampAlone(found.cell, cell))
            return writeOutput(m_output, found.bytes);
        return writeOutput(m_output, mergedJson(found.bytes, found.place.replacedIn(found.document, cell)));
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
