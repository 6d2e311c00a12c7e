#include "orv/propertyeditor/editors/CheckableListWidget.h"

#include <KProperty.h>
#include <KPropertyEditorView.h>
#include <KPropertyUtils.h>

#include <QPointer>
#include <QScopedValueRollback>

namespace orv {

CheckableListWidget::CheckableListWidget(const KProperty &property, QWidget *parent)
    : QxtCheckComboBox(parent)
{
    setSeparator(property.option("displaySeparator").toString());
    addItems(property.option("availableItems").toStringList());
    setCurrentIndex(-1);
    setValue(property.value());
    connect(this, &QxtCheckComboBox::checkedItemsChanged, this, &CheckableListWidget::takeChecked);
}

CheckableListWidget::~CheckableListWidget() = default;

QVariant CheckableListWidget::value() const
{
    return m_value;
}

void CheckableListWidget::setValue(const QVariant &value)
{
    const QScopedValueRollback quiet(m_isBeingSet, true);
    m_value = value;
    m_leftOut.clear();
    setCheckedItems(value.toStringList());
}

void CheckableListWidget::takeChecked()
{
    if (m_isBeingSet)
        return;
    for (const QString &text : m_value.toStringList()) {
        if (findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0 && !m_leftOut.contains(text))
            m_leftOut.append(text);
    }
    m_value = checkedItems();
    const QPointer<CheckableListWidget> self(this);
    Q_EMIT commitData(this);
    KPropertyEditorView *view = self ? KPropertyUtils::viewForEditor(this) : nullptr;
    if (view && !m_leftOut.isEmpty())
        view->setRemark(this, tr("Left out, since it is no entry of the list: %1. Undo brings it back.")
                                  .arg(m_leftOut.join(QStringLiteral(", "))));
}

} // namespace orv
