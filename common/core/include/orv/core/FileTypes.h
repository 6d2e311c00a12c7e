#pragma once

#include <orv/core/Export.h>

#include <QList>
#include <QString>
#include <QStringList>

namespace orv {

/// A kind of file or folder that the system reads or writes. A new kind is one enumerator here and one row
/// in FileTypes.cpp.
enum class FileType
{
    Invalid,
    Wflw,
    Wflwp,
    Ptson,
    Ptab,
    Ptcell,
    Xenoset,
    Prv,
    Fasta,
    Tolq,
    Ulvar2,
    Zip,
    Csv,
    Text,
    Electropherogram,
    IcIef,
    SenthiaProject,
    DravikProject,
    KarvonProject,
    KarvonResult,
    IntactProject,
    OligoProject,
    OstraleProject,
    TrenqProject,
    CaldrinResult,
    MultiDocReport,
};

/// File types of the platform, and what is known of every type.
namespace FileTypes {

inline constexpr FileType Invalid = FileType::Invalid;
inline constexpr FileType FASTA = FileType::Fasta;
inline constexpr FileType TOLQ = FileType::Tolq;
inline constexpr FileType ULVAR2 = FileType::Ulvar2;
inline constexpr FileType PRV = FileType::Prv;
inline constexpr FileType ZIP = FileType::Zip;
inline constexpr FileType CSV = FileType::Csv;
inline constexpr FileType TXT = FileType::Text;

/// All types but Invalid, in enumerator order.
[[nodiscard]] ORV_WORKFLOW_EXPORT QList<FileType> all();

/// The name by which property options and hosts call a type, such as "FASTA"; empty for Invalid.
[[nodiscard]] ORV_WORKFLOW_EXPORT QString name(FileType type);

/// The type of that name, ignoring case; Invalid for any other text.
[[nodiscard]] ORV_WORKFLOW_EXPORT FileType fromName(const QString &name);

/// What a person reads in a file dialog, such as "Workflow".
[[nodiscard]] ORV_WORKFLOW_EXPORT QString description(FileType type);

/// The suffixes without dots, the one to write first: "fasta", "fas", "fa", ...
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList suffixes(FileType type);

/// Whether the last name of \a path carries a suffix of \a type, ignoring case. Doesn't touch the disk.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool isType(const QString &path, FileType type);

/// The first type whose suffix the last name of \a path carries, Invalid for none. Doesn't touch the disk.
[[nodiscard]] ORV_WORKFLOW_EXPORT FileType typeOfPath(const QString &path);

/// The suffixes without dots of files and folders that hold mass spectra, of every vendor that the system
/// recognises. One may hold a dot ("data.cut").
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList msDataSuffixes();

/// Whether the last name of \a path carries one of them, ignoring case. Doesn't touch the disk.
[[nodiscard]] ORV_WORKFLOW_EXPORT bool hasMsDataSuffix(const QString &path);

/// The suffixes of all named types, without repeats, in order; a name that is no type stands for itself, so
/// that an option may name plain suffixes too.
[[nodiscard]] ORV_WORKFLOW_EXPORT QStringList fileSuffixesFromExtensionTypes(const QStringList &names);

} // namespace FileTypes

/// File types of the workflow applications.
namespace MirelFileTypes {

inline constexpr FileType WFLW = FileType::Wflw;
inline constexpr FileType WFLWP = FileType::Wflwp;
inline constexpr FileType PTSON = FileType::Ptson;
inline constexpr FileType PTAB = FileType::Ptab;
inline constexpr FileType PTCELL = FileType::Ptcell;
inline constexpr FileType XENOSET = FileType::Xenoset;
inline constexpr FileType SENTHIA = FileType::SenthiaProject;
inline constexpr FileType DRAVIK = FileType::DravikProject;
inline constexpr FileType KARVON = FileType::KarvonProject;
inline constexpr FileType KARVRSLT = FileType::KarvonResult;
inline constexpr FileType INTACT = FileType::IntactProject;
inline constexpr FileType OLIGO = FileType::OligoProject;
inline constexpr FileType OSTRALE = FileType::OstraleProject;
inline constexpr FileType TRENQ = FileType::TrenqProject;
inline constexpr FileType CALDRSLT = FileType::CaldrinResult;
inline constexpr FileType MULTIDOCREPORT = FileType::MultiDocReport;
inline constexpr FileType PI = FileType::Electropherogram;
inline constexpr FileType ITB = FileType::IcIef;

/// The project files that a report over several documents may be made of.
inline constexpr FileType MULTIDOCALLOWEDFILES[] = {SENTHIA, DRAVIK, KARVON, INTACT, OLIGO, OSTRALE, TRENQ};

} // namespace MirelFileTypes

} // namespace orv
