#include "../Console.h"
#include "../Failure.h"
#include "Command.h"

#include <KPropertySet>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertiesTraits.h>
#include <orv/propertyeditor/PropertySetCreator.h>
#include <orv/propertyeditor/engine/KarvonPresetCreator.h>
#include <orv/table/XenosetPreset.h>

#include <QJsonDocument>

#include <map>

namespace orv::cli {

namespace {

using Properties = std::map<PropertyId, const KProperty *>;

Properties byId(const KPropertySet &set)
{
    Properties properties;
    for (KPropertySetIterator it(set); it.current(); ++it)
        properties.emplace(PropertiesNames::findPropertyForName(QString::fromUtf8(it.current()->name())),
                           it.current());
    return properties;
}

/// An object of which the file knows the text alone is that text.
QJsonValue valueOf(const KProperty &property)
{
    const bool isText = property.value().typeId() == QMetaType::QString;
    if (isText && property.type() == PropertiesTraits::ObjectType)
        return property.value().toString();
    return PropertySetCreator::valueToJson(property, PropertyEditor::PropertyConversionFlag::KeepPaths);
}

QString textOf(const KProperty &property)
{
    const QJsonValue value = valueOf(property);
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    if (value.isArray())
        return value.toVariant().toStringList().join(QLatin1String(", "));
    return property.value().toString();
}

QString toText(const Properties &properties)
{
    QString text;
    for (const auto &[id, property] : properties) {
        const QString name = QString::fromUtf8(property->name());
        const QString value = withoutControls(textOf(*property));
        text += QStringLiteral("%1  %2").arg(int(id), 3).arg(name, value.isEmpty() ? 0 : -36);
        text += value.isEmpty() ? QStringLiteral("\n") : QStringLiteral(" %1\n").arg(value);
    }
    return text;
}

QJsonObject document(const Properties &properties, const std::optional<Failure> &failure)
{
    QJsonArray array;
    for (const auto &[id, property] : properties) {
        array.append(QJsonObject{{QStringLiteral("id"), int(id)},
                                 {QStringLiteral("name"), QString::fromUtf8(property->name())},
                                 {QStringLiteral("value"), valueOf(*property)}});
    }
    return {{QStringLiteral("properties"), array}, {QStringLiteral("error"), errorJson(failure)}};
}

class ReadXenosetCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        arguments.positional("PATH", &m_path, "Parameter file of the search engine",
                             {.isRequired = true, .kind = ValueKind::File});
    }

    int run(const GlobalOptions &options) override
    {
        const Result<XenosetPreset> preset = XenosetPreset::fromFile(m_path);
        if (preset.hasError())
            return report(nullptr, failureFrom(preset.error(), BadInput), options);
        std::unique_ptr<KPropertySet> set;
        if (!preset->keys().isEmpty())
            set.reset(KarvonPresetCreator::propertySetFromXenoset(*preset));
        if (set)
            return report(set.get(), {}, options);
        return report(nullptr,
                      Failure{BadInput, int(ErrorCode::InvalidContent),
                              QStringLiteral("The file has no line key=value; name a parameter file of the "
                                             "search engine.")},
                      options);
    }

private:
    int report(const KPropertySet *set, const std::optional<Failure> &failure,
               const GlobalOptions &options) const
    {
        if (failure)
            printFailure(m_path, *failure);
        const Properties properties = set ? byId(*set) : Properties();
        const int printed =
            options.json ? printJson(document(properties, failure)) : printText(toText(properties));
        return std::max<int>(failure ? failure->exitCode : Done, printed);
    }

    QString m_path;
};

} // namespace

std::unique_ptr<Command> createReadXenosetCommand()
{
    return std::make_unique<ReadXenosetCommand>();
}

} // namespace orv::cli
