#pragma once

#include <orv/widgets/Export.h>

#include <QObject>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QAction)

namespace orv {

class Workbench;

/// Checks the document of a window when a person asks, and shows what was found: in a panel, which opens when
/// there is something, and at the places, to which the panel leads. From then on the checks are repeated
/// behind edits, in the background. A child of its workbench. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT Findings : public QObject
{
    Q_OBJECT
    Q_PROPERTY(orv::Findings::State state READ state NOTIFY changed)
    Q_PROPERTY(int errorCount READ errorCount NOTIFY changed)
    Q_PROPERTY(int warningCount READ warningCount NOTIFY changed)

public:
    enum class State
    {
        NotChecked, ///< not in this document
        Checking,   ///< the numbers are those of the check before
        Checked,
    };
    Q_ENUM(State)

    explicit Findings(Workbench *workbench);
    ~Findings() override;

    [[nodiscard]] State state() const;
    [[nodiscard]] int errorCount() const;
    [[nodiscard]] int warningCount() const;

    [[nodiscard]] QAction *checkAction() const;
    [[nodiscard]] QAction *nextAction() const;
    [[nodiscard]] QAction *previousAction() const;

Q_SIGNALS:
    /// A check began or ended, or another document is there.
    void changed();

protected:
    /// While there are findings, the keys that lead from one to the next do so in tables, too.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace orv
