#pragma once

#include <orv/widgets/Export.h>
#include <orv/widgets/QxtCheckComboBox.h>

#include <QVariant>

class KProperty;

namespace orv {

/// Edits a list of texts out of a list. What isn't among the entries isn't shown, and is left out with the
/// first change, which the row tells. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT CheckableListWidget : public QxtCheckComboBox
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)

public:
    /// The entries are the option "availableItems" of \a property, which isn't kept.
    CheckableListWidget(const KProperty &property, QWidget *parent);
    ~CheckableListWidget() override;

    /// What was set until a person checks or unchecks an entry, then the checked texts.
    [[nodiscard]] QVariant value() const;
    void setValue(const QVariant &value);

Q_SIGNALS:
    void commitData(QWidget *editor);

private:
    void takeChecked();

    QVariant m_value;
    QStringList m_leftOut;
    bool m_isBeingSet = false;
};

} // namespace orv
