#include "HouseRules.h"

#include "HouseTables.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QStringList sourcesBelow(const QDir &root, const QStringList &folders)
{
    QStringList files;
    for (const QString &folder : folders) {
        QDirIterator it(root.filePath(folder), {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            files.append(root.relativeFilePath(it.next()));
    }
    files.sort();
    return files;
}

const Floor *floorOf(const QString &file)
{
    const Floor *best = nullptr;
    for (const Floor &floor : kFloors) {
        const QLatin1StringView prefix(floor.prefix);
        if (file.startsWith(prefix) && (!best || prefix.size() > QLatin1StringView(best->prefix).size()))
            best = &floor;
    }
    return best;
}

QString named(const Floor *floor)
{
    return QString::fromLatin1(floor->module);
}

/// The end of the public header's path with which it is included; empty for any other file.
QString publicName(const QString &file)
{
    const qsizetype include = file.indexOf("/include/"_L1);
    return include < 0 || !file.endsWith(".h"_L1) ? QString() : file.mid(include + 9);
}

QStringList captures(const QRegularExpression &expression, const QString &text)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = expression.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

const QRegularExpression &includeDirective()
{
    static const QRegularExpression directive(uR"(^\s*#\s*include\s*[<"]([^>"]+)[>"])"_s,
                                              QRegularExpression::MultilineOption);
    return directive;
}

/// Sources and private headers of a module may lie in folders of these names, which need no words of their
/// own.
bool isPartOfAModule(const QString &folder)
{
    const QString name = folder.section(u'/', -1);
    return name == "src"_L1 || name == "internal"_L1;
}

} // namespace

HouseRules::HouseRules(const QString &root)
    : m_root(root)
    , m_files(sourcesBelow(QDir(root), {u"common"_s, u"propertyeditor"_s, u"apps"_s}))
    , m_testFiles(sourcesBelow(QDir(root), {u"tests"_s, u"benchmarks"_s, u"tools"_s}))
{
    indexPublicHeaders();
}

void HouseRules::indexPublicHeaders()
{
    for (const QString &file : m_files) {
        const QString name = publicName(file);
        if (!name.isEmpty())
            m_publicHeaders.insert(name, file);
    }
}

QString HouseRules::read(const QString &file) const
{
    QFile source(QDir(m_root).filePath(file));
    if (!source.open(QIODevice::ReadOnly))
        qFatal("Cannot read %s", qPrintable(file));
    return QString::fromUtf8(source.readAll());
}

QString HouseRules::resolved(const QString &file, const QString &included) const
{
    const QString beside = QDir::cleanPath(QFileInfo(file).path() + u'/' + included);
    if (m_files.contains(beside))
        return beside;
    if (const auto found = m_publicHeaders.constFind(included); found != m_publicHeaders.constEnd())
        return *found;
    // Private headers are also named from the folder of their module's sources.
    for (QString folder = QFileInfo(file).path(); folder.contains(u'/'); folder = QFileInfo(folder).path()) {
        const QString candidate = QDir::cleanPath(folder + u'/' + included);
        if (m_files.contains(candidate))
            return candidate;
    }
    return {};
}

QList<HouseRules::Include> HouseRules::includes() const
{
    const QRegularExpression &directive = includeDirective();
    QList<Include> found;
    for (const QString &file : m_files) {
        const QStringList lines = read(file).split(u'\n');
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QRegularExpressionMatch match = directive.match(lines[i]);
            if (!match.hasMatch())
                continue;
            const QString target = resolved(file, match.captured(1));
            if (!target.isEmpty())
                found.append({file, target, int(i + 1)});
        }
    }
    return found;
}

QStringList HouseRules::upwardIncludes() const
{
    QStringList violations;
    for (const QString &file : m_files) {
        if (!floorOf(file))
            violations.append(u"%1 stands on no floor; give its module a row"_s.arg(file));
    }
    QMap<QPair<QString, QString>, QString> besides; // place by modules of one floor
    for (const Include &include : includes()) {
        const Floor *from = floorOf(include.file);
        const Floor *to = floorOf(include.target);
        if (!from || !to)
            continue;
        const QString place = u"%1:%2"_s.arg(include.file).arg(include.line);
        if (to != from && publicName(include.target).isEmpty()) {
            violations.append(u"%1 (%2) includes %3, which is private to %4"_s.arg(
                place, named(from), include.target, named(to)));
            continue;
        }
        if (to->height > from->height) {
            violations.append(u"%1 (%2) includes %3, which lies above it (%4)"_s.arg(
                place, named(from), include.target, named(to)));
        } else if (to->height == from->height && named(to) != named(from)) {
            besides.insert({named(from), named(to)}, place);
            if (besides.contains({named(to), named(from)})) {
                violations.append(u"%1: %2 and %3 include each other"_s.arg(place, named(from), named(to)));
            }
        }
    }
    return violations;
}

QStringList HouseRules::upwardCalls() const
{
    QStringList violations;
    for (const char *name : kFacades) {
        const QString facade = QString::fromLatin1(name);
        const QHash<QString, const Floor *> bodies = floorsOfBodies(facade);
        const QRegularExpression call(uR"(\b%1::(\w+))"_s.arg(facade));
        for (const QString &file : m_files) {
            const Floor *from = floorOf(file);
            QRegularExpressionMatchIterator calls = call.globalMatch(read(file));
            while (from && calls.hasNext()) {
                const QString function = calls.next().captured(1);
                const Floor *to = bodies.value(function);
                if (to && to->height > from->height)
                    violations.append(u"%1 (%2) calls %3::%4, whose body lies above it (%5)"_s.arg(
                        file, named(from), facade, function, named(to)));
            }
        }
    }
    violations.removeDuplicates();
    return violations;
}

QHash<QString, const Floor *> HouseRules::floorsOfBodies(const QString &facade) const
{
    // What begins a line is no statement; a body is a member of the class, or stands in the namespace.
    const QRegularExpression member(uR"(^(?![\s/#])[^\n;=]*\b%1::(\w+)\()"_s.arg(facade),
                                    QRegularExpression::MultilineOption);
    const QRegularExpression space(uR"(^namespace (?:\w+::)*%1 \{$(.*?)^\} // namespace)"_s.arg(facade),
                                   QRegularExpression::MultilineOption |
                                       QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression function(uR"(^[A-Za-z][^\n;=]*?\b(\w+)\()"_s,
                                             QRegularExpression::MultilineOption);
    QHash<QString, const Floor *> floors;
    for (const QString &file : m_files) {
        const Floor *floor = floorOf(file);
        if (!floor || !file.endsWith(".cpp"_L1))
            continue;
        const QString text = read(file);
        QStringList found = captures(member, text);
        for (const QString &body : captures(space, text))
            found += captures(function, body);
        for (const QString &name : std::as_const(found)) {
            const Floor *&lowest = floors[name];
            if (!lowest || floor->height < lowest->height)
                lowest = floor;
        }
    }
    return floors;
}

QStringList HouseRules::headersWithoutPragmaOnce() const
{
    static const QRegularExpression pragma(u"^#pragma once$"_s, QRegularExpression::MultilineOption);
    QStringList violations;
    for (const QString &file : m_files + m_testFiles) {
        if (file.endsWith(".h"_L1) && !pragma.match(read(file)).hasMatch())
            violations.append(file + u" has no #pragma once"_s);
    }
    return violations;
}

QStringList HouseRules::ownHeadersThatComeLate() const
{
    QStringList violations;
    for (const QString &file : m_files) {
        if (!file.endsWith(".cpp"_L1))
            continue;
        const QString own = QFileInfo(file).completeBaseName() + u".h"_s;
        const QStringList included = captures(includeDirective(), read(file));
        const auto isOwn = [&own](const QString &name) { return name.section(u'/', -1) == own; };
        const auto found = std::ranges::find_if(included, isOwn);
        if (found != included.cend() && found != included.cbegin())
            violations.append(u"%1 includes %2 before its own header"_s.arg(file, included.constFirst()));
    }
    return violations;
}

bool HouseRules::isNamedInCMake(const QString &file) const
{
    static const QRegularExpression blanks(uR"x([\s()"]+)x"_s);
    for (QString folder = QFileInfo(file).path();; folder = QFileInfo(folder).path()) {
        const QString list = folder == "."_L1 ? u"CMakeLists.txt"_s : folder + u"/CMakeLists.txt"_s;
        if (QFileInfo::exists(QDir(m_root).filePath(list))) {
            const QString relative = folder == "."_L1 ? file : file.mid(folder.size() + 1);
            const QStringList words = read(list).split(blanks);
            const bool named = words.contains(relative) ||
                               (relative.startsWith("include/"_L1) && words.contains(relative.mid(8)));
            if (named)
                return true;
        }
        if (folder == "."_L1)
            return false;
    }
}

QStringList HouseRules::filesThatAreNotBuilt() const
{
    QSet<QString> included;
    for (const Include &include : includes())
        included.insert(include.target);
    QStringList violations;
    for (const QString &file : m_files) {
        const bool isPrivateHeader = file.endsWith(".h"_L1) && publicName(file).isEmpty();
        if (isNamedInCMake(file) || (isPrivateHeader && included.contains(file)))
            continue;
        violations.append(isPrivateHeader ? file + u" is included by nobody"_s
                                          : file + u" is named in no CMakeLists.txt"_s);
    }
    for (const QString &file : m_testFiles) {
        if (file.endsWith(".cpp"_L1) && !isNamedInCMake(file))
            violations.append(file + u" is named in no CMakeLists.txt"_s);
    }
    return violations;
}

QStringList HouseRules::filesThatAreTooLong() const
{
    QHash<QString, QString> reasons;
    for (const LongFile &file : kLongFiles)
        reasons.insert(QString::fromLatin1(file.path), QString::fromLatin1(file.reason));
    QStringList violations;
    for (const QString &file : m_files + m_testFiles) {
        const qsizetype lines = read(file).count(u'\n');
        const QString reason = reasons.take(file);
        if (lines > kMaxLines && reason.isEmpty())
            violations.append(
                u"%1 has %2 lines, at most %3 are allowed"_s.arg(file).arg(lines).arg(kMaxLines));
        if (lines <= kMaxLines && !reason.isEmpty())
            violations.append(file + u" is short enough, and needs no reason"_s);
    }
    for (auto it = reasons.constBegin(); it != reasons.constEnd(); ++it)
        violations.append(it.key() + u" doesn't exist, and needs no reason"_s);
    return violations;
}

QStringList HouseRules::foldersWithoutReadme() const
{
    QSet<QString> folders;
    for (const QString &file : m_files) {
        QString folder = QFileInfo(file).path();
        if (folder.contains("/include"_L1))
            folder = folder.first(folder.indexOf("/include"_L1));
        while (isPartOfAModule(folder))
            folder = QFileInfo(folder).path();
        folders.insert(folder);
    }
    QStringList violations;
    for (const QString &folder : std::as_const(folders)) {
        if (QFileInfo(QDir(m_root).filePath(folder + u"/README.md"_s)).size() == 0)
            violations.append(folder + u" has no README.md that tells what it holds and may use"_s);
    }
    violations.sort();
    return violations;
}
