#include "orv/propertyeditor/validators/MGFValidator.h"

#include <orv/core_ms/MsDataAccessorsFactory.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QThreadPool>
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

/// Handles the events of this thread, but for what the user does, until \a future has ended; unlike an event
/// loop that is executed, also after the application was told to quit.
template<typename T>
void handleEventsUntilFinished(const QFuture<T> &future)
{
    if (!QCoreApplication::instance())
        return;
    QFutureWatcher<T> waker; // its event ends the wait for others
    waker.setFuture(future);
    QEventLoop loop;
    while (!future.isFinished())
        loop.processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

/// On a thread of its own: those of the application's pool may all be waiting for checks like this.
Result<bool> hasMs1DataByWorker(const QString &path)
{
    QThreadPool worker;
    const QFuture<Result<bool>> future = QtConcurrent::run(&worker, hasMs1Data, path);
    handleEventsUntilFinished(future);
    return future.result();
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
    Result<bool> hasData = hasMs1DataByWorker(path);
    if (hasData.hasError())
        return hasData.ecatch();
    if (*hasData)
        return Error::NoError;
    return Error(ErrorCode::InvalidContent,
                 QObject::tr("Cannot create a project using an MGF sample with no MS1 data."))
        .addDetail(QObject::tr("Convert the raw data of \"%1\" anew, with its MS1 spectra.").arg(path));
}

} // namespace orv::PropertyEditor
