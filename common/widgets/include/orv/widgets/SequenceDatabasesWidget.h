#pragma once

#include <orv/samples/SequenceDatabaseItem.h>
#include <orv/widgets/Export.h>

#include <QList>
#include <QUrl>
#include <QWidget>

#include <memory>

namespace orv {

/// The FASTA files that a search reads, as a table that people edit. Whether they exist is asked in the
/// background. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT SequenceDatabasesWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SequenceDatabasesWidget(QWidget *parent = nullptr);
    ~SequenceDatabasesWidget() override;

    /// A row that nobody edited comes back as it was set.
    [[nodiscard]] QList<SequenceDatabaseItem> items() const;
    void setItems(const QList<SequenceDatabaseItem> &items);

    /// The folder that relative files count from.
    void setBaseUrl(const QUrl &baseUrl);

    /// What the widget shows, for screen readers and reports.
    [[nodiscard]] QString plainText() const;

Q_SIGNALS:
    /// Somebody edited; comes as soon as the event has been handled, so that listeners may do anything.
    void itemsChanged();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
