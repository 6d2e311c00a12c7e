#pragma once

#include <orv/core/Error.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>

#include <QWidget>

#include <memory>

namespace orv {

/// The table of samples and proteins with fields of their own, as it was imported from a text file. What
/// nobody edits comes back as it was set. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT CustomFieldsImportWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CustomFieldsImportWidget(QWidget *parent = nullptr);
    ~CustomFieldsImportWidget() override;

    /// The description of the columns: one row each, with its name, type and unit.
    [[nodiscard]] RowNode headerContent() const;
    void setHeaderContent(const RowNode &header);
    [[nodiscard]] RowNode tableContent() const;
    void setTableContent(const RowNode &table);

    /// Has the controller import a file, see CsvSamplesProteinsControllerConnector.
    void importCSV(const QString &path);

    /// Tells in the widget why something can't be had; an empty error takes that away.
    void showError(const Error &error);

    /// What the widget shows, for screen readers and reports.
    [[nodiscard]] QString plainText() const;

Q_SIGNALS:
    void importWanted(const QString &path);
    /// Somebody edited; comes as soon as the event has been handled, so that listeners may do anything.
    void contentChanged();

private:
    void build();
    void showTable();
    void showHeader();
    void chooseFile();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
