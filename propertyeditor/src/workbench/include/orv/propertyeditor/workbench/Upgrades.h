#pragma once

#include <orv/widgets/Export.h>

#include <QObject>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QAction)

namespace orv {

class Workbench;

/// Shows what the upgrade of a document changed, step by step: in the question whether it shall be applied,
/// and in a panel afterwards, which opens by itself when somebody takes the upgrade back. A child of its
/// workbench. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT Upgrades : public QObject
{
    Q_OBJECT

public:
    explicit Upgrades(Workbench *workbench);
    ~Upgrades() override;

    /// Opens and closes the panel; null once that has gone.
    [[nodiscard]] QAction *action() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
