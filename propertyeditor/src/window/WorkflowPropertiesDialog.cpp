#include "orv/propertyeditor/window/WorkflowPropertiesDialog.h"

#include <orv/core/Logging.h>
#include <orv/propertyeditor/content/PropertyEditorStringConstants.h>
#include <orv/propertyeditor/window/WorkflowIcons.h>
#include <orv/propertyeditor/workflow/WflwMetaData.h>
#include <orv/widgets/ChoiceBox.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace orv {

namespace {

template<class Widget>
Widget *named(const char *name, QWidget *parent)
{
    auto *widget = new Widget(parent);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

/// \a icon as a list shows it: at rest, and where the pointer is.
QIcon listIcon(const QIcon &icon, const QSize &size)
{
    QIcon shown(icon.pixmap(size, QIcon::Normal));
    // Where the list looks like a menu, the entry under the pointer is active, not selected.
    for (const QIcon::Mode mode : {QIcon::Selected, QIcon::Active})
        shown.addPixmap(icon.pixmap(size, QIcon::Selected), mode);
    return shown;
}

} // namespace

WorkflowPropertiesDialog::WorkflowPropertiesDialog(const QJsonObject &metadata, QWidget *parent)
    : QDialog(parent)
    , m_metadata(metadata)
{
    setObjectName(QStringLiteral("WorkflowPropertiesDialog"));
    setWindowTitle(tr("Workflow Properties"));
    buildForm();
    fillIcons();
    fillTypes();
    updateDesignerModeFeatures(false);
}

void WorkflowPropertiesDialog::buildForm()
{
    m_name = named<QLineEdit>("lineName", this);
    m_description = named<QPlainTextEdit>("plainTextDescription", this);
    m_icons = named<ChoiceBox>("comboIcons", this);
    m_typeLabel = named<QLabel>("labelType", this);
    m_types = named<ChoiceBox>("comboTypes", this);
    m_versionLabel = named<QLabel>("labelVersionTitle", this);
    m_version = named<QLabel>("labelVersion", this);
    m_typeLabel->setText(tr("Type:"));
    m_typeLabel->setBuddy(m_types);
    m_versionLabel->setText(tr("Version:"));
    m_description->setTabChangesFocus(true);
    m_version->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    m_name->setText(WflwMetaData::nameFromMetaDataObject(m_metadata));
    m_description->setPlainText(WflwMetaData::descriptionFromMetaDataObject(m_metadata));
    m_shownName = m_name->text();
    m_shownDescription = m_description->toPlainText();
    m_version->setTextFormat(Qt::PlainText);
    m_version->setText(WflwMetaData::versionFromMetaDataObject(m_metadata));

    auto *form = new QFormLayout;
    form->addRow(tr("Name:"), m_name);
    form->addRow(tr("Description:"), m_description);
    form->addRow(tr("Icon:"), m_icons);
    form->addRow(m_typeLabel, m_types);
    form->addRow(m_versionLabel, m_version);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    connect(buttons, &QDialogButtonBox::accepted, this, &WorkflowPropertiesDialog::acceptDialog);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

void WorkflowPropertiesDialog::fillIcons()
{
    const QHash<QString, QIcon> &icons = WorkflowIcons::availableIcons();
    QStringList names = icons.keys();
    std::sort(names.begin(), names.end());
    for (const QString &name : std::as_const(names))
        m_icons->addItem(listIcon(icons.value(name), m_icons->iconSize()), name);
    QString name = WflwMetaData::iconNameFromMetaDataObject(m_metadata);
    if (name.isEmpty())
        name = WorkflowIcons::defaultIconName();
    m_icons->setCurrentText(name);
    m_keepsIcon = m_icons->currentText() != name;
    connect(m_icons, &QComboBox::activated, this, [this] { m_keepsIcon = false; });
}

void WorkflowPropertiesDialog::fillTypes()
{
    for (const WorkflowType type : availableWorkflowTypes())
        m_types->addItem(workflowTypeToString(type), int(type));
    const WorkflowType type = WflwMetaData::workflowType(m_metadata);
    m_types->setCurrentIndex(m_types->findData(int(type)));
    const QString stored = m_metadata.value(PropertyEditorStringConstants::WORKFLOW_TYPE_KEY).toString();
    m_keepsType = !stored.isEmpty() && stored != workflowTypeToString(type);
    connect(m_types, &QComboBox::activated, this, [this] { m_keepsType = false; });
}

void WorkflowPropertiesDialog::setDesignerModeEnabled(bool isEnabled)
{
    qCDebug(propertyEditorLog) << "Designer mode:" << isEnabled;
    updateDesignerModeFeatures(isEnabled);
}

void WorkflowPropertiesDialog::updateDesignerModeFeatures(bool isEnabled)
{
    for (QWidget *widget : std::initializer_list<QWidget *>{m_versionLabel, m_version, m_typeLabel, m_types})
        widget->setVisible(isEnabled);
}

void WorkflowPropertiesDialog::acceptDialog()
{
    // A field may show other characters than are stored.
    if (m_name->text() != m_shownName)
        WflwMetaData::setNameInMetaDataObject(&m_metadata, m_name->text());
    if (m_description->toPlainText() != m_shownDescription)
        WflwMetaData::setDescriptionInMetaDataObject(&m_metadata, m_description->toPlainText());
    if (!m_keepsIcon)
        WflwMetaData::setIconNameInMetaDataObject(&m_metadata, m_icons->currentText());
    if (!m_keepsType)
        WflwMetaData::setWorkflowType(WorkflowType(m_types->currentData().toInt()), &m_metadata);
    accept();
}

} // namespace orv
