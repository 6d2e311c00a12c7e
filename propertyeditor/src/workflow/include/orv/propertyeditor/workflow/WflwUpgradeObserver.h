#pragma once

#include <orv/core/Export.h>
#include <orv/propertyeditor/content/PropertyEditorContent.h>

#include <QList>
#include <QString>
#include <QVersionNumber>

namespace orv {

/// A setting that a step gave another name, and perhaps another type of value.
struct WflwUpgradeRenaming
{
    QString from; ///< internal names
    QString to;

    bool operator==(const WflwUpgradeRenaming &) const = default;
};

/// What one step of the upgrade chain did to a document. Stamps alone are no change.
struct WflwUpgradeChange
{
    QVersionNumber version; ///< of the step; the current version for the one that only brings it up to date
    PropertyEditorContent before;
    PropertyEditorContent after;
    QList<WflwUpgradeRenaming> renamed = {}; ///< as the step tells
};

/// Hears of each step that changed something, once it has succeeded, so that a host can tell what an upgrade
/// did. Called on the thread of the run. A run that fails later doesn't take back what was told.
class ORV_WORKFLOW_EXPORT WflwUpgradeObserver
{
public:
    WflwUpgradeObserver() = default;
    virtual ~WflwUpgradeObserver();
    Q_DISABLE_COPY_MOVE(WflwUpgradeObserver)

    virtual void changed(const WflwUpgradeChange &change) = 0;
};

/// Keeps what it is told.
class ORV_WORKFLOW_EXPORT WflwUpgradeCollector : public WflwUpgradeObserver
{
public:
    ~WflwUpgradeCollector() override;

    void changed(const WflwUpgradeChange &change) override { m_changes.append(change); }
    [[nodiscard]] const QList<WflwUpgradeChange> &changes() const { return m_changes; }

private:
    QList<WflwUpgradeChange> m_changes;
};

} // namespace orv
