#include "Elements.h"

#include <QHash>

#include <pwiz/utility/chemistry/Chemistry.hpp>

#include <array>

namespace orv::Internal {

namespace {

namespace Library = pwiz::chemistry::Element;

Element elementOf(const Library::Info::Record &record)
{
    Element element;
    element.symbol = QString::fromStdString(record.symbol);
    element.type = record.type;
    element.monoisotopicMassDa = record.monoisotope.mass;
    element.averageMassDa = record.atomicWeight;
    for (const pwiz::chemistry::MassAbundance &isotope : record.isotopes)
        element.isotopes.append({isotope.mass, isotope.abundance});
    return element;
}

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
    for (int type = Library::C; type <= Library::_3H; ++type) {
        const Element element = elementOf(Library::Info::record(static_cast<Library::Type>(type)));
        if (element.averageMassDa > 0.0)
            elements.insert(element.symbol, element);
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
