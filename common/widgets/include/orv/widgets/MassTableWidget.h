#pragma once

#include <orv/chemistry/DeltaMass.h>
#include <orv/samples/SamplesInput.h>
#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <QList>
#include <QStringList>

#include <memory>

namespace orv {

/// Expected masses or differences of masses, in Da, with the tolerance within which they match. GUI thread.
///
///     MassTableWidget widget;
///     widget.setMasses(MassUtils::deltaMassesFromRowNode(table));
///     widget.setMassTolerance(tolerance);
class ORV_PROPERTY_EDITOR_EXPORT MassTableWidget : public ScientificTableWidget
{
    Q_OBJECT

public:
    explicit MassTableWidget(QWidget *parent = nullptr);
    ~MassTableWidget() override;

    /// In the order of the table, empty rows too. A text that is no mass is an unreadableMass.
    [[nodiscard]] QList<DeltaMass> masses() const;
    /// Replaces all rows. More text than a table holds is told in the note, and the old rows stay.
    void setMasses(const QList<DeltaMass> &masses);

    /// The table of one row that MassUtils::matchToleranceToRowNode() makes; unedited, the one that was set.
    [[nodiscard]] RowNode massTolerance() const;
    void setMassTolerance(const RowNode &tolerance);
    /// For a place whose masses have no tolerance; the one that was set stays.
    void setMassToleranceVisible(bool isVisible);

    /// The samples that rows may be for. Ids that aren't among them are marked.
    void updateSamplesIds(const QList<SamplesInput::Entry> &entries);

    /// As MassUtils::validate(). The lists may be null, and are appended to.
    static bool validate(const QList<DeltaMass> &masses, const QList<SamplesInput::Entry> &samples,
                         QStringList *errors, QStringList *warnings);

    [[nodiscard]] QString toPlainText() const override;

protected:
    MassTableWidget(const QString &title, const QString &kind, QWidget *parent);

private:
    struct Shared;
    class Private;

    MassTableWidget(const std::shared_ptr<Shared> &shared, const QString &title, const QString &kind,
                    QWidget *parent);
    void build();
    void takeTolerance();

    const std::unique_ptr<Private> d;
};

} // namespace orv
