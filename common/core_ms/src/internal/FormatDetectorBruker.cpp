#include "FormatDetectorBruker.h"

#include <orv/core/PathUtils.h>

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace orv::msreader::internal {

namespace {

using Format = VendorDataFormat;

constexpr QLatin1String kExtension("d");

bool isThere(const QString &folder, const char *name)
{
    return QFileInfo::exists(folder + QLatin1String(name));
}

bool hasFidFile(const QString &entry)
{
    constexpr std::array kFiles = {"/1/1SRef/fid", "/1SRef/fid", "/1/1SLin/fid", "/1SLin/fid",
                                   "/1/1Ref/fid",  "/1Ref/fid",  "/1/1Lin/fid",  "/1Lin/fid"};
    return std::any_of(kFiles.begin(), kFiles.end(), [&entry](const char *file) {
        return PathUtils::isExistingFile(entry + QLatin1String(file));
    });
}

/// A folder "fid" also lies beside data of the BAF kind, which then count.
bool hasFidFolder(const QString &folder)
{
    return PathUtils::isDirectory(folder + QLatin1String("/fid")) && !isThere(folder, "/Analysis.baf") &&
           !isThere(folder, "/analysis.baf");
}

bool isFid(const QString &root)
{
    if (hasFidFolder(root))
        return true;
    // Nothing lies below a plain file, so that only folders need a look.
    QDirIterator entries(root, QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        if (hasFidFile(entry) || hasFidFolder(entry))
            return true;
    }
    return false;
}

bool hasU2(const QString &root)
{
    const QString name = QFileInfo(root).fileName();
    const QLatin1String suffix(".d");
    return name.endsWith(suffix) &&
           QFileInfo::exists(root +
                             QStringLiteral("/%1").arg(name.chopped(suffix.size()) + QLatin1String(".u2")));
}

/// Unknown when it is none. Files of the older kinds are looked for under one spelling alone, those of the
/// newer ones under two: instruments write them so.
Format kindOf(const QString &root)
{
    if (isFid(root))
        return Format::BrukerFID;
    if (isThere(root, "/Analysis.yep"))
        return Format::BrukerYEP;
    const bool baf = isThere(root, "/Analysis.baf");
    const bool u2 = hasU2(root);
    if (baf || u2)
        return baf && u2 ? Format::BrukerBAF_and_U2 : baf ? Format::BrukerBAF : Format::BrukerU2;
    if (isThere(root, "/analysis.tdf") || isThere(root, "/Analysis.tdf"))
        return Format::BrukerTims;
    if (isThere(root, "/analysis.tsf") || isThere(root, "/Analysis.tsf"))
        return Format::BrukerTsf;
    return Format::Unknown;
}

} // namespace

QSet<VendorDataFormat> FormatDetectorBruker::formats() const
{
    return {Format::BrukerFID,        Format::BrukerYEP,  Format::BrukerBAF, Format::BrukerU2,
            Format::BrukerBAF_and_U2, Format::BrukerTims, Format::BrukerTsf};
}

QSet<VendorDataFormat> FormatDetectorBruker::detectFormatByName(const QString &path) const
{
    return PathUtils::hasExtension(path, QString(kExtension)) ? formats() : QSet<Format>();
}

QSet<VendorDataFormat> FormatDetectorBruker::detectFormat(const QString &path) const
{
    if (!PathUtils::hasExtension(path, QString(kExtension)) || !PathUtils::isDirectory(path))
        return {};
    QString root = path;
    while (root.endsWith(QLatin1Char('/')))
        root.chop(1);
    const Format kind = kindOf(root);
    return kind == Format::Unknown ? QSet<Format>() : QSet<Format>{kind};
}

QString FormatDetectorBruker::fileNameExtension(VendorDataFormat /*format*/) const
{
    return kExtension;
}

bool FormatDetectorBruker::isFile(VendorDataFormat /*format*/) const
{
    return false;
}

bool FormatDetectorBruker::isFolder(VendorDataFormat /*format*/) const
{
    return true;
}

QString FormatDetectorBruker::formatDescription(VendorDataFormat format) const
{
    if (format == Format::BrukerTims)
        return QStringLiteral("Bruker Tims");
    if (format == Format::BrukerTsf)
        return QStringLiteral("Bruker Tsf");
    return QStringLiteral("Bruker");
}

} // namespace orv::msreader::internal
