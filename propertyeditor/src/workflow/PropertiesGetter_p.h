#pragma once

#include <orv/propertyeditor/PropertiesGetter.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QJsonObject>
#include <QSet>

namespace orv {

class PropertiesGetter::Private
{
public:
    struct CellIndex
    {
        BaseItemType type = BaseItemType::Unknown;
        int row = 0;
        int column = 0;
        QJsonObject object;
    };

    static constexpr int kAllRows = -1;

    explicit Private(const PropertyEditorContent &document)
        : content(document)
    {}

    /// The cells of the columns whose first cell is of that type.
    QList<CellIndex> findCells(BaseItemType type, int row = kAllRows);
    CellData documentOf(const CellIndex &cell);
    void warn(const QString &text);

    PropertyEditorContent content;
    QStringList warnings;
};

} // namespace orv
