#include "FormChecks.h"

#include <orv/chemistry/ChemicalFactory.h>
#include <orv/chemistry/ChemicalFormula.h>
#include <orv/chemistry/GlycanComposition.h>
#include <orv/chemistry/InclusionList.h>
#include <orv/chemistry/ProteinAutoPopulateOptions.h>
#include <orv/chemistry/ProteinDigestionItem.h>

#include <cmath>

using namespace orv;
using namespace Qt::StringLiterals;

namespace FormChecks {

namespace {

/// What is read is written as a text that reads back equal.
template<typename T>
bool readsBack(const Result<T> &value, Result<T> (*read)(const QString &))
{
    if (value.hasError())
        return !value.error().details().isEmpty();
    const Result<T> again = read(value->toString());
    return !again.hasError() && *again == *value;
}

QString checkSequence(const QString &text)
{
    for (ChainType type : {ChainType::Protein, ChainType::Dna, ChainType::Rna}) {
        const Result<ChemicalFormula> formula = ChemicalFactory::defaultFactory().formula(text, type);
        if (formula.hasError() ? formula.error().details().isEmpty() : !(formula->monoisotopicMass() > 0.0))
            return u"a sequence without mass or place of its fault"_s;
    }
    return {};
}

QString checkInclusionList(const QString &text)
{
    const QJsonObject object = InclusionList::toJson(text);
    const QString written = InclusionList::toString(object);
    const QJsonObject again = InclusionList::toJson(written);
    if (again != object)
        return u"an inclusion list reads back as another"_s;
    const Result<QList<InclusionItem>> items = InclusionList::toVector(object);
    if (!items.hasError() && InclusionList::toJson(*items) != object)
        return u"an inclusion list loses something in its items"_s;
    return {};
}

} // namespace

QString checkChemistry(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const Result<ChemicalFormula> formula = ChemicalFormula::parse(text);
    if (!readsBack<ChemicalFormula>(formula, ChemicalFormula::parse))
        return u"a formula reads back as another"_s;
    if (!formula.hasError() && !std::isfinite(formula->averageMass()))
        return u"a formula without mass"_s;
    if (!readsBack<GlycanComposition>(GlycanComposition::parse(text), GlycanComposition::parse))
        return u"a composition reads back as another"_s;
    if (!readsBack<ProteinAutoPopulateOptions>(ProteinAutoPopulateOptions::fromString(text),
                                               ProteinAutoPopulateOptions::fromString))
        return u"a name of combined proteins reads back as another"_s;
    const Result<ProteinDigestionItem> rule = ProteinDigestionItem::parse(text);
    if (!readsBack<ProteinDigestionItem>(rule, ProteinDigestionItem::parse))
        return u"a digestion rule reads back as another"_s;
    if (!rule.hasError() && rule->digest(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s).hasError())
        return u"a digestion rule that can't digest"_s;
    const QString wrong = checkSequence(text);
    return wrong.isEmpty() ? checkInclusionList(text) : wrong;
}

} // namespace FormChecks
