#include "Readers.h"

#include <orv/core/FileTypes.h>
#include <orv/core_ms/MsDataAccessorsFactory.h>
#include <orv/core_ms/TolqUtils.h>

#include <QCoreApplication>
#include <QTemporaryDir>

namespace orv::msreader::internal {

namespace {

struct TolqReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(TolqReader)
};

class TolqReader : public MsReaderAccessor
{
public:
    explicit TolqReader(const MsReaderOptions &options)
        : MsReaderAccessor(options, VendorDataFormat::Tolq)
    {}

    [[nodiscard]] bool isFormatRead() const override { return !m_reader || m_reader->isFormatRead(); }

protected:
    Error openData() override
    {
        if (!m_directory.isValid())
            return Error(ErrorCode::CannotOpenFile,
                         TolqReaderTr::tr("There is no place to unpack the sample."))
                .addDetail(m_directory.errorString());
        Result<QString> sample = TolqUtils::extractSamplePath(path(), m_directory.path());
        if (sample.hasError())
            return sample.ecatch();
        if (FileTypes::isType(*sample, FileTypes::TOLQ))
            return Error(ErrorCode::InvalidContent,
                         TolqReaderTr::tr("An acquired sample lies inside another."));
        MsReaderOptions inner = options();
        inner.path = *sample;
        m_reader = MsDataAccessorsFactory::createReader(inner);
        return m_reader->open();
    }

    [[nodiscard]] Result<bool> readHasLevel(int level) const override
    {
        return m_reader->hasMsProfileData(level);
    }

    [[nodiscard]] Result<QList<ChromatogramInfo>> readChromatograms() const override
    {
        return m_reader->chromatogramInfoList();
    }

private:
    QTemporaryDir m_directory;
    std::unique_ptr<MsReaderAccessor> m_reader;
};

} // namespace

std::unique_ptr<MsReaderAccessor> createTolqReader(const MsReaderOptions &options)
{
    return std::make_unique<TolqReader>(options);
}

} // namespace orv::msreader::internal
