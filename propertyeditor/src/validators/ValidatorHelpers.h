#pragma once

#include <orv/propertyeditor/content/BaseItemType.h>

#include <QList>
#include <QSet>
#include <QString>

namespace orv::PropertyEditor {

class Content;
class KeyValueItem;

/// A cell of settings, and the type of the column that it stands in.
struct ColumnSettings
{
    BaseItemType columnType;
    const KeyValueItem *item;
};

/// The cells of settings in all columns of these types, in tree order.
[[nodiscard]] QList<ColumnSettings> settingsInColumns(const Content &content,
                                                      const QSet<BaseItemType> &types);

/// What to do in a workflow without samples.
[[nodiscard]] QString addSamplesHint();

} // namespace orv::PropertyEditor
