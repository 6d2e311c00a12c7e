#include "orv/table_model/TextFormat.h"

#include <orv/table/CsvReader.h>

#include <QBuffer>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace orv::TextFormat {

namespace {

constexpr qsizetype kProbeBytes = 1 << 16;
constexpr int kProbeRows = 100;
constexpr std::array kSeparators = {',', ';', '\t', '|'};
constexpr std::array kQuotes = {'"', '\''};

/// Characters of the bytes 0x80 to 0x9F; what isn't assigned stands for itself.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString fromWindows1252(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &c : text) {
        if (c.unicode() >= 0x80 && c.unicode() <= 0x9F)
            c = kWindows1252[c.unicode() - 0x80U];
    }
    return text;
}

std::optional<QString> decodedBy(QStringConverter::Encoding encoding, const QByteArray &bytes)
{
    QStringDecoder decoder(encoding, QStringConverter::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

/// UTF-16 of plain text has its zero bytes on one side.
std::optional<TextEncoding> utf16ByZeros(const QByteArray &bytes)
{
    qsizetype even = 0;
    qsizetype odd = 0;
    const qsizetype size = std::min(bytes.size(), kProbeBytes);
    for (qsizetype i = 0; i < size; ++i) {
        if (bytes[i] == '\0')
            ++(i % 2 == 0 ? even : odd);
    }
    if (std::max(even, odd) * 4 < size || size < 2)
        return std::nullopt;
    return odd > even ? TextEncoding::Utf16LittleEndian : TextEncoding::Utf16BigEndian;
}

QList<QStringList> probed(const QByteArray &utf8, char separator, char quote)
{
    QBuffer device;
    device.setData(utf8);
    device.open(QIODevice::ReadOnly);
    CsvReader reader(&device, {}, {separator, quote});
    QList<QStringList> rows;
    while (rows.size() < kProbeRows) {
        const Result<std::optional<CsvRow>> row = reader.next();
        if (row.hasError() || !row->has_value())
            break;
        rows.append((*row)->fields);
    }
    return rows;
}

/// How much rows look like a table: those of the usual length, weighed by it.
double regularity(const QList<QStringList> &rows)
{
    QMap<qsizetype, int> lengths;
    for (const QStringList &row : rows)
        ++lengths[row.size()];
    double best = 0;
    for (auto length = lengths.cbegin(); length != lengths.cend(); ++length) {
        const double share = double(length.value()) / double(rows.size());
        best = std::max(best, share * share * double(std::min<qsizetype>(length.key(), 20) - 1));
    }
    return best;
}

bool looksQuoted(const QString &field, QLatin1Char quote)
{
    // An apostrophe alone belongs to a name; a double quote alone is half of a field that was cut.
    const bool begins = field.startsWith(quote);
    const bool ends = field.endsWith(quote);
    return field.size() > 1 && (quote == QLatin1Char('"') ? begins || ends : begins && ends);
}

/// The share of fields that another quote encloses.
double strayQuotes(const QList<QStringList> &rows, QLatin1Char ofOthers)
{
    qsizetype stray = 0;
    qsizetype fields = 1;
    for (const QStringList &row : rows) {
        fields += row.size();
        stray += std::count_if(row.cbegin(), row.cend(),
                               [ofOthers](const QString &field) { return looksQuoted(field, ofOthers); });
    }
    return double(stray) / double(fields);
}

bool isNumberOfEither(const QString &field)
{
    return NumberText::canonical(field, NumberText::DecimalSign::Comma).has_value();
}

bool namesColumns(const QStringList &row, const QList<TableColumn> &columns)
{
    return std::any_of(row.cbegin(), row.cend(), [&](const QString &field) {
        return std::any_of(columns.cbegin(), columns.cend(),
                           [&](const TableColumn &column) { return column.isMeantBy(field); });
    });
}

bool looksLikeHeader(const QList<QStringList> &rows, const QList<TableColumn> &columns)
{
    if (rows.isEmpty())
        return true;
    if (namesColumns(rows[0], columns))
        return true;
    const bool hasNumbers = std::any_of(rows[0].cbegin(), rows[0].cend(), isNumberOfEither);
    return !hasNumbers && rows.size() > 1 && std::any_of(rows[1].cbegin(), rows[1].cend(), isNumberOfEither);
}

/// A comma between digits that can't part thousands, and no number with a point.
NumberText::DecimalSign decimalSignOf(const QList<QStringList> &rows)
{
    int commas = 0;
    int points = 0;
    for (const QStringList &row : rows) {
        for (const QString &field : row) {
            if (!isNumberOfEither(field))
                continue;
            commas +=
                field.contains(u',') && !field.contains(u'.') && !NumberText::isAmbiguous(field) ? 1 : 0;
            points += field.contains(u'.') ? 1 : 0;
        }
    }
    return commas > points ? NumberText::DecimalSign::Comma : NumberText::DecimalSign::Point;
}

QByteArray beginning(const QByteArray &bytes, TextEncoding encoding)
{
    if (bytes.size() <= kProbeBytes)
        return decoded(bytes, encoding).value_or(QString()).toUtf8();
    // Cut behind a whole line, so that no character is cut.
    const QByteArray cut = bytes.first(kProbeBytes);
    qsizetype end = cut.lastIndexOf('\n') + 1;
    if (encoding == TextEncoding::Utf16LittleEndian)
        ++end;
    return decoded(cut.first(std::min(end, cut.size())), encoding).value_or(QString()).toUtf8();
}

} // namespace

TextEncoding encodingOf(const QByteArray &bytes)
{
    if (bytes.startsWith("\xFF\xFE"))
        return TextEncoding::Utf16LittleEndian;
    if (bytes.startsWith("\xFE\xFF"))
        return TextEncoding::Utf16BigEndian;
    if (const std::optional<TextEncoding> utf16 = utf16ByZeros(bytes))
        return *utf16;
    return bytes.isValidUtf8() ? TextEncoding::Utf8 : TextEncoding::Windows1252;
}

std::optional<QString> decoded(const QByteArray &bytes, TextEncoding encoding)
{
    switch (encoding) {
    case TextEncoding::Utf8:
        return decodedBy(QStringConverter::Utf8, bytes);
    case TextEncoding::Utf16LittleEndian:
        return decodedBy(QStringConverter::Utf16LE, bytes);
    case TextEncoding::Utf16BigEndian:
        return decodedBy(QStringConverter::Utf16BE, bytes);
    case TextEncoding::Windows1252:
        break;
    }
    return fromWindows1252(bytes);
}

TableTextFormat detected(const QByteArray &bytes, const QList<TableColumn> &columns)
{
    TableTextFormat format;
    format.encoding = encodingOf(bytes);
    const QByteArray utf8 = beginning(bytes, format.encoding);
    double best = -1;
    for (const char quote : kQuotes) {
        for (const char separator : kSeparators) {
            const QList<QStringList> rows = probed(utf8, separator, quote);
            const double named = !rows.isEmpty() && namesColumns(rows[0], columns) ? 0.5 : 0;
            const double score =
                regularity(rows) + named -
                strayQuotes(rows, QLatin1Char(quote == '"' ? '\'' : '"')) * double(kProbeRows);
            if (score > best) {
                best = score;
                format.separator = separator;
                format.quote = quote;
                format.hasHeader = looksLikeHeader(rows, columns);
                format.decimalSign = decimalSignOf(rows);
            }
        }
    }
    return format;
}

} // namespace orv::TextFormat
