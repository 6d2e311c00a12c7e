#pragma once

#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>

#include <QDialog>

#include <memory>

namespace orv {

/// The theoretical peptides of a map: those that the digest of chosen proteins yields, made anew with every
/// change of proteins or enzyme, and those that were edited by hand. docs/formats.md lists the columns. GUI
/// thread.
///
///     InsilicoTableDialog dialog(proteins, disulfides, this);
///     dialog.setInsilicoPeptides(peptides);
///     if (DialogService::exec(dialog))
///         peptides = dialog.insilicoPeptides();
class ORV_PROPERTY_EDITOR_EXPORT InsilicoTableDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a proteins and \a disulfides are tables as their widgets give them.
    InsilicoTableDialog(const RowNode &proteins, const RowNode &disulfides, QWidget *parent = nullptr);
    ~InsilicoTableDialog() override;

    /// Further peptides of a digest are left out, which a line tells.
    static constexpr int kMostPeptides = 50'000;

    /// Unedited, the table that was set.
    [[nodiscard]] RowNode insilicoPeptides() const;
    /// Shows \a peptides in place of those before. They stay whatever is digested.
    void setInsilicoPeptides(const RowNode &peptides);

    [[nodiscard]] QString toPlainText() const;

private:
    void build(const RowNode &proteins);
    void digest();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
