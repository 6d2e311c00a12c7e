#include "PackedFile.h"
#include "Readers.h"

#include <orv/core_ms/MgfReader.h>

#include <QCoreApplication>

namespace orv::msreader::internal {

namespace {

struct MgfFileReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(MgfFileReader)
};

class MgfFileReader : public MsReaderAccessor
{
public:
    explicit MgfFileReader(const MsReaderOptions &options)
        : MsReaderAccessor(options, VendorDataFormat::Mgf)
    {}

protected:
    Error openData() override
    {
        Result<std::unique_ptr<QIODevice>> file = openFile(path());
        return file.hasError() ? file.ecatch() : Error();
    }

    /// The whole text is read whatever the answer: it has no mark at its end that tells whether it is all
    /// there.
    [[nodiscard]] Result<bool> readHasLevel(int level) const override
    {
        Result<std::unique_ptr<QIODevice>> file = openFile(path());
        if (file.hasError())
            return file.ecatch();
        MgfReader reader(file->get());
        bool hasQuery = false;
        bool hasLevel = false;
        for (;;) {
            Result<std::optional<MgfQuery>> query = reader.next();
            if (query.hasError())
                return query.ecatch();
            if (!query->has_value())
                break;
            hasQuery = true;
            hasLevel = hasLevel || ((*query)->msLevel == level && (*query)->peaks > 0);
        }
        if (hasQuery)
            return hasLevel;
        return Error(ErrorCode::InvalidContent, MgfFileReaderTr::tr("The MGF text has no query."))
            .addDetail(MgfFileReaderTr::tr(
                "Check that the file is MGF: queries stand between BEGIN IONS and END IONS."));
    }

    /// The format has none.
    [[nodiscard]] Result<QList<ChromatogramInfo>> readChromatograms() const override
    {
        return QList<ChromatogramInfo>();
    }
};

} // namespace

std::unique_ptr<MsReaderAccessor> createMgfReader(const MsReaderOptions &options)
{
    return std::make_unique<MgfFileReader>(options);
}

} // namespace orv::msreader::internal
