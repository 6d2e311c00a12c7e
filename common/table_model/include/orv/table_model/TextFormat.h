#pragma once

#include <orv/core/Export.h>
#include <orv/table_model/NumberText.h>
#include <orv/table_model/TableColumn.h>

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace orv {

enum class TextEncoding
{
    Utf8,
    Utf16LittleEndian,
    Utf16BigEndian,
    Windows1252, ///< what spreadsheets on Windows write; holds Latin-1
};

/// How a text file holds a table. A plain value.
struct TableTextFormat
{
    TextEncoding encoding = TextEncoding::Utf8;
    char separator = ',';
    char quote = '"';
    bool hasHeader = true;
    NumberText::DecimalSign decimalSign = NumberText::DecimalSign::Point;

    friend bool operator==(const TableTextFormat &, const TableTextFormat &) = default;
};

/// Finds out how a file holds a table. Any thread.
namespace TextFormat {

/// By the marks at the beginning, zero bytes, and whether everything is UTF-8.
[[nodiscard]] ORV_WORKFLOW_EXPORT TextEncoding encodingOf(const QByteArray &bytes);

/// Nothing for bytes that the encoding doesn't have.
[[nodiscard]] ORV_WORKFLOW_EXPORT std::optional<QString> decoded(const QByteArray &bytes,
                                                                 TextEncoding encoding);

/// The format under which the beginning of \a bytes is the most regular table; headers of \a columns tell.
[[nodiscard]] ORV_WORKFLOW_EXPORT TableTextFormat detected(const QByteArray &bytes,
                                                           const QList<TableColumn> &columns);

} // namespace TextFormat

} // namespace orv
