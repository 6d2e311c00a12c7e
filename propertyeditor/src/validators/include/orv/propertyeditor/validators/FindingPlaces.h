#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/validators/Finding.h>

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace orv::PropertyEditor {

class Content;

/// A place of a finding by the names and numbers that people and programs find it by. What isn't known is
/// empty.
struct ORV_WORKFLOW_EXPORT NamedPlace
{
    QString tab;
    QString column;
    std::optional<int> row; ///< counted from 0
    QString property;       ///< internal name
    QString sample;
    QString pointer; ///< JSON pointer into the document
};

/// Turns the places that validators tell into names and into places of the file. Each cell is looked through
/// once, however many findings it has.
class ORV_WORKFLOW_EXPORT FindingPlaces
{
public:
    /// \a content was loaded from \a document, or from what that was turned into, and must outlive this.
    /// There are no pointers without a document.
    explicit FindingPlaces(const Content &content, const QJsonObject &document = {});

    [[nodiscard]] NamedPlace named(const FindingPlace &place);

private:
    /// An entry of a cell's "properties".
    struct Entry
    {
        QString pointer;                ///< of its value, as far as it has one
        QStringList samples;            ///< names, row by row
        QHash<QString, qsizetype> rows; ///< by name, the first of a name
    };
    using Entries = QHash<PropertyId, Entry>;

    struct Cell
    {
        int tab = 0;
        int row = 0;
        int number = 0; ///< in the tab's array of cells
        QString tabName;
        QString columnName;
        std::optional<Entries> entries = {}; ///< read when they are first asked for
    };

    [[nodiscard]] static std::optional<qsizetype> rowOf(const FindingPlace &place, const Entry &entry);
    [[nodiscard]] static Entry entryOf(const QJsonObject &json, const QString &pointer);
    [[nodiscard]] Entries entriesOf(const Cell &cell, const BaseItem &item, const QString &pointer) const;
    [[nodiscard]] QString pointerOf(Cell &cell, const FindingPlace &place) const;

    const QJsonObject m_document;
    QHash<const BaseItem *, Cell> m_cells;
};

} // namespace orv::PropertyEditor
