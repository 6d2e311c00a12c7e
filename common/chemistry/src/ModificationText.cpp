#include "orv/chemistry/ModificationText.h"

#include "internal/LineSlots.h"

#include <orv/chemistry/ChemicalFormula.h>

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace orv {

namespace {

struct ModificationTextTr
{
    Q_DECLARE_TR_FUNCTIONS(ModificationText)
};

struct UseRow
{
    Modification::Use use;
    QLatin1String text;
};

constexpr std::array kUses = {
    UseRow{Modification::Use::Fixed, QLatin1String("fixed")},
    UseRow{Modification::Use::Common, QLatin1String("common")},
    UseRow{Modification::Use::Rare, QLatin1String("rare")},
};

constexpr int kMostPerPeptide = 100;

Error badModification(const QString &reason)
{
    return Error(ErrorCode::InvalidContent, ModificationTextTr::tr("A modification can't be read."))
        .addDetail(reason);
}

bool isResidue(const QString &site)
{
    const bool isLetter = site.size() == 1 && site[0] >= u'A' && site[0] <= u'Z';
    return isLetter || site == QLatin1String("NTerm") || site == QLatin1String("CTerm");
}

Error readUse(const QString &text, Modification *modification)
{
    static const QRegularExpression pattern(QStringLiteral("^([a-z]+) *([0-9]*)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    const auto use = Modification::useFromString(match.capturedView(1));
    const bool isFixed = use == Modification::Use::Fixed;
    const int limit = match.capturedView(2).isEmpty() ? (isFixed ? 0 : 1) : match.capturedView(2).toInt();
    if (!use || limit > kMostPerPeptide || (isFixed ? limit != 0 : limit < 1))
        return badModification(
            ModificationTextTr::tr(
                "Behind \"|\" stands \"%1\"; write fixed, common1 or rare1, with the largest "
                "number on a peptide.")
                .arg(text));
    modification->use = *use;
    modification->limit = limit;
    return Error::NoError;
}

/// Comments, blank lines and settings aren't; whatever has a mass, a place or a use in it means to be one.
bool meansModification(const QString &line)
{
    const QString text = line.trimmed();
    if (text.isEmpty() || text.startsWith(u'%'))
        return false;
    const bool isSetting = text.contains(u'=') && !text.contains(u'@');
    return !isSetting;
}

} // namespace

std::optional<double> Modification::massDa() const
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(mass.trimmed(), &isNumber);
    if (isNumber)
        return number;
    const Result<ChemicalFormula> formula = ChemicalFormula::parse(mass);
    return formula.hasError() || formula->isEmpty() ? std::nullopt
                                                    : std::optional(formula->monoisotopicMass());
}

QString Modification::useToString(Use use)
{
    return std::find_if(kUses.begin(), kUses.end(), [&](const UseRow &row) { return row.use == use; })->text;
}

std::optional<Modification::Use> Modification::useFromString(QStringView text)
{
    const auto found =
        std::find_if(kUses.begin(), kUses.end(), [&](const UseRow &row) { return row.text == text; });
    return found == kUses.end() ? std::nullopt : std::optional(found->use);
}

QString Modification::toString() const
{
    const QString count = use == Use::Fixed ? QString() : QString::number(limit);
    return QStringLiteral("%1 / %2 @ %3 | %4%5").arg(name, mass, residues, useToString(use), count);
}

Result<Modification> Modification::fromString(const QString &line)
{
    // Names and formulas hold none of the signs, but for slashes, of which the last one counts.
    const qsizetype bar = line.lastIndexOf(u'|');
    const qsizetype at = line.lastIndexOf(u'@', bar);
    const qsizetype slash = at < 0 ? -1 : line.lastIndexOf(u'/', at);
    if (bar < 0 || at < 0 || slash < 0 || at > bar)
        return badModification(
            ModificationTextTr::tr(
                "Write it as name / mass @ residues | fixed, common1 or rare1, not as \"%1\".")
                .arg(line.trimmed()));
    Modification modification;
    modification.name = line.left(slash).trimmed();
    modification.mass = line.mid(slash + 1, at - slash - 1).trimmed();
    modification.residues = line.mid(at + 1, bar - at - 1).trimmed();
    if (modification.name.isEmpty())
        return badModification(ModificationTextTr::tr("It has no name."));
    if (modification.name.startsWith(u'%'))
        return badModification(ModificationTextTr::tr("A name that begins with \"%\" makes it a comment."));
    if (!modification.massDa())
        return badModification(
            ModificationTextTr::tr("\"%1\" is neither a mass in Da nor a formula.").arg(modification.mass));
    for (const QString &site : modification.residues.split(u',')) {
        if (!isResidue(site.trimmed()))
            return badModification(
                ModificationTextTr::tr(
                    "\"%1\" is no residue; write letters, NTerm or CTerm with commas between.")
                    .arg(site.trimmed()));
    }
    ORV_RETURN_IF_ERROR(readUse(line.mid(bar + 1).trimmed(), &modification));
    return modification;
}

namespace ModificationText {

QString customMarker()
{
    return QStringLiteral("% Custom modification text below");
}

QList<Line> lines(const QString &text)
{
    QList<Line> found;
    const QStringList all = text.split(u'\n');
    for (int i = 0; i < all.size(); ++i) {
        if (!meansModification(all[i]))
            continue;
        Line line{i + 1, all[i], {}, {}};
        Result<Modification> read = Modification::fromString(all[i]);
        if (read.hasError())
            line.problem = read.error().details().join(u' ');
        else
            line.modification = std::move(*read);
        found.append(line);
    }
    return found;
}

QString withLines(const QString &text, const QStringList &modifications)
{
    return Internal::withRows(text, modifications, meansModification, customMarker());
}

} // namespace ModificationText

} // namespace orv
