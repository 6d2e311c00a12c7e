#include "FormChecks.h"

#include <orv/core_ms/MsFileInfo.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace orv::msreader;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

constexpr int kMostLines = 24;
constexpr int kMostLevels = 8;
constexpr int kMostCharacters = 60;

/// \a text as a path below the folder in which it counts; empty for none.
QString tamed(const QString &text)
{
    QStringList parts;
    for (QString part : text.split(u'/', Qt::SkipEmptyParts)) {
        part = part.left(kMostCharacters).remove(QChar(0));
        if (!part.isEmpty() && part != "."_L1 && part != ".."_L1 && parts.size() < kMostLevels)
            parts.append(part);
    }
    return parts.join(u'/');
}

/// "NAME" is a file, "NAME/" a folder, "NAME -> TARGET" a link. What can't be made isn't there.
void make(const QDir &root, const QString &line)
{
    const qsizetype arrow = line.indexOf(" -> "_L1);
    const QString name = tamed(arrow < 0 ? line : line.left(arrow));
    if (name.isEmpty())
        return;
    const QString path = root.filePath(name);
    if (arrow < 0 && line.endsWith(u'/')) {
        root.mkpath(name);
        return;
    }
    root.mkpath(QFileInfo(name).path());
    if (arrow >= 0) {
        QFile::link(root.filePath(tamed(line.mid(arrow + 4))), path);
    } else {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write("x");
    }
}

QString wrongWith(const QString &path)
{
    const auto location = DataSourceLocation::ofPath(path);
    const QSet<VendorDataFormat> byName = MsFileInfo::detectFormatByName(location);
    const QSet<VendorDataFormat> onDisk = MsFileInfo::detectFormat(location);
    if (!byName.contains(onDisk))
        return u"a format on the disk that the name doesn't tell"_s;
    for (const bool isByName : {true, false}) {
        const QSet<VendorDataFormat> all = isByName ? byName : onDisk;
        const QSet<VendorDataFormat> first = MsFileInfo::detectFormat(location, isByName, true);
        if (!all.contains(first) || first.isEmpty() != all.isEmpty() ||
            MsFileInfo::isRecognised(location, isByName) == all.isEmpty())
            return u"the first format is none of them"_s;
    }
    const QFileInfo info(path);
    for (const VendorDataFormat format : onDisk) {
        if (format != VendorDataFormat::Testing && !((MsFileInfo::isFile(format) && info.isFile()) ||
                                                     (MsFileInfo::isFolder(format) && info.isDir())))
            return u"a format of the other kind"_s;
    }
    return {};
}

} // namespace

QString checkVendorPaths(const QByteArray &bytes)
{
    const QStringList lines = QString::fromUtf8(bytes.left(4096)).split(u'\n').mid(0, kMostLines);
    const QTemporaryDir folder;
    const QDir root(folder.path());
    for (const QString &line : lines)
        make(root, line);
    QStringList paths = lines;
    for (const QString &name :
         root.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        paths.append(root.filePath(name));
    for (const QString &path : paths) {
        const QString wrong = wrongWith(path);
        if (!wrong.isEmpty())
            return wrong;
    }
    return {};
}

} // namespace FormChecks
