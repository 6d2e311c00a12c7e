#include "orv/chemistry/ChemicalFormula.h"

#include "internal/Elements.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace orv {

namespace {

constexpr qsizetype kLongestFormula = 1000;

struct ChemicalFormulaTr
{
    Q_DECLARE_TR_FUNCTIONS(ChemicalFormula)
};

Error malformedFormula(const QString &text, const QString &place)
{
    return Error(ErrorCode::InvalidContent, ChemicalFormulaTr::tr("The chemical formula is malformed."))
        .addDetail(ChemicalFormulaTr::tr("The formula is \"%1\". %2").arg(text.left(100), place));
}

double sum(const QMap<QString, qint64> &counts, double Internal::Element::*mass)
{
    double total = 0.0;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        total += static_cast<double>(it.value()) * Internal::findElement(it.key())->*mass;
    return total;
}

/// Where a symbol stands in a written formula.
std::pair<int, QString> rank(const QString &symbol)
{
    if (symbol.startsWith(QLatin1Char('_')))
        return {3, symbol};
    if (symbol == QLatin1String("C"))
        return {0, symbol};
    return {symbol == QLatin1String("H") ? 1 : 2, symbol};
}

} // namespace

Result<ChemicalFormula> ChemicalFormula::parse(const QString &text)
{
    if (text.size() > kLongestFormula) {
        return malformedFormula(text, ChemicalFormulaTr::tr("It has %1 characters; %2 are allowed.")
                                          .arg(text.size())
                                          .arg(kLongestFormula));
    }
    static const QRegularExpression piece(
        QStringLiteral("\\s*(?<symbol>(?:_[0-9]{1,2})?[A-Z][a-z]{0,2})\\s*(?:(?<count>-?[0-9]+)|\\((?<inner>-"
                       "?[0-9]+)\\))?\\s*"));
    ChemicalFormula formula;
    for (qsizetype at = 0; at < text.size();) {
        const QRegularExpressionMatch match = piece.match(text, at, QRegularExpression::NormalMatch,
                                                          QRegularExpression::AnchorAtOffsetMatchOption);
        const QString symbol = match.captured(QStringLiteral("symbol"));
        const Internal::Element *element = match.hasMatch() ? Internal::findElement(symbol) : nullptr;
        if (!element) {
            if (QStringView(text).mid(at).trimmed().isEmpty())
                break;
            return malformedFormula(
                text, ChemicalFormulaTr::tr("At character %1 there is no element.").arg(at + 1));
        }
        const QString digits =
            match.captured(QStringLiteral("count")) + match.captured(QStringLiteral("inner"));
        bool ok = true;
        const qint64 count = digits.isEmpty() ? 1 : digits.toLongLong(&ok);
        if (!ok || count > kMaximumCount || count < -kMaximumCount)
            return malformedFormula(
                text, ChemicalFormulaTr::tr("The count \"%1\" of %2 is too large.").arg(digits, symbol));
        formula.add(element->symbol, count);
        at = match.capturedEnd();
    }
    return formula;
}

QString ChemicalFormula::toString() const
{
    QStringList symbols = m_counts.keys();
    std::sort(symbols.begin(), symbols.end(),
              [](const QString &a, const QString &b) { return rank(a) < rank(b); });
    QString text;
    for (const QString &symbol : symbols) {
        text += symbol;
        if (const qint64 count = m_counts.value(symbol); count != 1)
            text += QString::number(count);
    }
    return text;
}

double ChemicalFormula::monoisotopicMass() const
{
    return sum(m_counts, &Internal::Element::monoisotopicMassDa);
}

double ChemicalFormula::averageMass() const
{
    return sum(m_counts, &Internal::Element::averageMassDa);
}

ChemicalFormula &ChemicalFormula::operator+=(const ChemicalFormula &other)
{
    const QMap<QString, qint64> counts = other.m_counts; // other may be this one
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        add(it.key(), it.value());
    return *this;
}

ChemicalFormula &ChemicalFormula::operator-=(const ChemicalFormula &other)
{
    return *this += other * -1;
}

ChemicalFormula &ChemicalFormula::operator*=(qint64 factor)
{
    if (factor == 0)
        m_counts.clear();
    for (qint64 &count : m_counts)
        count *= factor;
    return *this;
}

void ChemicalFormula::add(const QString &symbol, qint64 count)
{
    qint64 &sum = m_counts[symbol];
    sum += count;
    if (sum == 0)
        m_counts.remove(symbol);
}

} // namespace orv
