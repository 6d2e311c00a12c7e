#include "orv/propertyeditor/validators/Ulvar2Validator.h"

#include <orv/core/FileTypes.h>
#include <orv/core_ms/TolqUtils.h>
#include <orv/core_ms/Ulvar2Dao.h>

#include <QObject>
#include <QTemporaryDir>

#include <algorithm>

namespace orv::PropertyEditor {

namespace {

bool isMergedFlag(const ulvar2::InfoRecord &record)
{
    return record.key == ulvar2::kIsCreatedByOrvMergeFilesKey &&
           record.value.toLower() == QLatin1String("true");
}

/// The .ulvar2 file behind \a path; that of an archive is unpacked into \a directory.
Result<QString> ulvar2Path(const QString &path, const QTemporaryDir &directory)
{
    if (!FileTypes::isType(path, FileTypes::TOLQ))
        return path;
    if (!directory.isValid())
        return Error(ErrorCode::CannotOpenFile, directory.errorString());
    return TolqUtils::extractSamplePath(path, directory.path());
}

} // namespace

msreader::VendorDataFormat Ulvar2Validator::vendorFormat() const
{
    return msreader::VendorDataFormat::Ulvar2;
}

QSet<BaseItemType> Ulvar2Validator::documentsToCheck() const
{
    static const QSet<BaseItemType> types{BaseItemType::Senthia, BaseItemType::Trenq};
    return types;
}

Error Ulvar2Validator::validateSample(const QString &path) const
{
    const QTemporaryDir directory;
    Result<QString> file = ulvar2Path(path, directory);
    if (file.hasError())
        return file.ecatch();
    ulvar2::Ulvar2Dao dao;
    ORV_RETURN_IF_ERROR(dao.open(*file));
    Result<QList<ulvar2::InfoRecord>> records = dao.readInfos();
    if (records.hasError())
        return records.ecatch();
    if (std::none_of(records->begin(), records->end(), isMergedFlag))
        return Error::NoError;
    return Error(ErrorCode::InvalidContent,
                 QObject::tr("Cannot perform quantitative analysis using merged Ulvar2 files"))
        .addDetail(QObject::tr("Use the files that \"%1\" was merged from.").arg(path));
}

} // namespace orv::PropertyEditor
