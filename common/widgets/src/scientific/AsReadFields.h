#pragma once

#include <orv/table_model/RecordSheet.h>
#include <orv/table_model/RowNodeBinding.h>

namespace orv {

/// A text member of a record whose cell may hold something else, which is shown as it was read.
template<typename Record>
[[nodiscard]] RecordField<Record> textFieldOf(const QString &column, QString Record::*member)
{
    return {column,
            [column, member](const Record &record) {
                return (record.*member).isEmpty() ? RowNodeBinding::textOf(record.cellsAsRead.value(column))
                                                  : record.*member;
            },
            [column, member](Record *record, const QString &text) {
                record->*member = text;
                record->cellsAsRead.remove(column);
            }};
}

} // namespace orv
