#include "orv/table/KeyValueSimpleParser.h"

#include <QMap>
#include <QRegularExpression>

namespace orv {

namespace {

/// Empty for a line that is no option.
QString keyOf(const QString &line)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^[ \t]*([A-Za-z_][A-Za-z0-9_]*)[ \t]*=)"));
    return pattern.match(line).captured(1);
}

QString valueOf(const QString &line)
{
    QString value = line.mid(line.indexOf(QLatin1Char('=')) + 1);
    if (value.endsWith(QLatin1Char('\r')))
        value.chop(1);
    return value;
}

QString optionLine(const QString &key, QString value)
{
    value.replace(QLatin1String("\r\n"), QLatin1String(" "));
    value.replace(QLatin1Char('\n'), QLatin1Char(' '));
    value.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return key + QLatin1Char('=') + value;
}

} // namespace

KeyValueSimpleParser::KeyValueSimpleParser(const QString &text)
{
    if (text.isEmpty())
        return;
    m_lines = text.split(QLatin1Char('\n'));
    m_endsWithLineFeed = m_lines.constLast().isEmpty();
    if (m_endsWithLineFeed)
        m_lines.removeLast();
}

QHash<QString, QString> KeyValueSimpleParser::options() const
{
    QHash<QString, QString> options;
    for (const QString &line : m_lines) {
        if (const QString key = keyOf(line); !key.isEmpty())
            options.insert(key, valueOf(line));
    }
    return options;
}

void KeyValueSimpleParser::addOptions(const QHash<QString, QString> &options)
{
    QMap<QString, QString> missing;
    for (auto it = options.cbegin(); it != options.cend(); ++it)
        missing.insert(it.key(), it.value());

    QStringList lines;
    for (const QString &line : std::as_const(m_lines)) {
        const QString key = keyOf(line);
        const auto option = options.constFind(key);
        if (option == options.cend())
            lines.append(line);
        else if (missing.remove(key) > 0)
            lines.append(optionLine(key, *option));
    }
    for (auto it = missing.cbegin(); it != missing.cend(); ++it)
        lines.append(optionLine(it.key(), it.value()));
    m_lines = lines;
}

void KeyValueSimpleParser::removeOptions(const QStringList &keys)
{
    m_lines.removeIf([&keys](const QString &line) {
        const QString key = keyOf(line);
        return !key.isEmpty() && keys.contains(key);
    });
}

QString KeyValueSimpleParser::toString() const
{
    QString text = m_lines.join(QLatin1Char('\n'));
    if (m_endsWithLineFeed && !m_lines.isEmpty())
        text.append(QLatin1Char('\n'));
    return text;
}

} // namespace orv
