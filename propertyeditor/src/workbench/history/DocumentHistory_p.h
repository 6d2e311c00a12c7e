#pragma once

#include "HistorySteps.h"
#include "orv/propertyeditor/workbench/DocumentHistory.h"
#include "state/ShownState.h"

#include <orv/propertyeditor/window/DocumentUpgrade.h>

#include <QPointer>

#include <functional>
#include <optional>

namespace orv {

class DocumentHistory::Private
{
public:
    Private(DocumentHistory *history, PropertyEditorWindow *documentWindow)
        : window(documentWindow)
        , shown(documentWindow)
        , q(history)
    {}

    void begin();
    void takeSaved();
    void expectEdits();
    void whenHandled(const std::function<void()> &act);
    void takeIn();
    void tellOtherState();
    void record(const DocumentState &now);
    void push(const DocumentState &now, const QList<TableMove> &moves);
    [[nodiscard]] bool isStepOfTable(const DocumentState &now, const QList<TableMove> &moves);
    void settle(const DocumentState &actual);
    [[nodiscard]] bool settleTyping();
    void travel(StateChange::Direction direction);
    [[nodiscard]] bool edit(const DocumentState &from, const DocumentState &to, const QString &text);
    [[nodiscard]] bool show(const DocumentState &to, const StateChange &change,
                            const std::function<bool()> &prepare);
    [[nodiscard]] bool beginAt(const DocumentState &file, const QString &text);
    [[nodiscard]] bool bring(const DocumentState &to);
    void arrive(const DocumentState &to);
    [[nodiscard]] bool moveTables(const HistoryStep &step, StateChange::Direction direction) const;
    void takeUpgraded(const DocumentUpgrade &upgrade);
    void append(const HistoryStep &step);
    [[nodiscard]] qsizetype heldBytes() const;
    void trim();
    void dropUpgrade();
    [[nodiscard]] bool tellDropped();
    void leaveField();

    PropertyEditorWindow *window;
    ShownState shown;
    DocumentState state;
    std::optional<DocumentState> saved; ///< that lies on the disk
    HistorySteps steps;
    qsizetype limit = kDefaultLimit;
    bool isPending = false;
    bool isTravelling = false;
    int generation = 0;          ///< of documents
    bool isDropped = false;      ///< the upgrade, and nobody was told of that
    bool isSettling = false;     ///< what is told is the echo of a step
    QPointer<QWidget> field;     ///< in which the last step was made, as long as it may go on
    QPointer<QWidget> nextField; ///< the same for what is told and not yet taken in
    bool isFieldLeft = false;
    QString group; ///< what the steps of a group are called
    int groupDepth = 0;
    bool groupHasStep = false;
    DocumentHistory *q;
};

} // namespace orv
