#pragma once

#include "Check.h"

#include <orv/propertyeditor/validators/Finding.h>

#include <QHash>
#include <QJsonObject>

namespace orv::PropertyEditor {
class Content;
}

namespace orv::cli {

/// Turns the places that validators tell into places of the file.
class FindingPlaces
{
public:
    /// \a content was loaded from \a document, or from what that was turned into; both must outlive this.
    FindingPlaces(const PropertyEditor::Content &content, const QJsonObject &document);

    /// Tab, column, row, property, sample and pointer of the place, as far as they are known.
    [[nodiscard]] LocatedFinding locate(const PropertyEditor::FindingPlace &place) const;

private:
    struct Cell
    {
        int tab = 0;
        int column = 0;
        int row = 0;
        int number = 0; ///< in the tab's array of cells
        QString tabName;
        QString columnName;
    };

    [[nodiscard]] QString pointerOf(const Cell &cell, const PropertyEditor::FindingPlace &place) const;

    const QJsonObject &m_document;
    QHash<const PropertyEditor::BaseItem *, Cell> m_cells;
};

} // namespace orv::cli
