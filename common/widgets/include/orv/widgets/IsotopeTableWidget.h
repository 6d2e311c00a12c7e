#pragma once

#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <memory>

namespace orv {

/// Isotopes with which samples are enriched, beside their natural abundance. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT IsotopeTableWidget : public ScientificTableWidget
{
    Q_OBJECT

public:
    explicit IsotopeTableWidget(QWidget *parent = nullptr);
    ~IsotopeTableWidget() override;

    /// The table that IsotopeUtils::isotopesFromRowNode() reads; unedited, the one that was set. Rows that it
    /// refuses stand there, too, and are marked.
    [[nodiscard]] RowNode isotopeList() const;
    void setIsotopeList(const RowNode &isotopes);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
