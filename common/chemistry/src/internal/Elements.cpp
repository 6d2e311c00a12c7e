#include "Elements.h"

#include <QHash>

#include <pwiz/utility/chemistry/Chemistry.hpp>

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

QHash<QString, Element> readElements()
{
    QHash<QString, Element> elements;
    for (int type = Library::C; type <= Library::_3H; ++type) {
        const Element element = elementOf(Library::Info::record(static_cast<Library::Type>(type)));
        if (element.averageMassDa > 0.0)
            elements.insert(element.symbol, element);
    }
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
