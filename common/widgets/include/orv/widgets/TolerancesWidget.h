#pragma once

#include <orv/chemistry/MassTolerances.h>
#include <orv/widgets/Export.h>

#include <QWidget>

namespace orv {

class UnitField;

/// Within which differences masses are assigned to an oligonucleotide and to its impurities, in Dalton or
/// ppm. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT TolerancesWidget : public QWidget
{
    Q_OBJECT

public:
    explicit TolerancesWidget(QWidget *parent = nullptr);

    /// What was set, with what was edited. A field that holds no tolerance leaves the one that was set.
    [[nodiscard]] MassTolerances data() const;
    void setData(const MassTolerances &tolerances);

    /// What a field that holds no tolerance is told, empty for none.
    [[nodiscard]] QString problem() const;
    [[nodiscard]] QString toPlainText() const;

Q_SIGNALS:
    /// Comes from the event loop.
    void edited();

private:
    MassTolerances m_data;
    UnitField *m_product = nullptr;
    UnitField *m_impurities = nullptr;
};

} // namespace orv
