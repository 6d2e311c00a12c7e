#include "Command.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/workflow/WorkflowType.h>

namespace orv::cli {

namespace {

struct NumberedName
{
    int number;
    QString name;
};

QList<NumberedName> workflowTypes()
{
    QList<NumberedName> list;
    for (WorkflowType type : availableWorkflowTypes())
        list.append({int(type), workflowTypeToString(type)});
    return list;
}

QList<NumberedName> cellTypes()
{
    QList<NumberedName> list;
    const QMap<BaseItemType, QString> names = PropertyEditor::BaseItem::typeNameMap();
    for (auto it = names.begin(); it != names.end(); ++it)
        list.append({int(it.key()), it.value()});
    return list;
}

QJsonArray toJson(const QList<NumberedName> &list)
{
    QJsonArray array;
    for (const NumberedName &entry : list)
        array.append(
            QJsonObject{{QStringLiteral("number"), entry.number}, {QStringLiteral("name"), entry.name}});
    return array;
}

QString toText(const QString &heading, const QList<NumberedName> &list)
{
    QString text = heading + QLatin1Char('\n');
    for (const NumberedName &entry : list)
        text += QStringLiteral("%1  %2\n").arg(entry.number, 4).arg(entry.name);
    return text;
}

class TypesCommand : public Command
{
public:
    void declare(Arguments &arguments) override { Q_UNUSED(arguments) }

    int run(const GlobalOptions &options) override
    {
        if (options.json) {
            return printJson(QJsonObject{{QStringLiteral("workflowTypes"), toJson(workflowTypes())},
                                         {QStringLiteral("cellTypes"), toJson(cellTypes())}});
        }
        return printText(toText(QStringLiteral("Workflow types"), workflowTypes()) + QLatin1Char('\n') +
                         toText(QStringLiteral("Cell types"), cellTypes()));
    }
};

} // namespace

std::unique_ptr<Command> createTypesCommand()
{
    return std::make_unique<TypesCommand>();
}

} // namespace orv::cli
