#pragma once

#include <orv/samples/SamplesInput.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>

#include <QList>
#include <QStringList>
#include <QWidget>

#include <memory>

namespace orv {

class ScientificTableWidget;

/// Proteins or oligonucleotides built from chains: tables of chains, of the proteins made of them and of
/// further building blocks, with lengths and masses that follow while people type. FASTA can be pasted,
/// dropped and imported into the chains. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ProteinInputWidgetBase : public QWidget
{
    Q_OBJECT

public:
    /// Where the proteins come from. Stored in files, never renumber.
    enum ProteinDataSource : int
    {
        Typed = 0,
        Csv = 1, ///< of the table of samples and proteins
    };

    explicit ProteinInputWidgetBase(QWidget *parent = nullptr);
    ~ProteinInputWidgetBase() override;

    [[nodiscard]] static RowNode defaultRowNode();

    /// The source that a node names, Typed where it names none. It stands in a table "DataSource" beside the
    /// others, with the column "Source".
    [[nodiscard]] static int proteinDataSource(const RowNode &root);
    [[nodiscard]] int proteinDataSource() const;
    /// Any number is kept; those that aren't a ProteinDataSource show as their number.
    void setProteinDataSource(int source);

    /// The tables as ProteinGenerator::parseInputOptions() reads them; unedited, the node that was set.
    /// Masses of chains that were edited are those of their sequences.
    [[nodiscard]] RowNode getOptionsFromUI() const;
    /// Shows the tables of \a root in place of those before, so that the same content may be set again.
    void addFromRowNode(const RowNode &root);
    /// As before, with what a CSV file named; it may be a plain table of sequences. The history is forgotten.
    void loadFromCsv(const RowNode &root);

    void updateSamplesIds(const QList<SamplesInput::Entry> &entries);

    /// As ProteinUtils::validate(), and an error where the tables can't be read. The lists may be null, and
    /// are appended to.
    bool validate(QStringList *warnings, QStringList *errors) const;

    [[nodiscard]] ScientificTableWidget *chains() const;
    [[nodiscard]] ScientificTableWidget *proteins() const;
    [[nodiscard]] ScientificTableWidget *buildingBlocks() const;

    [[nodiscard]] QString toPlainText() const;

Q_SIGNALS:
    /// As ScientificTableWidget::edited().
    void edited();

private:
    void build();
    void followChains();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
