#include "orv/table_model/TableColumn.h"

#include <orv/table_model/SequenceText.h>

#include <QCoreApplication>

#include <algorithm>

namespace orv {

namespace {

struct TableColumnTr
{
    Q_DECLARE_TR_FUNCTIONS(TableColumn)
};

QString numberOf(double bound)
{
    return QLocale::c().toString(bound, 'g', QLocale::FloatingPointShortest);
}

QString rangeProblem(const TableColumn &column, double number)
{
    const bool isBelow = column.minimum && number < *column.minimum;
    const bool isAbove = column.maximum && number > *column.maximum;
    if (!isBelow && !isAbove)
        return {};
    const QString unit = column.unit.isEmpty() ? QString() : u' ' + column.unit;
    if (column.minimum && column.maximum)
        return TableColumnTr::tr("Must lie between %1 and %2%3.")
            .arg(numberOf(*column.minimum), numberOf(*column.maximum), unit);
    return isBelow ? TableColumnTr::tr("Must be at least %1%2.").arg(numberOf(*column.minimum), unit)
                   : TableColumnTr::tr("Must be at most %1%2.").arg(numberOf(*column.maximum), unit);
}

QString numberProblem(const TableColumn &column, QStringView kept)
{
    const std::optional<double> number = NumberText::value(kept);
    if (!number && NumberText::isAmbiguous(kept)) {
        QString whole = kept.toString();
        return TableColumnTr::tr("May be %1 or %2; write it without a sign between thousands.")
            .arg(QString(whole).remove(u','), QString(whole).replace(u',', u'.'));
    }
    if (!number)
        return column.kind == TableColumnKind::Integer ? TableColumnTr::tr("Is not a whole number.")
                                                       : TableColumnTr::tr("Is not a number.");
    const bool isWhole = !kept.contains(u'.') && !kept.contains(u'e') && !kept.contains(u'E');
    if (column.kind == TableColumnKind::Integer && !isWhole)
        return TableColumnTr::tr("Must be a whole number.");
    return rangeProblem(column, *number);
}

QString sequenceProblem(QStringView kept)
{
    const auto isAllowed = [](QChar c) {
        return c.isLetter() || c.isDigit() || QStringView(u"()[]{}-_*.+:/").contains(c);
    };
    const auto odd = std::find_if_not(kept.cbegin(), kept.cend(), isAllowed);
    return odd == kept.cend() ? QString()
                              : TableColumnTr::tr("Position %1 holds \"%2\", which no sequence has.")
                                    .arg(odd - kept.cbegin() + 1)
                                    .arg(*odd);
}

/// "#rrggbb", or with eight digits and the opacity first. Qt Gui knows more forms, and takes long to load.
bool isColor(QStringView kept)
{
    const auto isHexDigit = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c.toLower() >= u'a' && c.toLower() <= u'f');
    };
    return (kept.size() == 7 || kept.size() == 9) && kept[0] == u'#' &&
           std::all_of(kept.cbegin() + 1, kept.cend(), isHexDigit);
}

QString kindProblem(const TableColumn &column, QStringView kept)
{
    switch (column.kind) {
    case TableColumnKind::Integer:
    case TableColumnKind::Number:
        return numberProblem(column, kept);
    case TableColumnKind::Choice:
        return std::find(column.choices.cbegin(), column.choices.cend(), kept) != column.choices.cend()
                   ? QString()
                   : TableColumnTr::tr("Is none of: %1.").arg(column.choices.join(QStringLiteral(", ")));
    case TableColumnKind::Sequence:
        return sequenceProblem(kept);
    case TableColumnKind::Color:
        return isColor(kept) ? QString() : TableColumnTr::tr("Is no colour; write it as #rrggbb.");
    case TableColumnKind::Text:
    case TableColumnKind::File:
        break;
    }
    return {};
}

QString rangeHelp(const TableColumn &column)
{
    const bool isWhole = column.kind == TableColumnKind::Integer;
    const QString unit = column.unit.isEmpty() ? QString() : u' ' + column.unit;
    const QString low = column.minimum ? numberOf(*column.minimum) : QString();
    const QString high = column.maximum ? numberOf(*column.maximum) : QString();
    if (column.minimum && column.maximum)
        return (isWhole ? TableColumnTr::tr("A whole number between %1 and %2%3.")
                        : TableColumnTr::tr("A number between %1 and %2%3."))
            .arg(low, high, unit);
    if (column.minimum)
        return (isWhole ? TableColumnTr::tr("A whole number of at least %1%2.")
                        : TableColumnTr::tr("A number of at least %1%2."))
            .arg(low, unit);
    if (column.maximum)
        return (isWhole ? TableColumnTr::tr("A whole number of at most %1%2.")
                        : TableColumnTr::tr("A number of at most %1%2."))
            .arg(high, unit);
    return isWhole ? TableColumnTr::tr("A whole number.") : TableColumnTr::tr("A number.");
}

QString kindHelp(const TableColumn &column)
{
    switch (column.kind) {
    case TableColumnKind::Integer:
    case TableColumnKind::Number:
        return rangeHelp(column);
    case TableColumnKind::Choice:
        return TableColumnTr::tr("One of: %1.").arg(column.choices.join(QStringLiteral(", ")));
    case TableColumnKind::File:
        return TableColumnTr::tr("A file; it can be dropped here.");
    case TableColumnKind::Sequence:
        return TableColumnTr::tr("A sequence; blanks and positions between its letters don't count.");
    case TableColumnKind::Color:
        return TableColumnTr::tr("A colour, written as #rrggbb.");
    case TableColumnKind::Text:
        break;
    }
    return {};
}

QString keptChoice(const QStringList &choices, QStringView typed)
{
    const QStringView wanted = typed.trimmed();
    for (const QString &choice : choices) {
        if (wanted.compare(choice, Qt::CaseInsensitive) == 0)
            return choice;
    }
    return typed.toString();
}

} // namespace

QString TableColumn::header() const
{
    return unit.isEmpty() ? title : TableColumnTr::tr("%1 (%2)").arg(title, unit);
}

bool TableColumn::isNumeric() const
{
    return kind == TableColumnKind::Integer || kind == TableColumnKind::Number;
}

QString TableColumn::help() const
{
    QStringList sentences = {explanation, kindHelp(*this)};
    if (isRequired)
        sentences.append(TableColumnTr::tr("Must not be empty."));
    if (isUnique)
        sentences.append(TableColumnTr::tr("Must not repeat."));
    if (isReadOnly)
        sentences.append(TableColumnTr::tr("Can't be changed."));
    sentences.removeAll(QString());
    return sentences.join(u' ');
}

QString TableColumn::kept(QStringView typed, NumberText::DecimalSign sign) const
{
    switch (kind) {
    case TableColumnKind::Integer:
    case TableColumnKind::Number:
        return NumberText::canonical(typed, sign).value_or(typed.toString());
    case TableColumnKind::Choice:
        return keptChoice(choices, typed);
    case TableColumnKind::Sequence:
        return SequenceText::plain(typed, isCaseKept ? SequenceText::LetterCase::Kept
                                                     : SequenceText::LetterCase::Capital);
    case TableColumnKind::File:
    case TableColumnKind::Color:
        return typed.trimmed().toString();
    case TableColumnKind::Text:
        break;
    }
    return typed.toString();
}

QString TableColumn::shown(QStringView kept, NumberText::DecimalSign sign) const
{
    return isNumeric() ? NumberText::shown(kept, sign) : kept.toString();
}

QString TableColumn::problem(QStringView kept) const
{
    if (kept.isEmpty())
        return isRequired ? TableColumnTr::tr("Must not be empty.") : QString();
    const QString ofKind = kindProblem(*this, kept);
    return ofKind.isEmpty() && check ? check(kept) : ofKind;
}

bool TableColumn::isMeantBy(QStringView header) const
{
    const QStringView wanted = header.trimmed();
    const auto is = [&](const QString &text) {
        return !text.isEmpty() && wanted.compare(text, Qt::CaseInsensitive) == 0;
    };
    return is(title) || is(name) || is(this->header()) || is(QStringLiteral("%1 [%2]").arg(title, unit));
}

} // namespace orv
