#include "orv/core/FileNameUtils.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace orv::FileNameUtils {

namespace {

// The longest name that the usual file systems take, in bytes.
constexpr qsizetype kMaxNameBytes = 255;

/// Names that some system takes for one: a folder may be carried to one that ignores case, or writes letters
/// with marks in another way.
QString alike(const QString &name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

QSet<QString> namesIn(const QString &folder)
{
    QSet<QString> names;
    // A dangling link has no target, but its name can't be used for a copy: System lists it.
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &name : entries)
        names.insert(alike(name));
    return names;
}

/// Cut at its end to a number of bytes, never within a character.
QString shortened(QString text, qsizetype bytes)
{
    while (!text.isEmpty() && text.toUtf8().size() > bytes)
        text.chop(text.size() > 1 && text.back().isLowSurrogate() ? 2 : 1);
    return text;
}

} // namespace

QString generateUniqueDestination(const QString &source, const QString &folder, const QStringList &reserved)
{
    // Samples may be folders, whose paths may end with a separator.
    const QString name = QFileInfo(QDir::cleanPath(source)).fileName();
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const qsizetype baseSize = dot > 0 ? dot : name.size(); // the dot of a hidden file begins no extension
    QSet<QString> taken = namesIn(folder);
    for (const QString &other : reserved)
        taken.insert(alike(other));
    QString unique = name;
    for (int number = 2; taken.contains(alike(unique)); ++number) {
        const QString tail = QStringLiteral(" (%1)").arg(number) + name.sliced(baseSize);
        unique = shortened(name.first(baseSize), kMaxNameBytes - tail.toUtf8().size()) + tail;
    }
    return QDir(folder).filePath(unique);
}

QString nameFromText(const QString &text)
{
    static const QString reserved = QStringLiteral("/\\:*?\"<>|");
    constexpr QLatin1Char underscore('_');
    QString name = text.isEmpty() ? QString(underscore) : text;
    for (QChar &c : name) {
        if (reserved.contains(c) || c.category() == QChar::Other_Control)
            c = underscore;
    }
    for (auto c = name.rbegin(); c != name.rend() && (*c == QLatin1Char('.') || c->isSpace()); ++c)
        *c = underscore;
    return name;
}

} // namespace orv::FileNameUtils
