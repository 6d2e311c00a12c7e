// Brings a workflow into the present form; tells what is wrong with it, and what gets lost.
#include <orv/propertyeditor/validators/WorkflowFile.h>

#include <QCoreApplication>
#include <QTextStream>

using namespace orv;
using namespace orv::PropertyEditor;

namespace {

//! [modernize]
Error modernize(const QString &from, const QString &to, QTextStream &out)
{
    Result<WorkflowFile> file = WorkflowFile::open(from);
    if (file.hasError())
        return file.ecatch();

    Result<WorkflowCheckReport> check = file->check(); // in memory, as it will be after its upgrade
    if (check.hasError())
        return check.ecatch();
    for (const LocatedFinding &finding : check->findings)
        out << "line " << finding.line.value_or(0) << ", " << finding.tab << " / " << finding.column << ": "
            << finding.message << '\n';

    WorkflowUpgradeReport upgrade = file->upgrade({.accessSampleData = false});
    if (upgrade.error)
        return upgrade.error.ecatch();
    for (const Loss &loss : file->lost())
        out << "lost: " << loss.path << ": " << loss.what << '\n';

    return file->save(to).ecatch(); // never over a newer document, nor with losses over the only copy
}
//! [modernize]

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        err << "usage: modernize <from.wflw> <to.wflw>\n";
        return 2;
    }
    if (const Error error = modernize(arguments.at(1), arguments.at(2), out)) {
        err << error.errorMessage() << '\n' << error.details().join(u'\n') << '\n';
        return 1;
    }
    return 0;
}
