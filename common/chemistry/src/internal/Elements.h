#pragma once

#include <QList>
#include <QString>

namespace orv::Internal {

/// What ProteoWizard knows of an element or of a single isotope.
struct Element
{
    struct Isotope
    {
        double massDa = 0.0;
        double abundance = 0.0; ///< in nature, from 0 to 1
    };

    QString symbol;
    double monoisotopicMassDa = 0.0; ///< of the most abundant isotope
    double averageMassDa = 0.0;
    QList<Isotope> isotopes;
};

/// Null for a symbol that is no element, or one whose mass isn't known.
[[nodiscard]] const Element *findElement(const QString &symbol);

} // namespace orv::Internal
