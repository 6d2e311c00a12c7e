#include "orv/chemistry/ProteinAutoPopulateOptions.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace orv {

namespace {

constexpr qsizetype kLongestProteinName = 1000;

struct ProteinAutoPopulateOptionsTr
{
    Q_DECLARE_TR_FUNCTIONS(ProteinAutoPopulateOptions)
};

Error malformedProteinName(const QString &place)
{
    return Error(ErrorCode::InvalidContent,
                 ProteinAutoPopulateOptionsTr::tr("The name of combined proteins is malformed."))
        .addDetail(place)
        .addDetail(ProteinAutoPopulateOptionsTr::tr("Write it as \"Auto(HC:0-2,LC:0-2)\"."));
}

Result<ProteinAutoPopulateOptions::Part> readPart(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*([^:,()]*[^:,()\\s])\\s*(?::\\s*([0-9]{1,3})\\s*(?:-\\s*([0-9]{1,3})\\s*)?)?$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return malformedProteinName(
            ProteinAutoPopulateOptionsTr::tr("\"%1\" is no chain with a count.").arg(text));
    ProteinAutoPopulateOptions::Part part{match.captured(1), 0, 1};
    if (match.hasCaptured(2)) {
        part.minimum = match.captured(2).toInt();
        part.maximum = match.hasCaptured(3) ? match.captured(3).toInt() : part.minimum;
    }
    if (part.minimum > part.maximum || part.maximum > ProteinAutoPopulateOptions::kMaximumCopies)
        return malformedProteinName(
            ProteinAutoPopulateOptionsTr::tr("The counts of \"%1\" are out of order or too large.")
                .arg(part.chain));
    return part;
}

ProteinComplex proteinOf(const QList<ProteinAutoPopulateOptions::Part> &parts, const QList<int> &numbers,
                         const QList<int> &counts)
{
    ProteinComplex protein;
    QStringList names;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        for (int copy = 0; copy < counts.at(i); ++copy) {
            names.append(parts.at(i).chain);
            protein.chainNumbers.append(numbers.at(i));
        }
    }
    protein.name = names.join(QLatin1Char('-'));
    return protein;
}

/// Counts up like a mileometer; false behind the last combination.
bool advance(const QList<ProteinAutoPopulateOptions::Part> &parts, QList<int> *counts)
{
    for (qsizetype i = parts.size() - 1; i >= 0; --i) {
        if (++(*counts)[i] <= parts.at(i).maximum)
            return true;
        (*counts)[i] = parts.at(i).minimum;
    }
    return false;
}

} // namespace

bool ProteinAutoPopulateOptions::mayConvert(const QString &name)
{
    return !fromString(name).hasError();
}

Result<ProteinAutoPopulateOptions> ProteinAutoPopulateOptions::fromString(const QString &name)
{
    if (name.size() > kLongestProteinName)
        return malformedProteinName(
            ProteinAutoPopulateOptionsTr::tr("It has more than %1 characters.").arg(kLongestProteinName));
    static const QRegularExpression frame(QStringLiteral("^\\s*Auto\\((.*)\\)\\s*$"));
    const QRegularExpressionMatch match = frame.match(name);
    if (!match.hasMatch())
        return malformedProteinName(
            ProteinAutoPopulateOptionsTr::tr("It must begin with \"Auto(\" and end with \")\"."));
    ProteinAutoPopulateOptions options;
    for (const QString &text : match.captured(1).split(QLatin1Char(','))) {
        Result<Part> part = readPart(text);
        if (part.hasError())
            return part.ecatch();
        for (const Part &earlier : std::as_const(options.m_parts)) {
            if (earlier.chain == part->chain)
                return malformedProteinName(
                    ProteinAutoPopulateOptionsTr::tr("\"%1\" stands twice.").arg(part->chain));
        }
        options.m_parts.append(*part);
    }
    return options;
}

QString ProteinAutoPopulateOptions::toString() const
{
    QStringList texts;
    for (const Part &part : m_parts)
        texts.append(QStringLiteral("%1:%2-%3").arg(part.chain).arg(part.minimum).arg(part.maximum));
    return QStringLiteral("Auto(%1)").arg(texts.join(QLatin1Char(',')));
}

Result<QList<ProteinComplex>> ProteinAutoPopulateOptions::proteins(const QList<Chain> &chains) const
{
    QList<int> numbers;
    QList<int> counts;
    qint64 combinations = 1;
    for (const Part &part : m_parts) {
        const auto chain = std::find_if(chains.begin(), chains.end(),
                                        [&](const Chain &candidate) { return candidate.name == part.chain; });
        if (chain == chains.end())
            return malformedProteinName(
                ProteinAutoPopulateOptionsTr::tr("There is no chain \"%1\".").arg(part.chain));
        numbers.append(chain->number);
        counts.append(part.minimum);
        combinations *= part.maximum - part.minimum + 1;
        if (combinations > kMaximumProteins)
            return malformedProteinName(
                ProteinAutoPopulateOptionsTr::tr("It stands for more than %1 proteins.")
                    .arg(kMaximumProteins));
    }
    QList<ProteinComplex> list;
    bool more = !m_parts.isEmpty();
    while (more) {
        ProteinComplex protein = proteinOf(m_parts, numbers, counts);
        if (!protein.chainNumbers.isEmpty())
            list.append(protein);
        more = advance(m_parts, &counts);
    }
    return list;
}

} // namespace orv
