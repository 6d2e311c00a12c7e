#include <orv/table/CustomSettings.h>

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

} // namespace

Warnings CustomSettings::setupValues(const QString &text, Format format)
{
    m_values.clear();
    Warnings ignored;
    QString prefix;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (isComment(line))
            continue;
        if (format == Format::Sections && isHeader(line)) {
            const QString section = line.mid(1, line.size() - 2).trimmed();
            prefix = section.isEmpty() ? QString() : section + QLatin1Char('/');
            continue;
        }
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        const QString key = line.left(qMax(equals, 0)).trimmed();
        if (key.isEmpty())
            ignored.append(ignoredLine(i + 1, line));
        else
            m_values.insert(prefix + key, unquoted(line.mid(equals + 1).trimmed()));
    }
    return ignored;
}

} // namespace orv
