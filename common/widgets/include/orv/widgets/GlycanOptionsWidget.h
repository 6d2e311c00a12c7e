#pragma once

#include <orv/chemistry/GlycanOptions.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <memory>

namespace orv {

/// The monosaccharides, labels, adducts and derivatisations from which masses of glycans are calculated. GUI
/// thread.
class ORV_PROPERTY_EDITOR_EXPORT GlycanOptionsWidget : public ScientificTableWidget
{
    Q_OBJECT

public:
    explicit GlycanOptionsWidget(QWidget *parent = nullptr);
    ~GlycanOptionsWidget() override;

    /// In the order of the rows. A formula that can't be read leaves the one that was set. Rows that a reader
    /// would refuse, without name or with one that their kind has already, are left out, which the note
    /// tells.
    [[nodiscard]] GlycanOptions options() const;
    void setOptions(const GlycanOptions &options);

private:
    void tellLeftOut();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
