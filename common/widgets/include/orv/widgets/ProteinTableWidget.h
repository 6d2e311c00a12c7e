#pragma once

#include <orv/chemistry/ProteinAnnotationEntry.h>
#include <orv/chemistry/ProteinDigestionItem.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <QHash>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

namespace orv {

class ExtendedTreeView;
class ProteinTreeTable;
struct ProteinTableShared;

/// Proteins with their sequences, and what follows from these while they are typed: masses, length, formula,
/// and the digest of the enzyme above the table. Below it stands the sequence of the current row with marks,
/// and the peptides as a tree. FASTA can be pasted, dropped and imported. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ProteinTableWidget : public ScientificTableWidget
{
    Q_OBJECT

public:
    explicit ProteinTableWidget(QWidget *parent = nullptr);
    ~ProteinTableWidget() override;

    /// As ProteinTreeTable::rowNode().
    [[nodiscard]] RowNode rowNode() const;
    /// Shows the rows of \a table in place of those before, so that the same content may be set again.
    void addFromRowNode(const RowNode &table);

    [[nodiscard]] ProteinTreeTable *proteinTreeTable() const;
    [[nodiscard]] ExtendedTreeView *getExtendedTreeView() const;

    /// Whether sequences are those of oligonucleotides, which have no digest by an enzyme of proteins.
    void setAsDigestedOligoProject(bool isOligo);
    /// Of the column with average masses, which is hidden at first.
    void setAverageMassVisible(bool isVisible);
    /// Whether each sequence needs a mass. Letters that stand for several amino acids are problems then; a
    /// search of peptides takes them, which is so at first.
    void setFastaCheckerRule(bool isMassNeeded);
    /// Makes columns as wide as they need.
    void adjustHeaderSize();
    /// Shows the columns that make sense for what was set above.
    void updateColumnsVisibility();

    [[nodiscard]] std::optional<ProteinDigestionItem> digestRule() const;
    [[nodiscard]] DigestionLimits digestLimits() const;

    /// Sequences without blanks by the names of their proteins: accession, or else alias.
    [[nodiscard]] QHash<QString, QString> sequences() const;
    /// Stretches that are marked in the sequence of their protein.
    void showAnnotations(const QList<ProteinAnnotationEntry> &annotations);

    [[nodiscard]] QString toPlainText() const override;

Q_SIGNALS:
    /// As contentChanged(); others may emit it, too, to have everybody look at the proteins again.
    void proteinsChanged();

private:
    ProteinTableWidget(const std::shared_ptr<ProteinTableShared> &shared, QWidget *parent);
    void build();
    void showCurrent();
    void takeDigest();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
