#pragma once

#include <orv/core/Result.h>

#include <QByteArray>
#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>

class KPropertySet;

namespace orv {

/// Settings of a column as texts that people, programs and shells read. \a names are those of properties of
/// the set.
namespace SettingCopy {

/// A line for each: caption, value and unit, with tabulators between. A caption that several settings of the
/// column have is replaced by the name.
[[nodiscard]] QString asText(const KPropertySet &set, const QList<QByteArray> &names, const QLocale &locale);

/// The settings as files store them, in a cell without anything else. InvalidContent if a value has no stored
/// form.
[[nodiscard]] Result<QByteArray> asJson(const KPropertySet &set, const QList<QByteArray> &names);

/// Where a column stands for a program.
struct FilePlace
{
    QString file;
    QString tab;
    QString column;
};

struct CommandLine
{
    QString text;        ///< without an end of line; empty if no setting can be told
    QStringList leftOut; ///< captions of settings whose values no command line holds
};

/// A command that gives the same settings of the column in the file these values.
[[nodiscard]] CommandLine asCommandLine(const KPropertySet &set, const QList<QByteArray> &names,
                                        const FilePlace &place);

/// What the command understands as the thing at \a index of \a names: its name, or its number where it has no
/// name of its own; empty if neither leads there.
[[nodiscard]] QString placeArgument(const QStringList &names, qsizetype index);

} // namespace SettingCopy

} // namespace orv
