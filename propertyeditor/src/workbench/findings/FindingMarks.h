#pragma once

#include "FindingTargets.h"

#include <QObject>
#include <QSet>

#include <utility>

namespace orv {

class PropertyEditorWindow;

/// The signs of findings in a window: at rows of settings, at rows of tables, and at the tabs that have any.
class FindingMarks : public QObject
{
    Q_OBJECT

public:
    explicit FindingMarks(PropertyEditorWindow *window, QObject *parent = nullptr);
    ~FindingMarks() override;

    /// As many \a targets as \a findings; all signs before are taken away.
    void show(const QList<PropertyEditor::LocatedFinding> &findings, const QList<FindingTarget> &targets);

    [[nodiscard]] bool isMarked(const QWidget *column, const QByteArray &setting) const;

private:
    using Level = PropertyEditor::Finding::Level;
    struct Remark
    {
        QString text;
        Level level = Level::Warning; ///< the worst of what is told

        bool operator==(const Remark &other) const = default;
    };
    using Remarks = QHash<QByteArray, Remark>; ///< by setting
    struct Column
    {
        QPointer<GridPropertyEditorView> view;
        Remarks remarks;
    };
    struct Badge
    {
        int errors = 0;
        int warnings = 0;
    };

    void showSettings(const QHash<QWidget *, Remarks> &remarks);
    void showRows(const QHash<TableView *, QHash<quint32, Remark>> &rows);
    static void addTo(Remark *remark, const PropertyEditor::LocatedFinding &finding);
    void showTabs();
    void follow(GridPropertyEditorView *view);
    void remark(GridPropertyEditorView *view, const Remarks &before, const Remarks &now);

    const QPointer<PropertyEditorWindow> m_window;
    QList<Column> m_columns;
    QList<QPointer<TableView>> m_tables;
    QList<std::pair<QPointer<QWidget>, Badge>> m_badges; ///< by column
    QList<QPointer<QWidget>> m_tabs;                     ///< that have a badge
};

} // namespace orv
