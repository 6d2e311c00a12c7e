#pragma once

#include "FindingTargets.h"
#include "orv/propertyeditor/workbench/BackgroundWork.h"

#include <QObject>
#include <QPointer>

namespace orv {

class PropertyEditorWindow;

/// Checks the document of a window in the background. The window never waits for a check, which may hang on a
/// share whose server is gone. The application's own validators run on this
/// thread, once the others are done.
class FindingCheck : public QObject
{
    Q_OBJECT

public:
    explicit FindingCheck(PropertyEditorWindow *window, QObject *parent = nullptr);
    ~FindingCheck() override;

    /// Checks the document as it is now. While a check runs, another one follows it.
    void start();
    /// What runs is about another document: nothing is told of it.
    void forget();
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

Q_SIGNALS:
    /// A document that can't be checked has one finding that says why.
    void finished(const QList<orv::PropertyEditor::LocatedFinding> &findings,
                  const QList<orv::FindingTarget> &targets);

private:
    using Findings = QList<PropertyEditor::LocatedFinding>;

    [[nodiscard]] Findings findingsOfApplication() const;
    void finish(const FindingTargets &targets, const Findings &findings);

    const QPointer<PropertyEditorWindow> m_window;
    BackgroundWork m_work;
    int m_forgotten = 0; ///< how often
    bool m_isRunning = false;
    bool m_isWantedAgain = false;
};

} // namespace orv
