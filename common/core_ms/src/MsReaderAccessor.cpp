#include "orv/core_ms/MsReaderAccessor.h"

#include <QCoreApplication>

#include <exception>

namespace orv::msreader {

namespace {

struct MsReaderAccessorTr
{
    Q_DECLARE_TR_FUNCTIONS(MsReaderAccessor)
};

/// Libraries below throw, and so does memory that runs out; neither passes this border.
template<typename Answer, typename Question>
Answer withoutExceptions(const Question &question)
{
    try {
        return question();
    } catch (const std::exception &exception) {
        return Error(ErrorCode::InvalidContent, MsReaderAccessorTr::tr("The MS data can't be read."))
            .addDetail(QString::fromLocal8Bit(exception.what()));
    }
}

} // namespace

MsReaderAccessor::MsReaderAccessor(MsReaderOptions options, VendorDataFormat format)
    : m_options(std::move(options))
    , m_format(format)
{}

MsReaderAccessor::~MsReaderAccessor() = default;

Error MsReaderAccessor::open()
{
    if (m_isOpen)
        return Error::NoError;
    Error error = withoutExceptions<Error>([this] { return openData(); });
    m_isOpen = !error.hasError();
    if (error)
        return error.addDetail(MsReaderAccessorTr::tr("File: %1").arg(path())).ecatch();
    return error;
}

Result<bool> MsReaderAccessor::hasMsProfileData(int level) const
{
    ORV_RETURN_IF_ERROR(checkedOpen());
    Result<bool> answer = withoutExceptions<Result<bool>>([this, level] { return readHasLevel(level); });
    if (answer.hasError())
        return answer.ecatch().addDetail(MsReaderAccessorTr::tr("File: %1").arg(path()));
    return answer;
}

Result<QList<ChromatogramInfo>> MsReaderAccessor::chromatogramInfoList(const ChromatogramFilter &filter) const
{
    using Infos = QList<ChromatogramInfo>;
    ORV_RETURN_IF_ERROR(checkedOpen());
    Result<Infos> answer = withoutExceptions<Result<Infos>>([this] { return readChromatograms(); });
    if (answer.hasError())
        return answer.ecatch().addDetail(MsReaderAccessorTr::tr("File: %1").arg(path()));
    Infos wanted;
    std::copy_if(answer->cbegin(), answer->cend(), std::back_inserter(wanted), filter);
    return wanted;
}

Error MsReaderAccessor::checkedOpen() const
{
    if (m_isOpen)
        return Error::NoError;
    return Error(ErrorCode::CannotOpenFile,
                 MsReaderAccessorTr::tr("The MS data aren't open: %1").arg(path()));
}

} // namespace orv::msreader
