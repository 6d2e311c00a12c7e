#include "orv/propertyeditor/content/DocumentSaving.h"

#include <orv/core/FileUtils.h>

#include <QCoreApplication>

namespace orv::DocumentSaving {

namespace {

struct DocumentSavingTr
{
    Q_DECLARE_TR_FUNCTIONS(DocumentSaving)
};

} // namespace

Error write(const QString &fileName, const QByteArray &json)
{
    ORV_RETURN_IF_ERROR(FileUtils::checkReadable(json));
    QString deviceError;
    if (FileUtils::writeToFile(fileName, json, &deviceError) == QFileDevice::NoError)
        return Error::NoError;
    return Error(ErrorCode::CannotOpenFile,
                 DocumentSavingTr::tr("Could not write the file: %1").arg(fileName))
        .addDetail(deviceError)
        .addDetail(
            DocumentSavingTr::tr("Nothing was changed. Save to another folder, or see that this one has "
                                 "room and can be written."));
}

} // namespace orv::DocumentSaving
