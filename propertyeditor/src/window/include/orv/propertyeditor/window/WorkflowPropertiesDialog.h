#pragma once

#include <orv/widgets/Export.h>

#include <QDialog>
#include <QJsonObject>

QT_FORWARD_DECLARE_CLASS(QComboBox)
QT_FORWARD_DECLARE_CLASS(QLabel)
QT_FORWARD_DECLARE_CLASS(QLineEdit)
QT_FORWARD_DECLARE_CLASS(QPlainTextEdit)

namespace orv {

/// What a workflow tells about itself: name, description, icon and, for designers of workflows, its type and
/// version. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT WorkflowPropertiesDialog : public QDialog
{
    Q_OBJECT

public:
    explicit WorkflowPropertiesDialog(const QJsonObject &metadata, QWidget *parent = nullptr);

    /// As given, until the dialog is accepted.
    [[nodiscard]] QJsonObject metaData() const { return m_metadata; }
    /// Whether type and version are shown; they aren't at first. The type is stored in any case.
    void setDesignerModeEnabled(bool isEnabled);

private:
    void buildForm();
    void fillIcons();
    void fillTypes();
    void updateDesignerModeFeatures(bool isEnabled);
    void acceptDialog();

    QJsonObject m_metadata;
    QLineEdit *m_name = nullptr;
    QPlainTextEdit *m_description = nullptr;
    QComboBox *m_icons = nullptr;
    QLabel *m_typeLabel = nullptr;
    QComboBox *m_types = nullptr;
    QLabel *m_versionLabel = nullptr;
    QLabel *m_version = nullptr;
    QString m_shownName;
    QString m_shownDescription;
    bool m_keepsIcon = false; ///< the stored name is none of those offered, and nobody chose another
    bool m_keepsType = false;
};

} // namespace orv
