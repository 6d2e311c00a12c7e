#pragma once

#include <orv/chemistry/InclusionList.h>
#include <orv/widgets/Export.h>

#include <QDialog>
#include <QList>

#include <memory>

namespace orv {

/// Edits the precursors to which a search is limited. It changes nothing itself: who shows it takes items()
/// when it is accepted. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT InclusionDialog : public QDialog
{
    Q_OBJECT

public:
    explicit InclusionDialog(QWidget *parent = nullptr);
    ~InclusionDialog() override;

    /// An item that nobody edited comes back as it was set.
    [[nodiscard]] QList<InclusionItem> items() const;
    void setItems(const QList<InclusionItem> &items);

    /// What the dialog shows, for screen readers and reports.
    [[nodiscard]] QString plainText() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
