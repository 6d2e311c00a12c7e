#pragma once

#include <orv/propertyeditor/PropertyId.h>
#include <orv/propertyeditor/content/BaseItemType.h>
#include <orv/widgets/Export.h>

#include <QByteArray>
#include <QDialog>
#include <QList>
#include <QStringList>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QDialogButtonBox)

namespace orv {

/// Asks which property a column gets, in which group and how prominent. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT PropertySelectionDialog : public QDialog
{
    Q_OBJECT

public:
    /// Mode 0 adds a property, any other changes one. Offers what columns of \a documentType may hold.
    PropertySelectionDialog(int mode, BaseItemType documentType, QWidget *parent = nullptr);
    ~PropertySelectionDialog() override;

    /// Lets the properties of these internal names be chosen, or not, and chooses the first one that can be;
    /// nothing happens without names.
    void enableProperties(const QList<QByteArray> &names, bool enabled);

    /// Shown in alphabetical order.
    void setGroups(const QStringList &captions);
    [[nodiscard]] QString group() const;
    /// Another caption than those offered stands there, too.
    void setGroup(const QString &caption);

    /// As stored in files: 1 to 3; -1 while none is chosen.
    [[nodiscard]] int priority() const;
    void setPriority(int priority);

    /// NoProperty while none is chosen.
    [[nodiscard]] PropertyId propertyId() const;
    void setPropertyId(PropertyId id);

private:
    void buildForm();
    void fillPropertyComboBox(BaseItemType documentType);
    void fillPriorityComboBox();

    QComboBox *m_properties = nullptr;
    QComboBox *m_groups = nullptr;
    QComboBox *m_priorities = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
};

} // namespace orv
