#pragma once

#include <orv/table/RowNode.h>
#include <orv/widgets/Export.h>
#include <orv/widgets/ScientificTableWidget.h>

#include <QStringList>

#include <memory>

namespace orv {

/// Disulfide bonds as a table and as bows between the cysteines of the sequences, which a click on two of
/// them draws. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT DisulfideWidget : public ScientificTableWidget
{
    Q_OBJECT

public:
    explicit DisulfideWidget(QWidget *parent = nullptr);
    ~DisulfideWidget() override;

    /// The table of bonds with the columns of DisulfideUtils::defaultRowNode(); unedited, the one that was
    /// set.
    [[nodiscard]] RowNode getOptionsFromUI() const;
    void setOptionsToUI(const RowNode &bonds);

    /// The sequences between which bonds are, as a table of proteins. Bonds stay, also those that are not
    /// possible in these.
    void setProteinData(const RowNode &proteins);

    /// As DisulfideUtils::validate(), where a table that can't be read is a warning, too. Nothing is wrong
    /// with bonds while there are no proteins at all. \a warnings may be null.
    bool validate(QStringList *warnings) const;

    /// Between the two nobody hears of changes; the last one tells of all.
    void beginPresetLoading();
    void endPresetLoading();

    [[nodiscard]] QString toPlainText() const override;

Q_SIGNALS:
    /// As contentChanged(), but for the loading of presets.
    void disulfideDataChanged();

private:
    struct Shared;
    class Private;

    DisulfideWidget(const std::shared_ptr<Shared> &shared, QWidget *parent);
    void build();
    void draw();
    void addBond(const QString &firstChain, int first, const QString &secondChain, int second);

    const std::unique_ptr<Private> d;
};

} // namespace orv
