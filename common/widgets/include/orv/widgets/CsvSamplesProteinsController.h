#pragma once

#include <orv/core/Result.h>
#include <orv/samples/SamplePathAndName.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>

#include <QList>
#include <QMap>
#include <QObject>
#include <QVariant>

#include <functional>
#include <memory>

namespace orv {

/// Imports a text file that describes samples and their proteins: tells the proteins and the files of samples
/// that it names, and makes the table of all its columns. Needs no screen. GUI thread.
///
/// Columns go by their headers, whatever their case, blanks and underscores: "Sample Name" and "Sample Path",
/// "Protein Name", "Protein Alias" and "Protein Sequence". All others are fields of the samples. Relative
/// paths count from the file's folder.
class ORV_PROPERTY_EDITOR_EXPORT CsvSamplesProteinsController : public QObject
{
    Q_OBJECT

public:
    /// Gets the values of each column by its header; false stops the import, and nothing has changed.
    using PreFlightCheck = std::function<bool(QMap<QString, QList<QVariant>> columns)>;
    /// Is asked when everything has been told; its error is told, and the import stays.
    using PostFlightCheck = std::function<Error()>;

    explicit CsvSamplesProteinsController(QObject *parent = nullptr);
    ~CsvSamplesProteinsController() override;

    void setCsvImportExtraPreFlightCheck(PreFlightCheck check);
    void setCsvImportExtraPostFlightCheck(PostFlightCheck check);

    /// The values are as texts. Errors, which are also told by importFailed(): CannotOpenFile, and
    /// InvalidContent for a file that isn't a table with a header, and for two columns of one name.
    Error importCSV(const QString &path);

Q_SIGNALS:
    /// The table as the value of the samples and proteins has it: one row for each column, with its name,
    /// type and unit.
    void headerImported(const orv::RowNode &header);
    void tableImported(const orv::RowNode &table);
    /// A table of proteins, each once, in the order of the file. Not sent without any.
    void newProteinsDetected(const orv::RowNode &proteins);
    /// Not sent without any.
    void newFilePathsDetected(const QList<orv::SamplePathAndName> &files);
    void importFailed(const orv::Error &error);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
