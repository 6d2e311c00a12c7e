// Lists the tabs of a workflow, once from each of the two forms of a document.
#include <orv/core/FileUtils.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>

#include <QTextStream>

namespace {

/// The value form: plain data, of any document, old and odd ones too.
void listValueForm(const QByteArray &json, QTextStream &out)
{
    const orv::PropertyEditorContent content(json);
    out << "Format version " << orv::WflwMetaData::versionFromMetaDataObject(content.metadata()) << '\n';
    for (const auto &[name, columnsAndCells] : content.tabsAndContent())
        out << name << ": " << columnsAndCells.second.size() << " cell(s)\n";
}

/// The object form: a checked tree of objects, with signals as it changes.
orv::Error listObjectForm(const QString &path, QTextStream &out)
{
    orv::PropertyEditor::Content content;
    if (orv::Error error = content.assignFromFile(path))
        return error.ecatch();
    out << "Workflow \"" << content.name() << "\"\n";
    for (const orv::PropertyEditor::ItemGroup *tab : content.groups()) {
        for (const orv::PropertyEditor::ItemSubGroup *column : tab->subGroups())
            out << tab->name() << " / " << column->name() << ": " << column->count() << " item(s)\n";
    }
    return orv::Error::NoError;
}

} // namespace

int main(int argc, char *argv[])
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    if (argc != 2) {
        err << "usage: list-tabs <workflow.wflw>\n";
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[1]);
    const orv::Result<QByteArray> json = orv::FileUtils::readFile(path);
    if (json.hasError()) {
        err << json.error().errorMessage() << '\n';
        return 1;
    }
    listValueForm(*json, out);
    if (const orv::Error error = listObjectForm(path, out)) {
        err << error.errorMessage() << '\n';
        return 1;
    }
    return 0;
}
