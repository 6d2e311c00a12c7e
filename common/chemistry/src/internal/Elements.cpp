#include "Elements.h"

#include <QHash>

#include <array>

namespace orv::Internal {

namespace {

struct IsotopeRow
{
    const char *symbol;
    double monoisotopicMassDa;
    double averageMassDa;
    double massDa;
    double abundance;
};

constexpr IsotopeRow kIsotopes[] = {
#include "Isotopes.inc"
};

struct Weight
{
    const char *symbol;
    double averageMassDa;
};

// Standard atomic weights that were revised after the library's table: CIAAW, "Standard atomic weights", zinc
// 2007, selenium 2013, molybdenum 2012.
constexpr std::array kRevisedWeights = {Weight{"Zn", 65.38}, Weight{"Se", 78.971}, Weight{"Mo", 95.95}};

QHash<QString, Element> readElements()
{
    QHash<QString, Element> elements;
    for (const IsotopeRow &row : kIsotopes) {
        Element &element = elements[QLatin1String(row.symbol)];
        element.symbol = QLatin1String(row.symbol);
        element.monoisotopicMassDa = row.monoisotopicMassDa;
        element.averageMassDa = row.averageMassDa;
        element.isotopes.append({row.massDa, row.abundance});
    }
    for (const Weight &weight : kRevisedWeights)
        elements[QLatin1String(weight.symbol)].averageMassDa = weight.averageMassDa;
    elements.insert(QStringLiteral("D"), elements.value(QStringLiteral("_2H")));
    elements.insert(QStringLiteral("T"), elements.value(QStringLiteral("_3H")));
    return elements;
}

} // namespace

const Element *findElement(const QString &symbol)
{
    static const QHash<QString, Element> elements = readElements();
    const auto element = elements.constFind(symbol);
    return element == elements.cend() ? nullptr : &*element;
}

} // namespace orv::Internal
