#pragma once

#include "ComparisonTree.h"
#include "orv/propertyeditor/workbench/BackgroundWork.h"
#include "orv/propertyeditor/workbench/Comparison.h"
#include "orv/propertyeditor/workbench/DocumentState.h"
#include "settings/SettingVisits.h"

#include <orv/core/Result.h>

#include <QModelIndex>
#include <QPointer>
#include <QString>

#include <memory>

QT_FORWARD_DECLARE_CLASS(QDockWidget)

namespace orv {

class ComparisonPanel;
class DocumentHistory;
class FindSettings;
class PropertyEditorWindow;
class Workbench;
struct SecondDocument;

class Comparison::Private
{
public:
    Private(Comparison *comparison, Workbench *workbench);

    void ask();
    void compareWith(const QString &path);
    void end();

    QAction *action;
    QString path;
    bool isReading = false;
    bool isComparing = false;
    bool isTaking = false;

private:
    struct TakenOver
    {
        DocumentState from;
        DocumentState to;
    };
    /// What is told of it, as the differences were checked.
    struct TakeOverTexts
    {
        QString step;
        QString outcome;
    };

    void connectPanel();
    void connectWindow();
    void receive(const Result<SecondDocument> &second);
    void fail(const QString &summary, const Error &error);
    void follow();
    void compare();
    void show(const Result<ComparisonTree> &tree);
    void takeOver();
    void finishTakingOver(const Result<TakenOver> &taken, const TakeOverTexts &texts);
    void goTo(const QModelIndex &index);
    void tell();
    /// Of this document; empty for one without a file.
    [[nodiscard]] QString ownFile() const;

    Comparison *const q;
    Workbench *const m_workbench;
    const QPointer<PropertyEditorWindow> m_window;
    DocumentHistory *const m_history;
    QString m_ownFile; ///< when the second document was read
    FindSettings *const m_find;
    ComparisonPanel *m_panel;
    QPointer<QDockWidget> m_dock;
    std::shared_ptr<const SecondDocument> m_second;
    SettingVisits m_visits;
    int m_number = 0; ///< of second documents
    BackgroundWork m_work;
    bool m_isWantedAgain = false;
    bool m_isFirst = false; ///< comparison with the second document
};

} // namespace orv
