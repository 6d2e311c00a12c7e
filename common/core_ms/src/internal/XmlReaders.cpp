#include "ChromatogramTerms.h"
#include "MzmlIndex.h"
#include "PackedFile.h"
#include "Readers.h"

#include <QCoreApplication>

namespace orv::msreader::internal {

namespace {

constexpr qint64 kTailBytes = 4096;
constexpr qint64 kChunkBytes = 1 << 18;

struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(XmlReaders)
};

struct Tail
{
    QByteArray bytes;
    qint64 size = 0; ///< of the whole text, unpacked
};

/// The end of a text. A packed one is unpacked on the way, which finds damage anywhere.
Result<Tail> readTail(QIODevice *file)
{
    if (!file->isSequential()) {
        file->seek(qMax<qint64>(0, file->size() - kTailBytes));
        return Tail{file->read(kTailBytes), file->size()};
    }
    Tail tail;
    for (;;) {
        const QByteArray chunk = file->read(kChunkBytes);
        tail.size += chunk.size();
        tail.bytes = (tail.bytes + chunk).last(qMin<qint64>(tail.size, kTailBytes));
        if (!chunk.isEmpty())
            continue;
        if (file->atEnd())
            return tail;
        return Error(ErrorCode::InvalidContent, Tr::tr("The MS data are damaged."))
            .addDetail(Tr::tr("After %1 unpacked bytes: %2").arg(tail.size).arg(file->errorString()))
            .addDetail(Tr::tr("Copy or convert the file again."));
    }
}

bool isWideText(const QByteArray &tail)
{
    return tail.contains(QByteArrayView("\0>", 2)) || tail.contains(QByteArrayView(">\0", 2));
}

class XmlReader : public MsReaderAccessor
{
public:
    XmlReader(const MsReaderOptions &options, VendorDataFormat format, QByteArrayList endTags)
        : MsReaderAccessor(options, format)
        , m_endTags(std::move(endTags))
    {}

protected:
    [[nodiscard]] virtual std::unique_ptr<MsXmlReading> startReading(QIODevice *file) const = 0;

    /// A text that lacks its end was cut short. Questions whose answer stands at the front wouldn't see it.
    Error openData() override
    {
        Result<std::unique_ptr<QIODevice>> file = openFile(path());
        if (file.hasError())
            return file.ecatch();
        Result<Tail> tail = readTail(file->get());
        if (tail.hasError())
            return tail.ecatch();
        const bool isWhole = isWideText(tail->bytes) ||
                             std::any_of(m_endTags.begin(), m_endTags.end(), [&tail](const QByteArray &tag) {
                                 return tail->bytes.contains(tag);
                             });
        if (isWhole)
            return Error::NoError;
        return Error(ErrorCode::InvalidContent, Tr::tr("The MS data are cut short."))
            .addDetail(Tr::tr("The text ends after %1 bytes, before \"%2\".")
                           .arg(tail->size)
                           .arg(QString::fromLatin1(m_endTags.first())))
            .addDetail(Tr::tr("Copy or convert the file again."));
    }

    [[nodiscard]] Result<bool> readHasLevel(int level) const override
    {
        Result<std::unique_ptr<QIODevice>> file = openFile(path());
        if (file.hasError())
            return file.ecatch();
        const std::unique_ptr<MsXmlReading> reading = startReading(file->get());
        while (const std::optional<MsItem> item = reading->next()) {
            if (item->kind == MsItem::Kind::Spectrum && item->msLevel == level && !item->isEmpty)
                return true;
        }
        if (reading->failure())
            return reading->failure();
        return false;
    }

private:
    QByteArrayList m_endTags;
};

class MzmlReader : public XmlReader
{
public:
    explicit MzmlReader(const MsReaderOptions &options)
        : XmlReader(options, VendorDataFormat::Mzml, {"</mzML>", "</indexedmzML>"})
    {}

protected:
    [[nodiscard]] std::unique_ptr<MsXmlReading> startReading(QIODevice *file) const override
    {
        return std::make_unique<MzmlReading>(file);
    }

    [[nodiscard]] Result<QList<ChromatogramInfo>> readChromatograms() const override
    {
        Result<std::unique_ptr<QIODevice>> file = openFile(path());
        if (file.hasError())
            return file.ecatch();
        if (!(*file)->isSequential()) {
            if (const std::optional<QList<MsItem>> items = chromatogramsByIndex(file->get()))
                return described(*items);
            (*file)->seek(0);
        }
        MzmlReading reading(file->get());
        QList<MsItem> items;
        while (std::optional<MsItem> item = reading.next()) {
            if (item->kind == MsItem::Kind::Chromatogram)
                items.append(std::move(*item));
        }
        if (reading.failure())
            return reading.failure();
        return described(items);
    }

private:
    static QList<ChromatogramInfo> described(const QList<MsItem> &items)
    {
        QList<ChromatogramInfo> infos;
        infos.reserve(items.size());
        for (const MsItem &item : items) {
            const int index = int(infos.size());
            ChromatogramInfo info{index, item.id, item.id, chromatogramTypeOf(item.terms)};
            if (item.id.isEmpty()) {
                info.name = QStringLiteral("Chromatogram %1").arg(index + 1);
                info.id = QStringLiteral("index=%1").arg(index);
            }
            infos.append(info);
        }
        return infos;
    }
};

class MzxmlReader : public XmlReader
{
public:
    explicit MzxmlReader(const MsReaderOptions &options)
        : XmlReader(options, VendorDataFormat::Mzxml, {"</mzXML>", "</msRun>"})
    {}

protected:
    [[nodiscard]] std::unique_ptr<MsXmlReading> startReading(QIODevice *file) const override
    {
        return std::make_unique<MzxmlReading>(file);
    }

    /// The format has none.
    [[nodiscard]] Result<QList<ChromatogramInfo>> readChromatograms() const override
    {
        return QList<ChromatogramInfo>();
    }
};

} // namespace

std::unique_ptr<MsReaderAccessor> createMzmlReader(const MsReaderOptions &options)
{
    return std::make_unique<MzmlReader>(options);
}

std::unique_ptr<MsReaderAccessor> createMzxmlReader(const MsReaderOptions &options)
{
    return std::make_unique<MzxmlReader>(options);
}

} // namespace orv::msreader::internal
