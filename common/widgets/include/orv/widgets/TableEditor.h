#pragma once

#include <orv/widgets/Export.h>
#include <orv/widgets/TableView.h>

#include <QWidget>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QToolBar)

namespace orv {

/// A table that people edit, with everything around it: a field that filters, the commands, a bar to find and
/// replace, import and export, and a line that says what was done and how many cells aren't allowed.
///
/// \code
///     TableSheet sheet(columns);
///     TableEditor editor(&sheet);
///     editor.setTitle(tr("Peptides"));
/// \endcode
/// GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TableEditor : public QWidget
{
    Q_OBJECT

public:
    /// Where \a sheet goes first, an empty one with its columns takes its place.
    explicit TableEditor(TableSheet *sheet, QWidget *parent = nullptr);
    ~TableEditor() override;

    [[nodiscard]] TableView *view() const;

    /// What the table holds, for screen readers.
    void setTitle(const QString &title);

    /// Tables of one \a kind remember widths, order and hidden columns from one run to the next.
    void setKind(const QString &kind);

    /// Shows the import of a file; what can't be read is told in a box.
    void importFile(const QString &path);
    /// Writes the shown rows: with commas where the name ends with ".csv", else with tabulators.
    void exportFile(const QString &path);

private:
    void build(TableSheet *sheet);
    [[nodiscard]] QToolBar *buildToolBar();
    void chooseImport();
    void importRead(const QString &path, const Result<QList<QStringList>> &read);
    void chooseExport();
    void applyFilter();
    void say(const QString &text);
    void showCounts();
    void countOn();
    void keepLayout();
    void restoreLayout();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
