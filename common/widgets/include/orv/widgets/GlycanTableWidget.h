#pragma once

#include <orv/chemistry/GlycanOptions.h>
#include <orv/chemistry/GlycanTable.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <memory>

namespace orv {

/// Released glycans with the masses that follow from their compositions. Its model() is reset when another
/// table is set. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT GlycanTableWidget : public ScientificTableWidget
{
    Q_OBJECT

public:
    explicit GlycanTableWidget(QWidget *parent = nullptr);
    ~GlycanTableWidget() override;

    /// In the order of the rows. A cell whose text can't be read back leaves what was set
    /// before; it is marked.
    [[nodiscard]] GlycanTable table() const;
    void setTable(const GlycanTable &table);

    /// The pieces by which masses are calculated, at first those of
    /// DetachedGlycanUtils::defaultOptionsRowNode().
    void setGlycanOptions(const GlycanOptions &options);

private:
    struct Shared;
    class Private;

    GlycanTableWidget(const std::shared_ptr<Shared> &shared, QWidget *parent);

    const std::unique_ptr<Private> d;
};

} // namespace orv
