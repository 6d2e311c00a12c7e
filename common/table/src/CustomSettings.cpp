#include "orv/table/CustomSettings.h"

#include <QStringList>

namespace orv {

namespace {

bool isComment(const QString &line)
{
    return line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#'));
}

bool isHeader(const QString &line)
{
    return line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'));
}

QString unquoted(const QString &value)
{
    const QLatin1Char quote('"');
    const bool quoted = value.size() >= 2 && value.startsWith(quote) && value.endsWith(quote);
    return quoted ? value.mid(1, value.size() - 2) : value;
}

QString ignoredLine(qsizetype number, const QString &line)
{
    return QStringLiteral("Line %1 of the settings is neither a key with a value nor a section: %2")
        .arg(QString::number(number), line);
}

enum class LineKind
{
    Blank,
    Comment,
    Header,
    Setting,
    Unreadable,
};

struct Line
{
    LineKind kind = LineKind::Blank;
    QString key;   ///< of a setting, with its section
    QString value; ///< as it stands, quotes included
};

/// Reads the lines of one text in their order.
class LineReader
{
public:
    explicit LineReader(CustomSettings::Format format)
        : m_format(format)
    {}

    Line read(const QString &trimmed)
    {
        if (trimmed.isEmpty())
            return {};
        if (isComment(trimmed))
            return {LineKind::Comment, {}, {}};
        if (m_format == CustomSettings::Format::Sections && isHeader(trimmed)) {
            const QString section = trimmed.mid(1, trimmed.size() - 2).trimmed();
            m_prefix = section.isEmpty() ? QString() : section + QLatin1Char('/');
            return {LineKind::Header, {}, {}};
        }
        const qsizetype equals = trimmed.indexOf(QLatin1Char('='));
        const QString key = trimmed.left(qMax(equals, 0)).trimmed();
        if (key.isEmpty())
            return {LineKind::Unreadable, {}, {}};
        return {LineKind::Setting, m_prefix + key, trimmed.mid(equals + 1).trimmed()};
    }

private:
    CustomSettings::Format m_format;
    QString m_prefix;
};

/// A stretch of text from one header to the next.
struct Section
{
    QString header;
    QString body;
    bool hasLost = false;
    bool hasKept = false;

    [[nodiscard]] QString text() const { return hasLost && !hasKept ? body : header + body; }
};

} // namespace

Warnings CustomSettings::setupValues(const QString &text, Format format)
{
    m_values.clear();
    Warnings ignored;
    LineReader reader(format);
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString trimmed = lines.at(i).trimmed();
        const Line line = reader.read(trimmed);
        if (line.kind == LineKind::Unreadable)
            ignored.append(ignoredLine(i + 1, trimmed));
        if (line.kind == LineKind::Setting)
            m_values.insert(line.key, unquoted(line.value));
    }
    return ignored;
}

std::optional<bool> CustomSettings::toSwitch(const QString &value)
{
    const auto isOneOf = [&value](QLatin1String word, QLatin1String number) {
        return value == number || value.compare(word, Qt::CaseInsensitive) == 0;
    };
    if (isOneOf(QLatin1String("true"), QLatin1String("1")))
        return true;
    return isOneOf(QLatin1String("false"), QLatin1String("0")) ? std::optional(false) : std::nullopt;
}

QString CustomSettings::withoutSettings(const QString &text, Format format, const QSet<QString> &keys)
{
    QString kept;
    Section section;
    LineReader reader(format);
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype lineBreak = text.indexOf(QLatin1Char('\n'), start);
        const qsizetype end = lineBreak < 0 ? text.size() : lineBreak + 1;
        const QString whole = text.mid(start, end - start);
        start = end;
        const Line line = reader.read(whole.trimmed());
        if (line.kind == LineKind::Header) {
            kept += section.text();
            section = Section{whole, {}, false, false};
        } else if (line.kind == LineKind::Setting && keys.contains(line.key)) {
            section.hasLost = true;
        } else {
            section.body += whole;
            section.hasKept = section.hasKept || line.kind != LineKind::Blank;
        }
    }
    return kept + section.text();
}

} // namespace orv
