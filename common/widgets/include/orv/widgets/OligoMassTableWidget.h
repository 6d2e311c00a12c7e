#pragma once

#include <orv/chemistry/OligoImpurities.h>
#include <orv/widgets/MassTableWidget.h>

#include <array>

namespace orv {

class TolerancesWidget;
class UnitField;

/// Masses of oligonucleotides, with the tolerances and the impurities that are looked for. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT OligoMassTableWidget : public MassTableWidget
{
    Q_OBJECT

public:
    explicit OligoMassTableWidget(QWidget *parent = nullptr);
    ~OligoMassTableWidget() override;

    [[nodiscard]] TolerancesWidget *tolerancesWidget() const;

    /// What was set, with what was edited. A field that holds no count leaves the one that was set.
    [[nodiscard]] OligoImpurities oligoImpurities() const;
    void setOligoImpurities(const OligoImpurities &impurities);

    [[nodiscard]] QString toPlainText() const override;

private:
    void build();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
