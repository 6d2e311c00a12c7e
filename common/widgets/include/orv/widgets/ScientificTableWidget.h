#pragma once

#include <orv/table_model/TableSheet.h>
#include <orv/widgets/Export.h>

#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QVBoxLayout)

namespace orv {

class TableEditor;
class TableModel;
class TableView;

/// A table of one kind of scientific rows, with its heading and a line that tells what it can't show. GUI
/// thread.
class ORV_PROPERTY_EDITOR_EXPORT ScientificTableWidget : public QWidget
{
    Q_OBJECT

public:
    /// \a kind is that of TableEditor::setKind().
    ScientificTableWidget(QList<TableColumn> columns, const QString &title, const QString &kind,
                          QWidget *parent = nullptr);
    ~ScientificTableWidget() override;

    [[nodiscard]] TableSheet *sheet() const;
    [[nodiscard]] TableEditor *editor() const;
    [[nodiscard]] TableView *view() const;
    [[nodiscard]] TableModel *model() const;

    void setTitle(const QString &title);
    /// For a place that has a heading of its own.
    void hideHeader();

    /// Everything that is shown as lines of text, as a screen reader says it.
    [[nodiscard]] virtual QString toPlainText() const;
    /// The rows that a model shows, each cell behind the title of its column, and what is wrong with it.
    [[nodiscard]] static QString textOf(const TableModel &model);

    /// What the widget holds and can't show, empty for nothing.
    [[nodiscard]] QString note() const;
    void setNote(const QString &text);
    /// Tells why a table wasn't taken, or else what of it isn't shown.
    void noteLoad(const Error &error, const QString &unshown = {});

Q_SIGNALS:
    /// What the widget holds isn't what it held, by a person's hand or a load. Comes from the event loop,
    /// once for all changes before it, so that a listener may do anything, even destroy the widget.
    void contentChanged();
    /// The same behind it, for what a person did.
    void edited();

protected:
    /// Takes the place between heading and table, and below the table.
    void insertAbove(QWidget *widget);
    void insertBelow(QWidget *widget);
    /// Emits both signals from the event loop.
    void tellEdited();
    /// Emits contentChanged() alone from the event loop.
    void tellChanged();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
