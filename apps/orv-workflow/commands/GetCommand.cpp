#include "../Console.h"
#include "../Losses.h"
#include "../SettingsCell.h"
#include "Command.h"

#include <KPropertySet>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/UserVisibleListConverter.h>

#include <QJsonDocument>

namespace orv::cli {

namespace {

using PropertyEditor::PropertyConversionFlag;

QJsonObject entryOf(const KProperty &property, const KPropertySet &set)
{
    const QString name = QString::fromUtf8(property.name());
    const QByteArray group = set.groupNameForProperty(property);
    return {
        {QStringLiteral("name"), name},
        {QStringLiteral("id"), int(PropertiesNames::findPropertyForName(name))},
        {QStringLiteral("type"), property.type()},
        {QStringLiteral("group"), QString::fromUtf8(group)},
        {QStringLiteral("groupCaption"), set.groupCaption(group)},
        {QStringLiteral("priority"), property.option("priority", -1).toInt()},
        {QStringLiteral("value"),
         PropertySetCreator::valueToJson(property, PropertyConversionFlag::KeepPaths)},
    };
}

/// The text of the entry that a property with a list holds; its own text for any other.
QString listTextOf(const KProperty &property)
{
    QStringList keys;
    QStringList texts;
    const PropertyId id = PropertiesNames::findPropertyForName(QString::fromUtf8(property.name()));
    UserVisibleListConverter::keysAndValuesForList(id, &keys, &texts);
    const QString held = property.value().toString();
    return texts.value(keys.indexOf(held), held);
}

QString line(const KProperty &property)
{
    const QJsonValue value = PropertySetCreator::valueToJson(property, PropertyConversionFlag::KeepPaths);
    QString text = listTextOf(property);
    if (value.isObject())
        text = QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    else if (value.isArray())
        text = value.toVariant().toStringList().join(QLatin1String(", "));
    else if (property.type() == PropertiesTraits::ResourceReferenceType)
        text = value.toString();
    return QStringLiteral("  %1 %2\n").arg(property.captionOrName(), -44).arg(withoutControls(text));
}

class GetCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        m_cell.declare(arguments);
        arguments.positionals("NAME", &m_names, "Names of properties (default: all)",
                              {.kind = ValueKind::Property});
    }

    int run(const GlobalOptions &options) override
    {
        const Outcome<FoundCell> found = m_cell.find();
        if (found.hasFailed())
            return fail(found.failure(), options);
        const Outcome<SettingsCell> settings = settingsOf(*found);
        if (settings.hasFailed())
            return fail(settings.failure(), options);
        const auto &[item, lost] = *settings;
        printLosses(m_cell.file(), lost);
        // A set finds names in any case, and the output goes by the name as it stands.
        const QStringList keys = item->keys();
        for (const QString &name : m_names) {
            if (!keys.contains(name))
                return fail({WrongUsage, 0, QStringLiteral("The cell has no property \"%1\".").arg(name)},
                            options);
        }
        return options.json ? printJson(toJson(*item)) : printText(toText(*item));
    }

private:
    int fail(const Failure &failure, const GlobalOptions &options) const
    {
        return printFailedCall(m_cell.file(), failure, document({}, {}, failure), options);
    }

    [[nodiscard]] bool isWanted(const KProperty &property) const
    {
        return m_names.isEmpty() ? !property.name().startsWith(':')
                                 : m_names.contains(QString::fromUtf8(property.name()));
    }

    /// Without an item the document has its members all the same.
    static QJsonObject document(const PropertyEditor::KeyValueItem *item, const QJsonArray &properties,
                                const std::optional<Failure> &failure)
    {
        const auto textOr = [item](const QString &text) { return item ? QJsonValue(text) : QJsonValue(); };
        return {{QStringLiteral("type"), textOr(item ? item->typeString() : QString())},
                {QStringLiteral("name"), textOr(item ? item->name() : QString())},
                {QStringLiteral("title"), textOr(item ? item->title() : QString())},
                {QStringLiteral("properties"), properties},
                {QStringLiteral("error"), errorJson(failure)}};
    }

    [[nodiscard]] QJsonObject toJson(const PropertyEditor::KeyValueItem &item) const
    {
        QJsonArray properties;
        for (KPropertySetIterator it(*item.propertySet()); it.current(); ++it) {
            if (isWanted(*it.current()))
                properties.append(entryOf(*it.current(), *item.propertySet()));
        }
        return document(&item, properties, {});
    }

    [[nodiscard]] QString toText(const PropertyEditor::KeyValueItem &item) const
    {
        const KPropertySet &set = *item.propertySet();
        QString text;
        for (const QByteArray &group : set.groupNames()) {
            QString lines;
            for (const QByteArray &name : set.propertyNamesForGroup(group)) {
                const KProperty &property = set.property(name);
                if (isWanted(property))
                    lines += line(property);
            }
            if (!lines.isEmpty())
                text += styled(withoutControls(set.groupCaption(group)), Style::Heading) + QLatin1Char('\n') +
                        lines;
        }
        return text;
    }

    CellArgument m_cell;
    QStringList m_names;
};

} // namespace

std::unique_ptr<Command> createGetCommand()
{
    return std::make_unique<GetCommand>();
}

} // namespace orv::cli
