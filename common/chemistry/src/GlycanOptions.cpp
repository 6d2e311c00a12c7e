#include "orv/chemistry/GlycanOptions.h"

#include "internal/GlycanColumns.h"
#include "internal/TableRows.h"
#include "internal/Tables.h"

#include <orv/chemistry/GlycanComposition.h>

#include <QCoreApplication>

#include <array>

namespace orv {

namespace {

namespace GlycanColumns = Internal::GlycanColumns;

struct KindName
{
    QLatin1String text;
    GlycanOptionKind kind;
};

constexpr std::array kKinds = {
    KindName{GlycanColumns::kMoiety, GlycanOptionKind::Moiety},
    KindName{GlycanColumns::kLabel, GlycanOptionKind::Label},
    KindName{GlycanColumns::kAdduct, GlycanOptionKind::Adduct},
    KindName{GlycanColumns::kDerivatization, GlycanOptionKind::Derivatization},
};

struct GlycanOptionsTr
{
    Q_DECLARE_TR_FUNCTIONS(GlycanOptions)
};

Error badGlycanOption(int row, const QString &reason)
{
    return Error(ErrorCode::InvalidContent, GlycanOptionsTr::tr("The table of glycan options can't be read."))
        .addDetail(GlycanOptionsTr::tr("Row %1: %2").arg(row + 1).arg(reason));
}

Error unknownPiece(QLatin1String kind, const QString &name)
{
    return Error(ErrorCode::InvalidContent, GlycanOptionsTr::tr("A glycan has no formula."))
        .addDetail(GlycanOptionsTr::tr("There is no %1 \"%2\" among the glycan options.").arg(kind, name));
}

} // namespace

Result<GlycanOptions> GlycanOptions::fromRowNode(const RowNode &table)
{
    const Internal::TableReader rows(table, {GlycanColumns::kKind, GlycanColumns::kName,
                                             GlycanColumns::kFormula, GlycanColumns::kComplete});
    GlycanOptions options;
    for (int i = 0; i < rows.rowCount(); ++i) {
        const QString kindText = rows.text(i, GlycanColumns::kKind).trimmed();
        const auto kind = std::find_if(kKinds.begin(), kKinds.end(),
                                       [&](const KindName &candidate) { return candidate.text == kindText; });
        if (kind == kKinds.end())
            return badGlycanOption(i, GlycanOptionsTr::tr("There is no kind \"%1\".").arg(kindText));
        GlycanOption option;
        option.kind = kind->kind;
        option.name = rows.text(i, GlycanColumns::kName).trimmed();
        if (option.name.isEmpty() || options.find(option.kind, option.name))
            return badGlycanOption(
                i, GlycanOptionsTr::tr("The name \"%1\" is empty or stands twice.").arg(option.name));
        Result<ChemicalFormula> formula = ChemicalFormula::parse(rows.text(i, GlycanColumns::kFormula));
        if (formula.hasError())
            return formula.ecatch().addDetail(
                GlycanOptionsTr::tr("It stands in row %1 of the glycan options.").arg(i + 1));
        option.formula = *formula;
        const QVariant complete = rows.cell(i, GlycanColumns::kComplete);
        option.complete = Internal::isEmptyCell(complete) || complete.toBool();
        option.otherCells = rows.otherCells(i);
        options.m_options.append(option);
    }
    return options;
}

RowNode GlycanOptions::toRowNode() const
{
    RowNode table = Internal::tableOf(
        {GlycanColumns::kKind, GlycanColumns::kName, GlycanColumns::kFormula, GlycanColumns::kComplete});
    Internal::TableWriter rows(&table);
    for (const GlycanOption &option : m_options) {
        const auto kind = std::find_if(kKinds.begin(), kKinds.end(),
                                       [&](const KindName &row) { return row.kind == option.kind; });
        rows.addRow({QString(kind->text), option.name, option.formula.toString(), option.complete},
                    option.otherCells);
    }
    return table;
}

QList<GlycanOption> GlycanOptions::ofKind(GlycanOptionKind kind) const
{
    QList<GlycanOption> options;
    std::copy_if(m_options.begin(), m_options.end(), std::back_inserter(options),
                 [&](const GlycanOption &option) { return option.kind == kind; });
    return options;
}

Result<ChemicalFormula> GlycanOptions::formula(const Glycan &glycan) const
{
    Result<GlycanComposition> composition = GlycanComposition::parse(glycan.composition);
    if (composition.hasError())
        return composition.ecatch();
    ChemicalFormula formula = ChemicalFormula::parse(QStringLiteral("H2O")).value();
    for (const GlycanComposition::Part &part : composition->parts()) {
        const GlycanOption *moiety = find(GlycanOptionKind::Moiety, part.moiety);
        if (!moiety)
            return unknownPiece(GlycanColumns::kMoiety, part.moiety);
        formula += moiety->formula * part.count;
    }
    if (!glycan.label.isEmpty()) {
        const GlycanOption *label = find(GlycanOptionKind::Label, glycan.label);
        if (!label)
            return unknownPiece(GlycanColumns::kLabel, glycan.label);
        formula += label->formula;
    }
    return formula;
}

const GlycanOption *GlycanOptions::find(GlycanOptionKind kind, const QString &name) const
{
    const auto option =
        std::find_if(m_options.cbegin(), m_options.cend(), [&](const GlycanOption &candidate) {
            return candidate.kind == kind && candidate.name == name;
        });
    return option == m_options.cend() ? nullptr : &*option;
}

} // namespace orv
