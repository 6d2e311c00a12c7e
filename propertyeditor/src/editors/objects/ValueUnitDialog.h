#pragma once

#include <orv/propertyeditor/editors/IGenericEditorDialog.h>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QDoubleSpinBox)
class KProperty;

namespace orv {

/// Edits a number with its unit.
class ValueUnitDialog : public IGenericEditorDialog
{
    Q_OBJECT

public:
    /// The limits are the options "min" and "max" of \a property, which isn't kept.
    ValueUnitDialog(const KProperty &property, QWidget *parent);
    ~ValueUnitDialog() override;

    /// What was set, as long as nobody changed it.
    [[nodiscard]] QJsonObject data() const override;
    void setData(const QJsonObject &value) override;

private:
    QDoubleSpinBox *m_value;
    QComboBox *m_unit;
    QJsonObject m_data;
    double m_shownValue = 0;
    QString m_shownUnit;
};

} // namespace orv
