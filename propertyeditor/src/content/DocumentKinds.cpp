#include <orv/core/FileTypes.h>
#include <orv/propertyeditor/PropertyEditorUtils.h>
#include <orv/propertyeditor/content/CellTypes.h>

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace orv {

using PropertyEditor::CellType;
namespace CellTypes = PropertyEditor::CellTypes;

namespace {

struct PropertyEditorUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(PropertyEditorUtils)
};

const CellType::Document *documentOf(BaseItemType type)
{
    const CellType *row = CellTypes::find(type);
    return row && row->document ? &*row->document : nullptr;
}

FileType resultOf(BaseItemType type)
{
    const CellType::Document *document = documentOf(type);
    return document ? document->result : FileTypes::Invalid;
}

FileExtensionsNameFilter filterFor(const QList<BaseItemType> &documents)
{
    QList<FileType> types;
    for (const BaseItemType document : documents)
        types.append(resultOf(document));
    return FileExtensionsNameFilter(types);
}

bool yieldsNoProjectBesideOthers(BaseItemType type)
{
    return type == BaseItemType::Karvon || type == BaseItemType::Preview ||
           type == BaseItemType::TrenqPreview;
}

bool isAll(const QList<BaseItemType> &documents, BaseItemType type)
{
    return std::ranges::all_of(documents, [type](BaseItemType document) { return document == type; });
}

} // namespace

bool PropertyEditorUtils::isKarvonOnly(const QList<BaseItemType> &documents)
{
    return isAll(documents, BaseItemType::Karvon);
}

bool PropertyEditorUtils::isPreviewOnly(const QList<BaseItemType> &documents)
{
    return isAll(documents, BaseItemType::Preview) || isAll(documents, BaseItemType::TrenqPreview);
}

bool PropertyEditorUtils::isMultiDocument(const QList<BaseItemType> &documents)
{
    QSet<BaseItemType> types(documents.cbegin(), documents.cend());
    types.remove(BaseItemType::Karvon);
    return types.size() > 1;
}

Result<FileExtensionsNameFilter>
PropertyEditorUtils::fileNameFilterForExpectedProject(const QList<BaseItemType> &documents)
{
    if (documents.isEmpty()) {
        return Error(ErrorCode::InvalidContent,
                     PropertyEditorUtilsTr::tr("Workflow has to contain at least one processing node"))
            .addDetail(PropertyEditorUtilsTr::tr("Add a column of a search, an analysis or a report."));
    }
    if (isAll(documents, documents.constFirst()))
        return filterFor(documents);
    QList<BaseItemType> projects = documents;
    projects.removeIf(yieldsNoProjectBesideOthers);
    if (projects.isEmpty()) {
        return Error(ErrorCode::InvalidContent,
                     PropertyEditorUtilsTr::tr(
                         "Current workflow processing nodes configuration is not supported"))
            .addDetail(PropertyEditorUtilsTr::tr(
                "Searches and previews of different kinds can't make one project. Keep those of "
                "one kind, or add an analysis."));
    }
    return filterFor(projects);
}

QStringList PropertyEditorUtils::resultProjectExtensionsFromWorkflow(const QList<BaseItemType> &documents)
{
    QStringList names;
    for (const BaseItemType document : documents)
        names.append(FileTypes::name(resultOf(document)));
    QStringList suffixes = FileTypes::fileSuffixesFromExtensionTypes(names);
    suffixes.removeDuplicates();
    return suffixes;
}

QList<SamplesInput::Mode> PropertyEditorUtils::modesFromPropertyTypes(const QList<BaseItemType> &documents)
{
    QList<SamplesInput::Mode> modes;
    for (const BaseItemType document : documents) {
        if (const CellType::Document *known = documentOf(document))
            modes.append(known->mode);
    }
    return modes;
}

} // namespace orv
