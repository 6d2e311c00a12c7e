#include "../Console.h"
#include "../Inputs.h"
#include "../ValueText.h"
#include "Command.h"

#include <orv/propertyeditor/content/PropertyEditorJsonUtils.h>
#include <orv/propertyeditor/workflow/WorkflowDifferences.h>

#include <QJsonDocument>

#include <array>

namespace orv::cli {

namespace {

using DifferenceKind = WorkflowDifference::Kind;

struct DifferenceKindRow
{
    const char *name;
    const char *mark;
    Style style;
};

// By the number of the kind.
constexpr std::array kDifferenceKinds = {
    DifferenceKindRow{"added", "+", Style::Good},
    DifferenceKindRow{"removed", "-", Style::Bad},
    DifferenceKindRow{"changed", "~", Style::Caution},
};

const DifferenceKindRow &rowOf(DifferenceKind kind)
{
    return kDifferenceKinds.at(size_t(kind));
}

QString line(const WorkflowDifference &difference)
{
    const DifferenceKindRow &row = rowOf(difference.kind);
    QStringList values;
    for (const QJsonValue &value : {difference.left, difference.right}) {
        if (!value.isUndefined())
            values.append(oneLine(value));
    }
    return styled(withoutControls(QStringLiteral("%1 %2: ").arg(QLatin1String(row.mark), difference.path)),
                  row.style) +
           withoutControls(values.join(QLatin1String(" -> "))) + QLatin1Char('\n');
}

QString toText(const QList<WorkflowDifference> &differences)
{
    if (differences.isEmpty())
        return QStringLiteral("The workflows are equal.\n");
    QString text;
    for (const WorkflowDifference &difference : differences)
        text += line(difference);
    return text;
}

QJsonObject toJson(const WorkflowDifference &difference)
{
    return {{QStringLiteral("path"), difference.path},
            {QStringLiteral("kind"), QLatin1String(rowOf(difference.kind).name)},
            {QStringLiteral("tab"), orNull(difference.tab)},
            {QStringLiteral("column"), orNull(difference.column)},
            {QStringLiteral("row"), difference.row ? QJsonValue(*difference.row) : QJsonValue()},
            {QStringLiteral("property"), orNull(difference.property)},
            {QStringLiteral("left"), orNull(difference.left)},
            {QStringLiteral("right"), orNull(difference.right)}};
}

class DiffCommand : public Command
{
public:
    void declare(Arguments &arguments) override
    {
        arguments.positional("A", &m_left, "Workflow file, portable workflow folder, or - for standard input",
                             {.isRequired = true, .kind = ValueKind::Workflow});
        arguments.positional("B", &m_right, "The workflow to compare it with",
                             {.isRequired = true, .kind = ValueKind::Workflow});
        arguments.flag("--strict", &m_strict,
                       "Compare stamps and metadata too, which change with every save");
    }

    int run(const GlobalOptions &options) override
    {
        if (m_left == kStandardInput && m_right == kStandardInput)
            return fail(m_left,
                        {WrongUsage, 0, QStringLiteral("Standard input holds one workflow, not two.")},
                        options);
        const Outcome<QJsonObject> left = readDocument(m_left);
        if (left.hasFailed())
            return fail(m_left, left.failure(), options);
        const Outcome<QJsonObject> right = readDocument(m_right);
        if (right.hasFailed())
            return fail(m_right, right.failure(), options);
        return compare(*left, *right, options);
    }

private:
    [[nodiscard]] int compare(const QJsonObject &left, const QJsonObject &right,
                              const GlobalOptions &options) const
    {
        const bool equal = PropertyEditorJsonUtils::compareWorkflows(left, right, m_strict);
        const QList<WorkflowDifference> differences = WorkflowDifferences::between(left, right, m_strict);
        const int printed = options.json ? printJson(report(equal, differences, QJsonValue()))
                                         : printText(toText(differences));
        return std::max<int>(equal ? Done : Negative, printed);
    }

    static int fail(const QString &file, const Failure &failure, const GlobalOptions &options)
    {
        return printFailedCall(file, failure, report(QJsonValue(), {}, orv::cli::toJson(failure)), options);
    }

    static QJsonObject report(const QJsonValue &equal, const QList<WorkflowDifference> &differences,
                              const QJsonValue &error)
    {
        QJsonArray list;
        for (const WorkflowDifference &difference : differences)
            list.append(toJson(difference));
        return {{QStringLiteral("equal"), equal},
                {QStringLiteral("differences"), list},
                {QStringLiteral("error"), error}};
    }

    QString m_left;
    QString m_right;
    bool m_strict = false;
};

} // namespace

std::unique_ptr<Command> createDiffCommand()
{
    return std::make_unique<DiffCommand>();
}

} // namespace orv::cli
