#include "orv/core_ms/MgfReader.h"

#include <QCoreApplication>
#include <QIODevice>

#include <array>
#include <charconv>

namespace orv::msreader {

namespace {

constexpr qsizetype kMgfChunkBytes = 1 << 18;
constexpr QByteArrayView kByteOrderMark("\xEF\xBB\xBF"); // some editors begin every text with it
constexpr int kHighestLevel = 99;
constexpr int kLevelOfFragments = 2;

struct MgfReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(MgfReader)
};

constexpr std::array kLevelKeys = {"MSLEVEL", "MS_LEVEL"};
constexpr std::array kPrecursorKeys = {"PEPMASS", "PRECURSOR_MZ", "PRECURSORMZ"};

template<size_t size>
bool isOneOf(QByteArrayView key, const std::array<const char *, size> &keys)
{
    return std::any_of(keys.begin(), keys.end(), [key](const char *known) {
        return key.compare(QByteArrayView(known), Qt::CaseInsensitive) == 0;
    });
}

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// How many bytes at the beginning are a number; 0 for none.
qsizetype numberLength(QByteArrayView text)
{
    const qsizetype sign = text.startsWith('+') || text.startsWith('-') ? 1 : 0;
    if (text.size() <= sign || !(isDigit(text[sign]) || text[sign] == '.'))
        return 0; // words such as "nan" are numbers to std::from_chars
    const char *begin = text.data() + (text.startsWith('+') ? 1 : 0); // which it doesn't know
    double number = 0.0;
    const std::from_chars_result result = std::from_chars(begin, text.data() + text.size(), number);
    return result.ec == std::errc() ? result.ptr - text.data() : 0;
}

bool isPeak(QByteArrayView line)
{
    const qsizetype length = numberLength(line);
    return length > 0 && (length == line.size() || line[length] == ' ' || line[length] == '\t');
}

/// What a query says while its lines are read.
struct OpenQuery
{
    MgfQuery query;
    int namedLevel = 0;
    bool hasPrecursor = false;

    void read(QByteArrayView line)
    {
        if (isPeak(line)) {
            ++query.peaks;
            return;
        }
        const qsizetype equals = line.indexOf('=');
        if (equals > 0)
            readSetting(line.first(equals).trimmed(), line.sliced(equals + 1).trimmed());
    }

    void readSetting(QByteArrayView key, QByteArrayView value)
    {
        if (key.compare(QByteArrayView("TITLE"), Qt::CaseInsensitive) == 0) {
            query.title = QString::fromUtf8(value);
        } else if (isOneOf(key, kLevelKeys)) {
            bool isNumber = false;
            const int level = value.toByteArray().toInt(&isNumber);
            if (isNumber && level >= 1 && level <= kHighestLevel)
                namedLevel = level;
        } else if (isOneOf(key, kPrecursorKeys)) {
            hasPrecursor = hasPrecursor || numberLength(value) > 0;
        }
    }

    MgfQuery closed()
    {
        query.msLevel = namedLevel > 0 ? namedLevel : hasPrecursor ? kLevelOfFragments : 1;
        return std::move(query);
    }
};

} // namespace

class MgfReader::Private
{
public:
    Private(QIODevice *device, const Limits &limits)
        : m_device(device)
        , m_limits(limits)
    {}

    Result<std::optional<MgfQuery>> next()
    {
        if (m_failure.hasError())
            return m_failure;
        std::optional<MgfQuery> query = readQuery();
        if (m_failure.hasError())
            return m_failure;
        return query;
    }

private:
    std::optional<MgfQuery> readQuery()
    {
        std::optional<OpenQuery> open;
        QByteArrayView line;
        while (readLine(&line)) {
            if (line.compare(QByteArrayView("BEGIN IONS"), Qt::CaseInsensitive) == 0) {
                if (open) {
                    fail(MgfReaderTr::tr("A query begins before the one of line %1 has ended.")
                             .arg(open->query.line));
                    return std::nullopt;
                }
                open.emplace();
                open->query.line = m_line;
            } else if (line.compare(QByteArrayView("END IONS"), Qt::CaseInsensitive) == 0) {
                if (open)
                    return open->closed();
                fail(MgfReaderTr::tr("A query ends that has not begun."));
                return std::nullopt;
            } else if (open) {
                open->read(line);
            }
        }
        if (open && !m_failure.hasError())
            fail(MgfReaderTr::tr("The text ends inside the query that begins in line %1.")
                     .arg(open->query.line));
        return std::nullopt;
    }

    /// The next line without blanks around it, good until the next call; false at the end or after a failure.
    bool readLine(QByteArrayView *line)
    {
        m_pieces.clear();
        for (;;) {
            const QByteArrayView rest = QByteArrayView(m_chunk).sliced(m_at);
            const qsizetype end = rest.indexOf('\n');
            const QByteArrayView piece = end < 0 ? rest : rest.first(end);
            if (m_pieces.size() + piece.size() > m_limits.lineBytes) {
                ++m_line;
                fail(MgfReaderTr::tr("A line is longer than %1 bytes.").arg(m_limits.lineBytes));
                return false;
            }
            if (end >= 0) {
                m_at += end + 1;
                return give(piece, line);
            }
            m_pieces += piece;
            if (!fetch())
                return !m_failure.hasError() && !m_pieces.isEmpty() && give({}, line);
        }
    }

    bool give(QByteArrayView last, QByteArrayView *line)
    {
        ++m_line;
        if (!m_pieces.isEmpty())
            last = m_pieces += last;
        if (m_line == 1 && last.startsWith(kByteOrderMark))
            last = last.sliced(kByteOrderMark.size());
        *line = last.trimmed();
        return true;
    }

    bool fetch()
    {
        m_chunk = m_device->read(kMgfChunkBytes);
        m_at = 0;
        if (m_chunk.isEmpty() && !m_device->atEnd()) {
            ++m_line;
            fail(m_device->errorString(), ErrorCode::CannotOpenFile);
        }
        return !m_chunk.isEmpty();
    }

    void fail(const QString &reason, ErrorCode code = ErrorCode::InvalidContent)
    {
        m_failure = Error(code, MgfReaderTr::tr("The MGF text can't be read."))
                        .addDetail(MgfReaderTr::tr("Line %1: %2").arg(m_line).arg(reason))
                        .addDetail(MgfReaderTr::tr(
                            "Copy or export the file again; it may have been cut short on the way."));
    }

    QIODevice *m_device;
    const Limits m_limits;
    QByteArray m_chunk;
    qsizetype m_at = 0;
    QByteArray m_pieces; ///< the beginning of a line that goes on in the next chunk
    qsizetype m_line = 0;
    Error m_failure;
};

MgfReader::MgfReader(QIODevice *device)
    : MgfReader(device, Limits())
{}

MgfReader::MgfReader(QIODevice *device, const Limits &limits)
    : d(std::make_unique<Private>(device, limits))
{}

MgfReader::~MgfReader() = default;

Result<std::optional<MgfQuery>> MgfReader::next()
{
    return d->next();
}

} // namespace orv::msreader
