#include "TreeText.h"

#include <orv/propertyeditor/content/ItemGroup.h>

#include <QCoreApplication>
#include <QJsonDocument>

namespace orv::TreeText {

using namespace PropertyEditor;

namespace {

struct TreeTextTr
{
    Q_DECLARE_TR_FUNCTIONS(WflwUpgrader)
};

} // namespace

Result<Content> read(const QJsonObject &stamped)
{
    Content tree;
    ORV_RETURN_IF_ERROR(tree.assignFromJson(stamped, ValidationOption::SkipTypeValidation));
    return tree;
}

Result<Content> read(const PropertyEditorContent &document)
{
    Result<Content> tree = read(QJsonDocument::fromJson(document.toJson()).object());
    if (!tree)
        return tree.ecatch();
    return tree;
}

Error checkTabs(const Content &tree)
{
    const ItemGroup *const uneven = tree.firstUnevenGroup();
    if (!uneven)
        return Error::NoError;
    return Error(ErrorCode::MalformedStructure, QObject::tr("Upgrade not possible."))
        .addDetail(TreeTextTr::tr("The columns of the tab \"%1\" differ in height, and a tab is written as a "
                                  "rectangle. Complete its last row.")
                       .arg(uneven->name()));
}

Error write(const Content &tree, PropertyEditorContent *document)
{
    ORV_RETURN_IF_ERROR(checkTabs(tree));
    *document = PropertyEditorContent(tree.toJson(PropertyConversionFlag::KeepPaths));
    return Error::NoError;
}

} // namespace orv::TreeText
