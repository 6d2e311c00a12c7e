#include "ChromatogramTerms.h"
#include "MzmlIndex.h"
#include "PackedFile.h"
#include "Readers.h"

#include <QCoreApplication>

namespace orv::msreader::internal {

namespace {

constexpr qint64 kXmlTailBytes = 4096;
constexpr qint64 kScanBytes = 1 << 18;

struct XmlReadersTr
{
    Q_DECLARE_TR_FUNCTIONS(XmlReaders)
};

/// The beginning and the end of a text.
struct Ends
{
    QByteArray head;
    QByteArray tail;
    qint64 size = 0; ///< of the whole text, unpacked
};

/// A packed text is unpacked on the way, which finds damage anywhere.
Result<Ends> readEnds(QIODevice *file)
{
    Ends ends;
    ends.head = ends.tail = file->read(kScanBytes);
    ends.size = ends.tail.size();
    if (!file->isSequential()) {
        file->seek(qMax<qint64>(0, file->size() - kXmlTailBytes));
        return Ends{ends.head, file->read(kXmlTailBytes), file->size()};
    }
    while (!file->atEnd()) {
        const QByteArray chunk = file->read(kScanBytes);
        ends.size += chunk.size();
        ends.tail = (ends.tail + chunk).last(qMin<qint64>(ends.size, kXmlTailBytes));
        if (chunk.isEmpty() && !file->atEnd())
            return Error(ErrorCode::InvalidContent, XmlReadersTr::tr("The MS data are damaged."))
                .addDetail(
                    XmlReadersTr::tr("After %1 unpacked bytes: %2").arg(ends.size).arg(file->errorString()))
                .addDetail(XmlReadersTr::tr("Copy or convert the file again."));
    }
    return ends;
}

/// UTF-16, in which tags are written differently.
bool isWideText(const QByteArray &head)
{
    return head.startsWith("\xFF\xFE") || head.startsWith("\xFE\xFF");
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
        Result<Ends> ends = readEnds(file->get());
        if (ends.hasError())
            return ends.ecatch();
        const bool isWhole = isWideText(ends->head) ||
                             std::any_of(m_endTags.begin(), m_endTags.end(),
                                         [&ends](const QByteArray &tag) { return ends->tail.contains(tag); });
        if (isWhole)
            return Error::NoError;
        return Error(ErrorCode::InvalidContent, XmlReadersTr::tr("The MS data are cut short."))
            .addDetail(XmlReadersTr::tr("The text ends after %1 bytes, before \"%2\".")
                           .arg(ends->size)
                           .arg(QString::fromLatin1(m_endTags.first())))
            .addDetail(XmlReadersTr::tr("Copy or convert the file again."));
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
        if (options().usesIndex && !(*file)->isSequential()) {
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
