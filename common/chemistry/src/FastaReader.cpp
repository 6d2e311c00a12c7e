#include <orv/chemistry/Fasta.h>

#include <QCoreApplication>
#include <QIODevice>
#include <QSet>
#include <QStringDecoder>

namespace orv {

namespace {

constexpr qsizetype kChunkBytes = 1 << 16;
constexpr int kToldWarnings = 100;
constexpr char kLineFeed = '\n';
constexpr char kReturn = '\r';

struct FastaReaderTr
{
    Q_DECLARE_TR_FUNCTIONS(FastaReader)
};

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\v' || byte == '\f';
}

bool isLetter(char byte)
{
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

char toCapital(char letter)
{
    return letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

QString decoded(const QByteArray &header)
{
    // A byte order mark within the text is a character like any other.
    QStringDecoder utf8(QStringDecoder::Utf8,
                        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = utf8(header);
    return utf8.hasError() ? QString::fromLatin1(header) : text;
}

} // namespace

class FastaReader::Private
{
public:
    Private(QIODevice *device, const Limits &limits)
        : m_device(device)
        , m_limits(limits)
    {}

    Result<std::optional<FastaEntry>> next()
    {
        if (m_failure.hasError())
            return m_failure;
        m_warnings.clear();
        for (;;) {
            std::optional<FastaEntry> entry = readEntry();
            if (m_failure.hasError())
                return {m_failure, m_warnings};
            if (!entry)
                return {std::nullopt, takeLastWarnings()};
            if (!entry->sequence.isEmpty())
                return {checked(std::move(*entry)), m_warnings};
            warn(FastaReaderTr::tr("Line %1: \"%2\" has no sequence and is passed over.")
                     .arg(entry->line)
                     .arg(entry->name));
        }
    }

private:
    /// The next byte, nothing at the end. A return with or without a line feed is one line feed.
    std::optional<char> get()
    {
        std::optional<char> byte = getRaw();
        if (byte == kReturn) {
            byte = getRaw();
            if (byte && byte != kLineFeed)
                --m_at;
            byte = kLineFeed;
        }
        return byte;
    }

    std::optional<char> getRaw()
    {
        if (m_at >= m_chunk.size())
            fetch();
        return m_at < m_chunk.size() ? std::optional(m_chunk.at(m_at++)) : std::nullopt;
    }

    void fetch()
    {
        m_chunk = m_device->read(kChunkBytes);
        m_at = 0;
        if (!std::exchange(m_started, true))
            skipByteOrderMark();
        // A sequential device that has no more is at its end as well; one that broke says why.
        if (m_chunk.isEmpty() && !m_device->atEnd())
            fail(ErrorCode::CannotOpenFile, m_device->errorString());
    }

    void skipByteOrderMark()
    {
        constexpr QByteArrayView kByteOrderMark("\xEF\xBB\xBF");
        while (m_chunk.size() < kByteOrderMark.size()) {
            const QByteArray more = m_device->read(kChunkBytes);
            if (more.isEmpty())
                break;
            m_chunk += more;
        }
        if (m_chunk.startsWith(kByteOrderMark)) {
            m_chunk.remove(0, kByteOrderMark.size());
            if (m_chunk.isEmpty())
                m_chunk = m_device->read(kChunkBytes);
        }
    }

    void fail(ErrorCode code, const QString &reason)
    {
        m_failure = Error(code, FastaReaderTr::tr("The FASTA text can't be read."))
                        .addDetail(FastaReaderTr::tr("Line %1: %2").arg(m_line).arg(reason))
                        .addDetail(FastaReaderTr::tr(
                            "Check that the file is FASTA: a line with \">\" and a name, then lines "
                            "of letters."));
    }

    void warn(const QString &text)
    {
        if (m_toldWarnings++ < kToldWarnings)
            m_warnings.append(text);
    }

    Warnings takeLastWarnings()
    {
        if (m_toldWarnings > kToldWarnings) {
            m_warnings.append(
                FastaReaderTr::tr("There are %1 more warnings.").arg(m_toldWarnings - kToldWarnings));
            m_toldWarnings = 0;
        }
        return m_warnings;
    }

    FastaEntry checked(FastaEntry entry)
    {
        if (m_names.contains(entry.name))
            warn(FastaReaderTr::tr("Line %1: the name \"%2\" stands twice.").arg(entry.line).arg(entry.name));
        m_names.insert(entry.name);
        if (entry.sequence.contains(QLatin1Char('*')))
            warn(FastaReaderTr::tr("Line %1: the sequence of \"%2\" has a stop inside.")
                     .arg(entry.line)
                     .arg(entry.name));
        return entry;
    }

    /// One entry, perhaps without sequence; nothing at the end or after a failure.
    std::optional<FastaEntry> readEntry()
    {
        if (!m_header && !skipToHeader())
            return std::nullopt;
        FastaEntry entry;
        entry.line = m_line;
        readHeader(&entry);
        m_header = false;
        QByteArray sequence;
        while (!m_failure.hasError() && readSequenceLine(&sequence)) {
        }
        if (m_failure.hasError())
            return std::nullopt;
        while (sequence.endsWith('*'))
            sequence.chop(1);
        entry.sequence = QString::fromLatin1(sequence);
        return entry;
    }

    /// Past blank lines and comments to the first ">", which is taken.
    bool skipToHeader()
    {
        for (std::optional<char> byte = get(); byte; byte = get()) {
            if (*byte == '>')
                return true;
            if (*byte == ';' || *byte == '#') {
                skipLine();
            } else if (*byte == kLineFeed) {
                ++m_line;
            } else if (!isBlank(*byte)) {
                fail(ErrorCode::InvalidContent, FastaReaderTr::tr("There is text before the first \">\"."));
                return false;
            }
        }
        return false;
    }

    void skipLine()
    {
        std::optional<char> byte = get();
        while (byte && byte != kLineFeed)
            byte = get();
        ++m_line;
    }

    void readHeader(FastaEntry *entry)
    {
        QByteArray header;
        for (std::optional<char> byte = get(); byte && byte != kLineFeed; byte = get()) {
            if (header.size() >= m_limits.headerBytes)
                return fail(ErrorCode::InvalidContent, FastaReaderTr::tr("A header is too long."));
            header.append(*byte);
        }
        ++m_line;
        const QString text = decoded(header).trimmed();
        const auto blank =
            std::find_if(text.begin(), text.end(), [](QChar letter) { return letter.isSpace(); });
        entry->name = text.left(std::distance(text.begin(), blank));
        entry->description = text.mid(entry->name.size()).trimmed();
    }

    /// False behind the last line of the entry, whose successor's ">" has then been taken.
    bool readSequenceLine(QByteArray *sequence)
    {
        std::optional<char> byte = get();
        if (!byte)
            return false;
        if (*byte == '>') {
            m_header = true;
            return false;
        }
        if (*byte == ';' || *byte == '#') {
            skipLine();
            return true;
        }
        for (; byte && byte != kLineFeed; byte = get()) {
            if (!append(sequence, *byte))
                return false;
        }
        ++m_line;
        return byte.has_value();
    }

    bool append(QByteArray *sequence, char byte)
    {
        if (byte == '[')
            return appendNamed(sequence);
        if (isBlank(byte) || byte == '-')
            return true;
        if (!isLetter(byte) && byte != '*') {
            fail(ErrorCode::InvalidContent,
                 FastaReaderTr::tr("A sequence has the character \"%1\".").arg(QLatin1Char(byte)));
            return false;
        }
        return appendWithinLimit(sequence, isLetter(byte) ? toCapital(byte) : byte);
    }

    /// What stands in brackets is kept as it is: the names of modified nucleotides know capital and small
    /// letters.
    bool appendNamed(QByteArray *sequence)
    {
        std::optional<char> byte = '[';
        for (; byte && byte != kLineFeed; byte = get()) {
            if (!appendWithinLimit(sequence, *byte))
                return false;
            if (*byte == ']')
                return true;
            if (static_cast<unsigned char>(*byte) >= 0x7F || static_cast<unsigned char>(*byte) < ' ')
                break;
        }
        fail(ErrorCode::InvalidContent, FastaReaderTr::tr("A \"[\" has no \"]\" in its line."));
        return false;
    }

    bool appendWithinLimit(QByteArray *sequence, char byte)
    {
        if (sequence->size() >= m_limits.sequenceLetters) {
            fail(ErrorCode::InvalidContent,
                 FastaReaderTr::tr("A sequence has more than %1 letters.").arg(m_limits.sequenceLetters));
            return false;
        }
        sequence->append(byte);
        return true;
    }

    QIODevice *m_device;
    const Limits m_limits;
    QByteArray m_chunk;
    qsizetype m_at = 0;
    qsizetype m_line = 1;
    bool m_started = false;
    bool m_header = false; ///< the ">" of the next entry has been taken
    Error m_failure;
    Warnings m_warnings;
    int m_toldWarnings = 0;
    QSet<QString> m_names;
};

FastaReader::FastaReader(QIODevice *device)
    : FastaReader(device, Limits())
{}

FastaReader::FastaReader(QIODevice *device, const Limits &limits)
    : d(std::make_unique<Private>(device, limits))
{}

FastaReader::~FastaReader() = default;

Result<std::optional<FastaEntry>> FastaReader::next()
{
    return d->next();
}

} // namespace orv
