#include "orv/propertyeditor/validators/MGFValidator.h"

#include <orv/core_ms/MsDataAccessorsFactory.h>

#include <QCoroFuture>
#include <QCoroTask>
#include <QObject>
#include <QtConcurrentRun>

namespace orv::PropertyEditor {

namespace {

Result<bool> hasMs1Data(const QString &path)
{
    const auto reader = msreader::MsDataAccessorsFactory::createReader(msreader::MsReaderOptions(path));
    ORV_RETURN_IF_ERROR(reader->open());
    Result<bool> hasData = reader->hasMsProfileData(1);
    if (hasData.hasError())
        return hasData.ecatch();
    return hasData;
}

/// \a path is a copy: the coroutine outlives the call that started it.
QCoro::Task<Result<bool>> co_hasMs1Data(QString path)
{
    co_return co_await QtConcurrent::run(hasMs1Data, std::move(path));
}

} // namespace

msreader::VendorDataFormat MGFValidator::vendorFormat() const
{
    return msreader::VendorDataFormat::Mgf;
}

QSet<BaseItemType> MGFValidator::documentsToCheck() const
{
    static const QSet<BaseItemType> types{BaseItemType::Senthia, BaseItemType::Trenq};
    return types;
}

Error MGFValidator::validateSample(const QString &path) const
{
    Result<bool> hasData = QCoro::waitFor(co_hasMs1Data(path));
    if (hasData.hasError())
        return hasData.ecatch();
    if (*hasData)
        return Error::NoError;
    return Error(ErrorCode::InvalidContent,
                 QObject::tr("Cannot create a project using an MGF sample with no MS1 data."))
        .addDetail(QObject::tr("Convert the raw data of \"%1\" anew, with its MS1 spectra.").arg(path));
}

} // namespace orv::PropertyEditor
