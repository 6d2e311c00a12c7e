#include "orv/core/FileTypes.h"

#include <orv/core/PathUtils.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace orv::FileTypes {

namespace {

struct Row
{
    FileType type;
    const char *name;
    const char *description;
    const char *suffixes; ///< separated by blanks, the one to write first
};

// clang-format off
constexpr std::array kRows = {
    Row{FileType::Wflw, "WFLW", QT_TRANSLATE_NOOP("FileTypes", "Workflow"), "wflw"},
    Row{FileType::Wflwp, "WFLWP", QT_TRANSLATE_NOOP("FileTypes", "Portable workflow"), "wflwp"},
    Row{FileType::Ptson, "PTSON", QT_TRANSLATE_NOOP("FileTypes", "Property table"), "ptson"},
    Row{FileType::Ptab, "PTAB", QT_TRANSLATE_NOOP("FileTypes", "Tab preset"), "ptab"},
    Row{FileType::Ptcell, "PTCELL", QT_TRANSLATE_NOOP("FileTypes", "Cell preset"), "ptcell"},
    Row{FileType::Xenoset, "XENOSET", QT_TRANSLATE_NOOP("FileTypes", "Search engine parameters"), "xenoset"},
    Row{FileType::Prv, "PRV", QT_TRANSLATE_NOOP("FileTypes", "Preview preset"), "prv"},
    Row{FileType::Fasta, "FASTA", QT_TRANSLATE_NOOP("FileTypes", "Sequence database"), "fasta fas fa faa seq"},
    Row{FileType::Tolq, "TOLQ", QT_TRANSLATE_NOOP("FileTypes", "Acquired sample"), "tolq"},
    Row{FileType::Ulvar2, "ULVAR2", QT_TRANSLATE_NOOP("FileTypes", "Processed MS data"), "ulvar2"},
    Row{FileType::Zip, "ZIP", QT_TRANSLATE_NOOP("FileTypes", "Archive"), "zip"},
    Row{FileType::Csv, "CSV", QT_TRANSLATE_NOOP("FileTypes", "Comma-separated values"), "csv"},
    Row{FileType::Text, "TXT", QT_TRANSLATE_NOOP("FileTypes", "Text"), "txt tsv"},
    Row{FileType::Electropherogram, "PI", QT_TRANSLATE_NOOP("FileTypes", "Electropherogram"), "pi"},
    Row{FileType::IcIef, "ITB", QT_TRANSLATE_NOOP("FileTypes", "icIEF traces"), "itb"},
    Row{FileType::SenthiaProject, "SENTHIA", QT_TRANSLATE_NOOP("FileTypes", "Senthia project"), "senthia"},
    Row{FileType::DravikProject, "DRAVIK", QT_TRANSLATE_NOOP("FileTypes", "Dravik project"), "dravik"},
    Row{FileType::KarvonProject, "KARVON", QT_TRANSLATE_NOOP("FileTypes", "Karvon project"), "karvon"},
    Row{FileType::KarvonResult, "KARVRSLT", QT_TRANSLATE_NOOP("FileTypes", "Karvon search result"), "karvrslt"},
    Row{FileType::IntactProject, "INTACT", QT_TRANSLATE_NOOP("FileTypes", "Intact project"), "intact"},
    Row{FileType::OligoProject, "OLIGO", QT_TRANSLATE_NOOP("FileTypes", "Oligo project"), "oligo"},
    Row{FileType::OstraleProject, "OSTRALE", QT_TRANSLATE_NOOP("FileTypes", "Ostrale project"), "ostrale"},
    Row{FileType::TrenqProject, "TRENQ", QT_TRANSLATE_NOOP("FileTypes", "Trenq project"), "trenq"},
    Row{FileType::CaldrinResult, "CALDRSLT", QT_TRANSLATE_NOOP("FileTypes", "Caldrin search result"), "caldrslt"},
    Row{FileType::MultiDocReport, "MULTIDOCREPORT", QT_TRANSLATE_NOOP("FileTypes", "Multi-document report"), "mdrpt"},
};
// clang-format on

const Row *rowOf(FileType type)
{
    const auto *const row =
        std::find_if(kRows.begin(), kRows.end(), [type](const Row &r) { return r.type == type; });
    return row == kRows.end() ? nullptr : row;
}

} // namespace

QList<FileType> all()
{
    QList<FileType> types;
    types.reserve(qsizetype(kRows.size()));
    for (const Row &row : kRows)
        types.append(row.type);
    return types;
}

QString name(FileType type)
{
    const Row *row = rowOf(type);
    return row ? QString::fromLatin1(row->name) : QString();
}

FileType fromName(const QString &name)
{
    for (const Row &row : kRows) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0)
            return row.type;
    }
    return Invalid;
}

QString description(FileType type)
{
    const Row *row = rowOf(type);
    return row ? QCoreApplication::translate("FileTypes", row->description) : QString();
}

QStringList suffixes(FileType type)
{
    const Row *row = rowOf(type);
    return row ? QString::fromLatin1(row->suffixes).split(QLatin1Char(' ')) : QStringList();
}

bool isType(const QString &path, FileType type)
{
    const QStringList candidates = suffixes(type);
    return std::any_of(candidates.begin(), candidates.end(),
                       [&path](const QString &suffix) { return PathUtils::hasExtension(path, suffix); });
}

FileType typeOfPath(const QString &path)
{
    const auto *const row =
        std::find_if(kRows.begin(), kRows.end(), [&path](const Row &r) { return isType(path, r.type); });
    return row == kRows.end() ? Invalid : row->type;
}

namespace {

const QStringList &knownMsDataSuffixes()
{
    static const QStringList suffixes =
        QStringLiteral("d raw wiff wiff2 lcd mbi mzml mzxml mgf tolq ulvar2 csv2d data.cut msfaux msfaux2")
            .split(QLatin1Char(' '));
    return suffixes;
}

} // namespace

QStringList msDataSuffixes()
{
    return knownMsDataSuffixes();
}

bool hasMsDataSuffix(const QString &path)
{
    const QStringList &suffixes = knownMsDataSuffixes();
    return std::any_of(suffixes.begin(), suffixes.end(),
                       [&path](const QString &suffix) { return PathUtils::hasExtension(path, suffix); });
}

QStringList fileSuffixesFromExtensionTypes(const QStringList &names)
{
    QStringList result;
    for (const QString &untrimmed : names) {
        const QString name = untrimmed.trimmed();
        if (name.isEmpty())
            continue;
        const FileType type = fromName(name);
        result += type == Invalid ? QStringList(name) : suffixes(type);
    }
    result.removeDuplicates();
    return result;
}

} // namespace orv::FileTypes
