#pragma once

#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/propertyeditor/validators/Finding.h>

#include <QList>
#include <QSet>
#include <QString>

namespace orv::PropertyEditor {

class Content;
class KeyValueItem;

/// Appends \a text to \a list, which must be there, and notes where it belongs and what to do.
void report(QList<QString> *list, const QString &text, const FindingPlace &place, const QString &hint);

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
