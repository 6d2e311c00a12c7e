#pragma once

#include <orv/widgets/Export.h>

#include <QObject>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QAction)

namespace orv {

class Workbench;

/// Compares the document of a window with a second one, which is read and never written: an entry of the menu
/// View, and a panel with what differs, from which checked differences are taken over as one step of the
/// history. Follows every edit; closing the panel ends it. A child of its workbench. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT Comparison : public QObject
{
    Q_OBJECT

public:
    explicit Comparison(Workbench *workbench);
    ~Comparison() override;

    /// Compares with a workflow file or a portable folder from now on. What can't be read stands in the
    /// panel.
    void compareWith(const QString &path);
    /// Frees the second document.
    void end();

    /// Empty without a second document.
    [[nodiscard]] QString otherPath() const;
    /// Whether a document is being read or compared, or differences taken over.
    [[nodiscard]] bool isBusy() const;

    [[nodiscard]] QAction *action() const;

Q_SIGNALS:
    /// Something of the above became another.
    void changed();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
