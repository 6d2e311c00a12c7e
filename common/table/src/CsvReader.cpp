#include "orv/table/CsvReader.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QStringDecoder>

#include <csv.h>

#include <algorithm>

namespace orv {

namespace {

struct CsvReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(CsvReader)
};

constexpr qsizetype kChunkBytes = 1 << 16;
constexpr QByteArrayView kCsvByteOrderMark("\xEF\xBB\xBF");

/// The parser cuts what this calls a blank from the ends of fields, and RFC 4180 keeps it.
int nothingIsBlank(unsigned char /*byte*/)
{
    return 0;
}

/// Its mark inside a text is a character as any other; the file's own was taken off before.
QString decoded(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}

} // namespace

class CsvReader::Private
{
public:
    Private(QIODevice *source, const Limits &maxima, const Format &format)
        : device(source)
        , limits(maxima)
    {
        csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_space_func(&parser, nothingIsBlank);
        csv_set_delim(&parser, static_cast<unsigned char>(format.separator));
        csv_set_quote(&parser, static_cast<unsigned char>(format.quote));
    }
    ~Private() { csv_free(&parser); }
    Q_DISABLE_COPY_MOVE(Private)

    /// Reads on until a row is complete, the text ends or something is wrong.
    void advance();

    QIODevice *device;
    Limits limits;
    Error error;
    CsvRow row; ///< the one that is being read
    bool isRowComplete = false;
    bool isAtEnd = false;

private:
    static void fieldEnds(void *text, size_t size, void *self);
    static void rowEnds(int terminator, void *self);

    bool fill();
    [[nodiscard]] QByteArrayView takePiece();
    void parse(QByteArrayView piece);
    void finish();
    void addField(QByteArrayView bytes);
    void checkSizes(qsizetype unfinishedFieldBytes);
    void failForSize(const QString &message);
    void fail(const QString &message, const QString &remedy, qsizetype place);

    csv_parser parser = {};
    QByteArray chunk;
    qsizetype at = 0; ///< in the chunk
    bool isFirstChunk = true;
    qsizetype line = 1;
    char lastByte = '\0';
    bool hasRowBegun = false;
    qsizetype rowBytes = 0; ///< of the fields that are complete
};

void CsvReader::Private::fieldEnds(void *text, size_t size, void *self)
{
    static_cast<Private *>(self)->addField({static_cast<const char *>(text), qsizetype(size)});
}

void CsvReader::Private::rowEnds(int /*terminator*/, void *self)
{
    static_cast<Private *>(self)->isRowComplete = true;
}

void CsvReader::Private::advance()
{
    row = {};
    isRowComplete = false;
    hasRowBegun = false;
    rowBytes = 0;
    while (!isRowComplete && !isAtEnd && !error.hasError()) {
        if (at < chunk.size() || fill())
            parse(takePiece());
        else if (!error.hasError())
            finish();
    }
}

/// False at the end of the text and when the device fails.
bool CsvReader::Private::fill()
{
    chunk.resize(kChunkBytes);
    // A slow device may give less than a byte order mark at first.
    const qsizetype atLeast = isFirstChunk ? kCsvByteOrderMark.size() : 1;
    qint64 size = 0;
    qint64 added = 0;
    do {
        added = device->read(chunk.data() + size, chunk.size() - size);
        size += std::max<qint64>(added, 0);
    } while (added > 0 && size < atLeast);
    chunk.resize(size);
    at = 0;
    if (added < 0) {
        error = Error(ErrorCode::CannotOpenFile, CsvReaderTr::tr("The table cannot be read."));
        error.addDetail(device->errorString());
        return false;
    }
    if (isFirstChunk && chunk.startsWith(kCsvByteOrderMark))
        at = kCsvByteOrderMark.size();
    isFirstChunk = false;
    return at < chunk.size();
}

/// Up to the next end of a line, so that no piece completes two rows and the line is known for each.
QByteArrayView CsvReader::Private::takePiece()
{
    const char *const begin = chunk.constData() + at;
    const char *const end = chunk.constData() + chunk.size();
    const auto *found = std::find_if(begin, end, [](char byte) { return byte == '\n' || byte == '\r'; });
    if (found != end)
        ++found;
    at += found - begin;
    return {begin, found};
}

void CsvReader::Private::parse(QByteArrayView piece)
{
    // Both bytes of a CR LF are one end of a line.
    const bool isSecondByteOfLineEnd = lastByte == '\r' && piece == QByteArrayView("\n");
    const char last = piece.back();
    const bool isBlankLine = piece.size() == 1 && (last == '\r' || last == '\n');
    if (!hasRowBegun && !isBlankLine) {
        hasRowBegun = true;
        row.line = line;
    }
    const size_t parsed = csv_parse(&parser, piece.data(), size_t(piece.size()), fieldEnds, rowEnds, this);
    // The last byte may be the quote that ends the field. Sizes go first: the fault that is told must not
    // depend on how the device cuts the text into pieces.
    if (!isRowComplete)
        checkSizes(std::max<qsizetype>(qsizetype(parser.entry_pos) - 1, 0));
    if (parsed < size_t(piece.size()) && !error.hasError()) {
        fail(CsvReaderTr::tr("A quote stands where it may not."),
             CsvReaderTr::tr("Quote the whole field, and write each quote inside it twice."), line);
    }
    if (last == '\r' || (last == '\n' && !isSecondByteOfLineEnd))
        ++line;
    lastByte = last;
}

void CsvReader::Private::finish()
{
    isAtEnd = true;
    if (csv_fini(&parser, fieldEnds, rowEnds, this) != 0 && !error.hasError()) {
        fail(CsvReaderTr::tr("A quoted field has no end."),
             CsvReaderTr::tr("Write the quote that ends it, or complete the file."), row.line);
    }
}

void CsvReader::Private::addField(QByteArrayView bytes)
{
    if (error.hasError())
        return;
    checkSizes(bytes.size());
    if (!error.hasError() && row.fields.size() == limits.rowFields)
        failForSize(CsvReaderTr::tr("A row has more than %1 fields.").arg(limits.rowFields));
    if (!error.hasError() && !bytes.isValidUtf8())
        fail(CsvReaderTr::tr("The table is not UTF-8."), CsvReaderTr::tr("Save it with the encoding UTF-8."),
             line);
    if (error.hasError())
        return;
    row.fields.append(decoded(bytes));
    rowBytes += bytes.size();
}

void CsvReader::Private::checkSizes(qsizetype unfinishedFieldBytes)
{
    if (error.hasError())
        return;
    if (unfinishedFieldBytes > limits.fieldBytes)
        failForSize(CsvReaderTr::tr("A field is larger than %1 bytes.").arg(limits.fieldBytes));
    else if (rowBytes + unfinishedFieldBytes > limits.rowBytes)
        failForSize(CsvReaderTr::tr("A row is larger than %1 bytes.").arg(limits.rowBytes));
}

void CsvReader::Private::failForSize(const QString &message)
{
    fail(message, CsvReaderTr::tr("See whether a quote is missing, or leave out what is too large."),
         row.line);
}

void CsvReader::Private::fail(const QString &message, const QString &remedy, qsizetype place)
{
    error = Error(ErrorCode::InvalidContent, message);
    error.addDetail(CsvReaderTr::tr("line %1").arg(place)).addDetail(remedy);
}

CsvReader::CsvReader(QIODevice *device)
    : CsvReader(device, Limits{})
{}

CsvReader::CsvReader(QIODevice *device, const Limits &limits)
    : CsvReader(device, limits, Format{})
{}

CsvReader::CsvReader(QIODevice *device, const Limits &limits, const Format &format)
    : d(std::make_unique<Private>(device, limits, format))
{}

CsvReader::~CsvReader() = default;

Result<std::optional<CsvRow>> CsvReader::next()
{
    if (!d->error.hasError() && !d->isAtEnd)
        d->advance();
    if (d->error.hasError())
        return d->error;
    if (!d->isRowComplete)
        return std::optional<CsvRow>();
    d->isRowComplete = false;
    return std::optional<CsvRow>(std::move(d->row));
}

} // namespace orv
