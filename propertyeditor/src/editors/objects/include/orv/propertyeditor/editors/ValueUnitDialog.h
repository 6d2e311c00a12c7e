#pragma once

#include <orv/propertyeditor/editors/IGenericEditorDialog.h>

QT_FORWARD_DECLARE_CLASS(QComboBox)
class KProperty;
class KPropertyDoubleSpinBox;

namespace orv {

/// Edits a number with its unit.
class ORV_PROPERTY_EDITOR_EXPORT ValueUnitDialog : public IGenericEditorDialog
{
    Q_OBJECT

public:
    /// The limits are the options "min" and "max" of \a property, which isn't kept.
    ValueUnitDialog(const KProperty &property, QWidget *parent);
    ~ValueUnitDialog() override;

    /// What was set, as long as nobody changed it.
    [[nodiscard]] QJsonObject data() const override;
    void setData(const QJsonObject &value) override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    KPropertyDoubleSpinBox *m_value;
    QComboBox *m_unit;
    QJsonObject m_data;
    double m_shownValue = 0;
    int m_shownUnit = 0;
};

} // namespace orv
