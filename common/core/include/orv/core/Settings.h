#pragma once

#include <orv/core/Export.h>

#include <QString>
#include <QVariant>

/// Application settings. A key is looked up in this order: an override set by the program (tests), the
/// environment, and the user's QSettings of the running application.
///
/// The environment's name of a key is "ORV_" and the key in upper case with every character but letters and
/// digits as "_": "MIREL/EnableDesignerMode" is ORV_MIREL_ENABLEDESIGNERMODE. Its text converts as QVariant
/// does ("true", "1", "false", "0" for a bool). Thread safe.
namespace orv::as {

/// Keys in use.
inline constexpr QLatin1String kEnableDesignerMode("MIREL/EnableDesignerMode");
inline constexpr QLatin1String kMultiRowEnabled("Features/PropertyEditorMultiRowEnabled");
inline constexpr QLatin1String kWorkflowVerificationEnabled("MIREL/WorkflowVerificationEnabled");
inline constexpr QLatin1String kOpenWorkflowLocation("FSS_OpenWorkflowLocation");

/// The value of \a key, or \a defaultValue when nothing sets it. Where the default has a type to which the
/// found value converts, the result has that type.
[[nodiscard]] ORV_WORKFLOW_EXPORT QVariant value(const QString &key, const QVariant &defaultValue = {});

/// Stores \a value under \a key in the user's settings.
ORV_WORKFLOW_EXPORT void setValue(const QString &key, const QVariant &value);

/// Makes value() answer \a value for \a key during its life, whatever is stored; then the earlier answer.
class ORV_WORKFLOW_EXPORT ScopedOverride
{
public:
    ScopedOverride(const QString &key, const QVariant &value);
    ~ScopedOverride();
    Q_DISABLE_COPY_MOVE(ScopedOverride)

private:
    QString m_key;
    QVariant m_previous;
};

} // namespace orv::as
