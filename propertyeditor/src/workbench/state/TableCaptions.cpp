#include "TableCaptions.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace orv {

namespace {

struct TableCaption
{
    QLatin1String name;
    const char *title;
};

/// Tables show the others by the words of their names.
constexpr std::array kTableCaptions = {
    TableCaption{QLatin1String("BuildingBlocks"), QT_TRANSLATE_NOOP("TableCaptions", "Building blocks")},
    TableCaption{QLatin1String("ChainId"), QT_TRANSLATE_NOOP("TableCaptions", "Id")},
    TableCaption{QLatin1String("Complete"), QT_TRANSLATE_NOOP("TableCaptions", "On molecules")},
    TableCaption{QLatin1String("Disulfides"), QT_TRANSLATE_NOOP("TableCaptions", "Disulfide bonds")},
    TableCaption{QLatin1String("MinimumMz"), QT_TRANSLATE_NOOP("TableCaptions", "Lowest m/z")},
    TableCaption{QLatin1String("MaximumMz"), QT_TRANSLATE_NOOP("TableCaptions", "Highest m/z")},
    TableCaption{QLatin1String("MinimumMass"), QT_TRANSLATE_NOOP("TableCaptions", "Lowest mass")},
    TableCaption{QLatin1String("MaximumMass"), QT_TRANSLATE_NOOP("TableCaptions", "Highest mass")},
    TableCaption{QLatin1String("MinimumCharge"), QT_TRANSLATE_NOOP("TableCaptions", "Lowest charge")},
    TableCaption{QLatin1String("MaximumCharge"), QT_TRANSLATE_NOOP("TableCaptions", "Highest charge")},
    TableCaption{QLatin1String("ProteinAccessionName"), QT_TRANSLATE_NOOP("TableCaptions", "Accession")},
    TableCaption{QLatin1String("ProteinAliasName"), QT_TRANSLATE_NOOP("TableCaptions", "Name")},
    TableCaption{QLatin1String("ProteinSequence"), QT_TRANSLATE_NOOP("TableCaptions", "Sequence")},
    TableCaption{QLatin1String("SampleName"), QT_TRANSLATE_NOOP("TableCaptions", "Name")},
    TableCaption{QLatin1String("SamplePath"), QT_TRANSLATE_NOOP("TableCaptions", "File")},
    TableCaption{QLatin1String("SamplesId"), QT_TRANSLATE_NOOP("TableCaptions", "Id")},
    TableCaption{QLatin1String("SamplesIds"), QT_TRANSLATE_NOOP("TableCaptions", "Sample ids")},
    TableCaption{QLatin1String("Traces"), QT_TRANSLATE_NOOP("TableCaptions", "Trace files")},
    TableCaption{QLatin1String("channelName"), QT_TRANSLATE_NOOP("TableCaptions", "Channel")},
    TableCaption{QLatin1String("columns"), QT_TRANSLATE_NOOP("TableCaptions", "columns")},
    TableCaption{QLatin1String("fasta"), QT_TRANSLATE_NOOP("TableCaptions", "FASTA file")},
    TableCaption{QLatin1String("imported"), QT_TRANSLATE_NOOP("TableCaptions", "Use")},
    TableCaption{QLatin1String("name"), QT_TRANSLATE_NOOP("TableCaptions", "Name")},
    TableCaption{QLatin1String("order"), QT_TRANSLATE_NOOP("TableCaptions", "order")},
    TableCaption{QLatin1String("order of columns"), QT_TRANSLATE_NOOP("TableCaptions", "order of columns")},
    TableCaption{QLatin1String("order of settings"), QT_TRANSLATE_NOOP("TableCaptions", "order of settings")},
    TableCaption{QLatin1String("order of tabs"), QT_TRANSLATE_NOOP("TableCaptions", "order of tabs")},
    TableCaption{QLatin1String("species"), QT_TRANSLATE_NOOP("TableCaptions", "Species")},
    TableCaption{QLatin1String("type"), QT_TRANSLATE_NOOP("TableCaptions", "Type")},
};

struct CountedStep
{
    QLatin1String name;
    const char *text;
};

/// What differences count from 0.
constexpr std::array kCountedSteps = {
    CountedStep{QLatin1String("row"), QT_TRANSLATE_NOOP("TableCaptions", "row %1")},
    CountedStep{QLatin1String("entry"), QT_TRANSLATE_NOOP("TableCaptions", "entry %1")},
    CountedStep{QLatin1String("table"), QT_TRANSLATE_NOOP("TableCaptions", "table %1")},
    CountedStep{QLatin1String("entry behind the last column"),
                QT_TRANSLATE_NOOP("TableCaptions", "value %1 behind the last column")},
};

QString translated(const char *text)
{
    return QCoreApplication::translate("TableCaptions", text);
}

/// "MassNumber" as "Mass number". Names of people's own columns have blanks or no words to part.
QString wordsOf(const QString &name)
{
    static const QRegularExpression border(QStringLiteral("(?<=[a-z])(?=[A-Z][a-z])"));
    if (name.contains(u' ') || !name.contains(border))
        return name;
    QString words = name;
    words.replace(border, QStringLiteral(" "));
    return words.left(1).toUpper() + words.mid(1).toLower();
}

} // namespace

QString TableCaptions::ofColumn(const QString &name)
{
    const auto caption = std::ranges::find(kTableCaptions, name, &TableCaption::name);
    return caption == kTableCaptions.end() ? wordsOf(name) : translated(caption->title);
}

QString TableCaptions::ofStep(const QString &step)
{
    const qsizetype blank = step.lastIndexOf(u' ');
    bool isNumber = false;
    const int number = step.mid(blank + 1).toInt(&isNumber);
    const auto counted =
        std::ranges::find(kCountedSteps, step.left(std::max<qsizetype>(blank, 0)), &CountedStep::name);
    return isNumber && counted != kCountedSteps.end() ? translated(counted->text).arg(number + 1)
                                                      : ofColumn(step);
}

} // namespace orv
