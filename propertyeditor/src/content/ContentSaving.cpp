#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/BaseItem.h>
#include <orv/propertyeditor/content/Content.h>
#include <orv/propertyeditor/content/DocumentSaving.h>
#include <orv/propertyeditor/content/ItemGroup.h>
#include <orv/propertyeditor/content/ItemSubGroup.h>

namespace orv::PropertyEditor {

bool Content::save(const QString &fileName) const
{
    return save(fileName, nullptr);
}

bool Content::save(const QString &fileName, Error *error) const
{
    Error failure = write(fileName);
    if (failure) {
        qCWarning(propertyEditorLog) << "Cannot save content to the file" << fileName << ":"
                                     << failure.details().value(0, failure.errorMessage());
    }
    const bool isSaved = !failure;
    if (error)
        *error = std::move(failure);
    return isSaved;
}

namespace {

struct UnwritableRow
{
    qsizetype row = -1;
    Error error;
};

UnwritableRow firstUnwritable(const ItemSubGroup &column)
{
    const QList<BaseItem *> items = column.items();
    for (qsizetype row = 0; row < items.size(); ++row) {
        if (Error error = items.at(row)->checkWritable(); error.hasError())
            return {row, error};
    }
    return {};
}

} // namespace

Error Content::write(const QString &fileName) const
{
    ORV_RETURN_IF_ERROR(checkWritable());
    return DocumentSaving::write(fileName, toJson(PropertyConversionFlag::KeepPaths)).ecatch();
}

Error Content::checkRectangles() const
{
    const ItemGroup *const uneven = firstUnevenGroup();
    if (!uneven)
        return Error::NoError;
    return Error(
        ErrorCode::MalformedStructure,
        tr("The columns of the tab \"%1\" differ in height, and a tab is a rectangle. Add the missing "
           "cells or remove the others.")
            .arg(uneven->name()));
}

Error Content::checkWritable() const
{
    ORV_RETURN_IF_ERROR(checkRectangles());
    for (const ItemGroup *group : groups()) {
        for (const ItemSubGroup *subGroup : group->subGroups()) {
            if (UnwritableRow found = firstUnwritable(*subGroup); found.error.hasError()) {
                return found.error
                    .addDetail(tr("Tab \"%1\", column \"%2\", row %3.")
                                   .arg(group->name(), subGroup->name())
                                   .arg(found.row + 1))
                    .ecatch();
            }
        }
    }
    return Error::NoError;
}

} // namespace orv::PropertyEditor
