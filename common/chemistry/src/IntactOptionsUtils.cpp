#include "orv/chemistry/IntactOptionsUtils.h"

#include "internal/IntactOptionsColumns.h"
#include "internal/JsonMembers.h"
#include "internal/TableRows.h"
#include "internal/Tables.h"

#include <orv/chemistry/ChemicalFormula.h>

#include <QCoreApplication>
#include <QSet>

#include <array>

namespace orv::IntactOptionsUtils {

namespace IntactOptionsColumns = Internal::IntactOptionsColumns;
using namespace Qt::StringLiterals;

namespace {

struct IntactOptionsUtilsTr
{
    Q_DECLARE_TR_FUNCTIONS(IntactOptionsUtils)
};

struct NumberColumn
{
    QLatin1String column;
    double IntactOptions::*member;
};

struct ChargeColumn
{
    QLatin1String column;
    int IntactOptions::*member;
};

constexpr std::array kNumbers = {
    NumberColumn{IntactOptionsColumns::kMinimumMz, &IntactOptions::minimumMz},
    NumberColumn{IntactOptionsColumns::kMaximumMz, &IntactOptions::maximumMz},
    NumberColumn{IntactOptionsColumns::kMinimumMass, &IntactOptions::minimumMassDa},
    NumberColumn{IntactOptionsColumns::kMaximumMass, &IntactOptions::maximumMassDa},
};

constexpr std::array kCharges = {
    ChargeColumn{IntactOptionsColumns::kMinimumCharge, &IntactOptions::minimumCharge},
    ChargeColumn{IntactOptionsColumns::kMaximumCharge, &IntactOptions::maximumCharge},
};

/// Leaves the target alone for an empty cell.
template<typename Number, typename Read>
Error readNumber(const Internal::TableReader &rows, int row, QLatin1String column, Read read, Number *target)
{
    const QVariant cell = rows.cell(row, column);
    if (Internal::isEmptyCell(cell))
        return Error::NoError;
    const std::optional<Number> number = read(cell);
    if (!number) {
        return Error(ErrorCode::InvalidContent,
                     IntactOptionsUtilsTr::tr("The table of deconvolution options can't be read."))
            .addDetail(
                IntactOptionsUtilsTr::tr("Row %1: \"%2\" in the column \"%3\" is no number of its kind.")
                    .arg(row + 1)
                    .arg(cell.toString(), column));
    }
    *target = *number;
    return Error::NoError;
}

class Check
{
public:
    Check(const IntactOptions &options, qsizetype row)
        : m_options(options)
        , m_row(row)
    {}

    QStringList run()
    {
        checkOrder(IntactOptionsUtilsTr::tr("m/z"), m_options.minimumMz, m_options.maximumMz, false);
        checkOrder(IntactOptionsUtilsTr::tr("mass"), m_options.minimumMassDa, m_options.maximumMassDa, false);
        checkOrder(IntactOptionsUtilsTr::tr("charge"), m_options.minimumCharge, m_options.maximumCharge,
                   true);
        const Result<ChemicalFormula> adduct = ChemicalFormula::parse(m_options.adduct);
        if (adduct.hasError() || adduct->isEmpty())
            add(IntactOptionsUtilsTr::tr("The adduct \"%1\" is no chemical formula.").arg(m_options.adduct));
        return m_errors;
    }

private:
    void checkOrder(const QString &what, double minimum, double maximum, bool mayBeEqual)
    {
        if (minimum > 0.0 && (minimum < maximum || (mayBeEqual && minimum == maximum)))
            return;
        add(IntactOptionsUtilsTr::tr("The range of %1 (%2 to %3) is out of order.")
                .arg(what, Internal::shortNumber(minimum), Internal::shortNumber(maximum)));
    }
    void add(const QString &text)
    {
        m_errors.append(IntactOptionsUtilsTr::tr("Deconvolution options \"%1\" (row %2): %3")
                            .arg(m_options.name)
                            .arg(m_row + 1)
                            .arg(text));
    }

    const IntactOptions &m_options;
    const qsizetype m_row;
    QStringList m_errors;
};

} // namespace

RowNode defaultRowNode()
{
    IntactOptions denatured;
    denatured.name = u"Denatured"_s;
    denatured.adduct = u"H"_s;
    return optionsToRowNode({denatured});
}

Result<QList<IntactOptions>> optionsFromRowNode(const RowNode &table)
{
    const Internal::TableReader rows(
        table, {IntactOptionsColumns::kName, IntactOptionsColumns::kMinimumMz,
                IntactOptionsColumns::kMaximumMz, IntactOptionsColumns::kMinimumMass,
                IntactOptionsColumns::kMaximumMass, IntactOptionsColumns::kMinimumCharge,
                IntactOptionsColumns::kMaximumCharge, IntactOptionsColumns::kAdduct});
    QList<IntactOptions> list;
    for (int i = 0; i < rows.rowCount(); ++i) {
        IntactOptions options;
        options.name = rows.text(i, IntactOptionsColumns::kName);
        options.adduct = rows.text(i, IntactOptionsColumns::kAdduct);
        for (const NumberColumn &number : kNumbers) {
            ORV_RETURN_IF_ERROR(
                readNumber(rows, i, number.column, Internal::numberOf, &(options.*number.member)));
        }
        for (const ChargeColumn &charge : kCharges)
            ORV_RETURN_IF_ERROR(
                readNumber(rows, i, charge.column, Internal::intOf, &(options.*charge.member)));
        options.otherCells = rows.otherCells(i);
        list.append(options);
    }
    return list;
}

RowNode optionsToRowNode(const QList<IntactOptions> &list)
{
    RowNode table =
        Internal::tableOf({IntactOptionsColumns::kName, IntactOptionsColumns::kMinimumMz,
                           IntactOptionsColumns::kMaximumMz, IntactOptionsColumns::kMinimumMass,
                           IntactOptionsColumns::kMaximumMass, IntactOptionsColumns::kMinimumCharge,
                           IntactOptionsColumns::kMaximumCharge, IntactOptionsColumns::kAdduct});
    Internal::TableWriter rows(&table);
    for (const IntactOptions &options : list) {
        rows.addRow({options.name, options.minimumMz, options.maximumMz, options.minimumMassDa,
                     options.maximumMassDa, options.minimumCharge, options.maximumCharge, options.adduct},
                    options.otherCells);
    }
    return table;
}

bool validate(const QList<IntactOptions> &list, QStringList *errors, QStringList *warnings)
{
    QStringList foundErrors;
    QStringList foundWarnings;
    QSet<QString> names;
    for (qsizetype i = 0; i < list.size(); ++i) {
        foundErrors.append(Check(list.at(i), i).run());
        if (names.contains(list.at(i).name))
            foundWarnings.append(IntactOptionsUtilsTr::tr("The deconvolution options \"%1\" stand twice.")
                                     .arg(list.at(i).name));
        names.insert(list.at(i).name);
    }
    if (errors)
        errors->append(foundErrors);
    if (warnings)
        warnings->append(foundWarnings);
    return foundErrors.isEmpty();
}

} // namespace orv::IntactOptionsUtils
