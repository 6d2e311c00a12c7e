#include "orv/propertyeditor/grid/PropertySelectionDialog.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/AllowedProperties.h>
#include <orv/propertyeditor/PropertiesNames.h>
#include <orv/propertyeditor/PropertySetCreator.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QStandardItemModel>

namespace orv {

namespace {

QStandardItem *itemOf(const QComboBox &combo, int row)
{
    auto *model = qobject_cast<QStandardItemModel *>(combo.model());
    return model ? model->item(row) : nullptr;
}

/// A combo box with its label in the next row of \a grid.
QComboBox *addCombo(QGridLayout *grid, const QString &label, const QString &name, QWidget *parent)
{
    auto *combo = new QComboBox(parent);
    combo->setObjectName(name);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto *text = new QLabel(label, parent);
    text->setBuddy(combo);
    const int row = grid->rowCount();
    grid->addWidget(text, row, 0);
    grid->addWidget(combo, row, 1);
    return combo;
}

} // namespace

PropertySelectionDialog::PropertySelectionDialog(int mode, BaseItemType documentType, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("PropertySelectionDialog"));
    setWindowTitle(mode == 0 ? tr("Add a property") : tr("Modify property"));
    buildForm();
    connect(m_properties, &QComboBox::currentTextChanged, this, [this](const QString &text) {
        m_buttons->button(QDialogButtonBox::Ok)->setEnabled(!text.isEmpty());
    });
    fillPropertyComboBox(documentType);
    fillPriorityComboBox();
}

PropertySelectionDialog::~PropertySelectionDialog() = default;

void PropertySelectionDialog::buildForm()
{
    auto *outer = new QGridLayout(this);
    outer->setObjectName(QStringLiteral("gridLayout_2"));
    auto *grid = new QGridLayout;
    grid->setObjectName(QStringLiteral("gridLayout"));
    grid->setColumnStretch(1, 1);
    outer->addLayout(grid, 0, 0);
    m_properties = addCombo(grid, tr("Property:"), QStringLiteral("comboProperty"), this);
    m_groups = addCombo(grid, tr("Group:"), QStringLiteral("comboGroup"), this);
    m_groups->setEditable(true);
    m_groups->setInsertPolicy(QComboBox::NoInsert);
    m_priorities = addCombo(grid, tr("Priority:"), QStringLiteral("comboPriority"), this);
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_buttons->setObjectName(QStringLiteral("buttonBox"));
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(false);
    outer->addWidget(m_buttons, 1, 0);
    outer->setRowStretch(2, 1);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void PropertySelectionDialog::fillPropertyComboBox(BaseItemType documentType)
{
    for (PropertyId id : allowedProperties(documentType)) {
        if (PropertiesNames::valueTypeNameOfPropertyType(id).isEmpty()) {
            qCDebug(propertyEditorLog).noquote()
                << "Type name is empty for" << PropertiesNames::internalNameForType(id) << "so ignoring";
            continue;
        }
        m_properties->addItem(PropertiesNames::displayNameForType(id), int(id));
    }
    m_properties->model()->sort(0, Qt::AscendingOrder);
    for (int row = 0; row < m_properties->count(); ++row) {
        const QString help = PropertiesNames::tooltipForType(PropertyId(m_properties->itemData(row).toInt()));
        m_properties->setItemData(row, help, Qt::ToolTipRole);
    }
    m_properties->setCurrentIndex(m_properties->count() > 0 ? 0 : -1);
}

void PropertySelectionDialog::fillPriorityComboBox()
{
    using Priority = PropertySetCreator::Priority;
    m_priorities->addItem(tr("High"), int(Priority::High));
    m_priorities->addItem(tr("Medium"), int(Priority::Medium));
    m_priorities->addItem(tr("Low"), int(Priority::Low));
}

void PropertySelectionDialog::enableProperties(const QList<QByteArray> &names, bool enabled)
{
    if (names.isEmpty())
        return;
    if (!qobject_cast<QStandardItemModel *>(m_properties->model())) {
        qCWarning(propertyEditorLog) << "Cannot get the properties model from the combobox";
        return;
    }
    QSet<int> ids;
    for (const QByteArray &name : names)
        ids.insert(int(PropertiesNames::findPropertyForName(QString::fromUtf8(name))));
    int firstEnabled = -1;
    for (int row = 0; row < m_properties->count(); ++row) {
        QStandardItem *item = itemOf(*m_properties, row);
        if (ids.contains(m_properties->itemData(row).toInt()))
            item->setEnabled(enabled);
        if (firstEnabled < 0 && item->isEnabled())
            firstEnabled = row;
    }
    m_properties->setCurrentIndex(firstEnabled);
}

void PropertySelectionDialog::setGroups(const QStringList &captions)
{
    QStringList sorted = captions;
    sorted.sort(Qt::CaseInsensitive);
    m_groups->clear();
    m_groups->addItems(sorted);
}

QString PropertySelectionDialog::group() const
{
    return m_groups->currentText();
}

void PropertySelectionDialog::setGroup(const QString &caption)
{
    m_groups->setCurrentText(caption);
}

int PropertySelectionDialog::priority() const
{
    const QVariant priority = m_priorities->currentData();
    return priority.isValid() ? priority.toInt() : int(PropertySetCreator::Priority::Unset);
}

void PropertySelectionDialog::setPriority(int priority)
{
    m_priorities->setCurrentIndex(m_priorities->findData(priority));
}

PropertyId PropertySelectionDialog::propertyId() const
{
    const QVariant id = m_properties->currentData();
    return id.isValid() ? PropertyId(id.toInt()) : PropertyId::NoProperty;
}

void PropertySelectionDialog::setPropertyId(PropertyId id)
{
    m_properties->setCurrentIndex(m_properties->findData(int(id)));
}

} // namespace orv
