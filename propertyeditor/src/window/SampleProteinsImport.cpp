#include "orv/propertyeditor/window/PropertyEditorWindow.h"

#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/grid/GridCommunicationManager.h>
#include <orv/propertyeditor/grid/ProteinsTableItem.h>
#include <orv/propertyeditor/grid/SamplesProteinsTableItem.h>
#include <orv/propertyeditor/grid/SamplesViewItem.h>
#include <orv/propertyeditor/grid/TableItems.h>
#include <orv/widgets/CsvSamplesProteinsController.h>

#include <QFileInfo>

#include <vector>

namespace orv {

using PropertyEditor::BaseItem;
using PropertyEditor::Content;
using PropertyEditor::PropertyConversionFlag;

namespace {

/// A cell of the document and the grid item that takes part in the import for it.
struct ImportMember
{
    BaseItem *cell;
    IGridItem *item;
};

Error loadMembers(const std::vector<ImportMember> &members)
{
    for (const ImportMember &member : members)
        ORV_RETURN_IF_ERROR(member.item->setContent(member.cell->toJson(PropertyConversionFlag::KeepPaths)));
    return Error::NoError;
}

Error importCsv(SamplesProteinsTableItem &item, const QString &path)
{
    Error failure;
    const auto *controller = item.findChild<CsvSamplesProteinsController *>();
    QObject::connect(controller, &CsvSamplesProteinsController::importFailed, controller,
                     [&failure](const Error &error) { failure = error; });
    item.importCSV(path);
    return failure;
}

} // namespace

Error PropertyEditorWindow::importSampleProteins(const QString &csvPath, Content *content)
{
    if (csvPath.isEmpty() || !QFileInfo::exists(csvPath))
        return Error(ErrorCode::InvalidContent, tr("Sample protein csv file does not exist."));
    const QList<BaseItem *> tables = content->findAllItems(BaseItemType::SamplesProteins);
    if (tables.isEmpty()) {
        return Error(ErrorCode::InvalidContent, tr("Provided workflow doesn't contain Sample Proteins tab"));
    }
    GridCommunicationManager bus;
    SamplesProteinsTableItem samplesProteins(&bus);
    SamplesViewItem samples(&bus);
    ProteinsTableItem proteins(&bus);
    IntactProteinsItem intactProteins(&bus);
    std::vector<ImportMember> members;
    const auto join = [content, &members](BaseItemType type, IGridItem &item) {
        if (const QList<BaseItem *> cells = content->findAllItems(type); !cells.isEmpty())
            members.push_back({cells.first(), &item});
    };
    join(BaseItemType::Samples, samples);
    join(BaseItemType::Proteins, proteins);
    join(BaseItemType::IntactProteins, intactProteins);
    members.push_back({tables.first(), &samplesProteins});
    ORV_RETURN_IF_ERROR(loadMembers(members));
    ORV_RETURN_IF_ERROR(importCsv(samplesProteins, csvPath));
    for (const ImportMember &member : members)
        ORV_RETURN_IF_ERROR(member.cell->assignFromJson(member.item->content(), {}));
    return Error::NoError;
}

Error PropertyEditorWindow::importSampleProteins(const QString &csvPath, PropertyEditorContent *content)
{
    Content document;
    ORV_RETURN_IF_ERROR(document.assignFromJson(content->document()));
    ORV_RETURN_IF_ERROR(importSampleProteins(csvPath, &document));
    *content = PropertyEditorContent(document.toJsonObject(PropertyConversionFlag::KeepPaths));
    return Error::NoError;
}

} // namespace orv
