#pragma once

#include <orv/widgets/Export.h>

#include <QList>

QT_FORWARD_DECLARE_CLASS(QColor)
QT_FORWARD_DECLARE_CLASS(QIcon)
QT_FORWARD_DECLARE_CLASS(QPalette)

namespace orv {

/// The drawings of commands and of what something means.
enum class IconName
{
    Add,
    Duplicate,
    Remove,
    MoveUp,
    MoveDown,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Clear,
    FillDown,
    Find,
    Replace,
    Import,
    Export,
    Columns,
    HideColumns,
    Filter,
    SortAscending,
    SortDescending,
    OwnOrder,
    KeepOrder,
    NextProblem,
    PreviousProblem,
    Open,
    Save,
    Edit,
    Properties,
    Upgrade,
    Portable,
    BasicView,
    AdvancedView,
    User,
    ExpandAll,
    CollapseAll,
    Error,
    Warning,
    Question,
    Information,
    Changed,
    Passed,
};

/// Icons that follow the palette of the application: drawn in the colour of its text, of its disabled text or
/// of what is selected, those that mean something in the colours of MeaningColors. GUI thread.
namespace Icons {

[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QIcon icon(IconName name);

/// The icon that the application gives, by its theme or by a resource of that name; without either the own
/// one. Both texts may be null.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QIcon hostIcon(IconName name, const char *resource,
                                                        const char *themeName = nullptr);

/// What icon() draws with in a palette while it can be used.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QColor colorOf(IconName name, const QPalette &palette);

/// Every name once.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT QList<IconName> all();

} // namespace Icons

} // namespace orv
