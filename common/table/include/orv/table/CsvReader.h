#pragma once

#include <orv/core/Export.h>
#include <orv/core/Result.h>

#include <QStringList>

#include <memory>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QIODevice)

namespace orv {

/// One row of a comma-separated text. A quoted field may hold line breaks, so rows and lines differ.
struct CsvRow
{
    qsizetype line = 0; ///< on which the row begins, counted from 1
    QStringList fields;
};

/// Reads comma-separated text (RFC 4180), or text with other signs in place of comma and quote, row by row,
/// so that a large file never stands in memory as a whole: \code
///     CsvReader reader(&file);
///     for (;;) {
///         Result<std::optional<CsvRow>> row = reader.next();
///         if (row.hasError())
///             return row.ecatch();
///         if (!row->has_value())
///             break;
///         use(**row);
///     }
/// \endcode
/// The text is UTF-8 with or without a byte order mark; lines end with LF, CR or both; blanks belong to their
/// field; a line without any character is no row. The header, if there is one, is a row like any other.
class ORV_WORKFLOW_EXPORT CsvReader
{
public:
    /// What a hostile file may make this program hold at a time.
    struct Limits
    {
        qsizetype fieldBytes = 1 << 20;
        qsizetype rowBytes = 8 << 20;
        qsizetype rowFields = 1 << 14;
    };

    /// What parts and encloses fields; both are ASCII and differ.
    struct Format
    {
        char separator = ',';
        char quote = '"';
    };

    /// \a device is open for reading and outlives the reader.
    explicit CsvReader(QIODevice *device);
    CsvReader(QIODevice *device, const Limits &limits);
    CsvReader(QIODevice *device, const Limits &limits, const Format &format);
    ~CsvReader();
    Q_DISABLE_COPY_MOVE(CsvReader)

    /// The next row, or nothing behind the last one. InvalidContent with the line as detail: a quote out of
    /// place or without its end, bytes that are no UTF-8, a field or row beyond the limits. CannotOpenFile:
    /// the device fails. After a failure every call gives the same one.
    [[nodiscard]] Result<std::optional<CsvRow>> next();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace orv
