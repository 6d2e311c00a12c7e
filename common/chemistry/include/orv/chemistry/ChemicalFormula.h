#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QMap>
#include <QString>

namespace orv {

/// How many atoms of each element something has, or differs by: counts may be negative. The elements, their
/// masses and their isotopes are ProteoWizard's, but for three average masses that were revised since.
///
///     Result<ChemicalFormula> water = ChemicalFormula::parse(QStringLiteral("H2O"));
///     double massDa = water->monoisotopicMass(); // 18.0106
///
/// A plain value; any thread.
class ORV_WORKFLOW_EXPORT ChemicalFormula
{
public:
    /// Largest count of an element in a text, either way.
    static constexpr qint64 kMaximumCount = 1'000'000;

    ChemicalFormula() = default;

    /// Reads symbols, each with an optional count: "C6H12O6", "C6 H12 O6", "H(2) C(2) O", "C-1H2". Single
    /// isotopes are "_2H" (or "D"), "_3H" (or "T"), "_13C", "_15N" and "_18O". An element may stand several
    /// times. The empty text is the empty formula. InvalidContent with the place as detail for any other
    /// text.
    [[nodiscard]] static Result<ChemicalFormula> parse(const QString &text);

    /// Carbon and hydrogen first, the rest by symbol, single isotopes last; a count of 1 isn't written. parse
    /// reads it back as an equal formula.
    [[nodiscard]] QString toString() const;

    [[nodiscard]] bool isEmpty() const { return m_counts.isEmpty(); }
    /// 0 for an element that the formula doesn't have.
    [[nodiscard]] qint64 count(const QString &symbol) const { return m_counts.value(symbol); }
    /// Never holds a 0.
    [[nodiscard]] const QMap<QString, qint64> &counts() const { return m_counts; }

    /// In Da, of the most abundant isotope of each element.
    [[nodiscard]] double monoisotopicMass() const;
    /// In Da, of the elements' mean over their natural isotopes.
    [[nodiscard]] double averageMass() const;

    ChemicalFormula &operator+=(const ChemicalFormula &other);
    ChemicalFormula &operator-=(const ChemicalFormula &other);
    ChemicalFormula &operator*=(qint64 factor);
    friend ChemicalFormula operator+(ChemicalFormula a, const ChemicalFormula &b) { return a += b; }
    friend ChemicalFormula operator-(ChemicalFormula a, const ChemicalFormula &b) { return a -= b; }
    friend ChemicalFormula operator*(ChemicalFormula a, qint64 factor) { return a *= factor; }
    bool operator==(const ChemicalFormula &) const = default;

private:
    void add(const QString &symbol, qint64 count);

    QMap<QString, qint64> m_counts;
};

} // namespace orv
