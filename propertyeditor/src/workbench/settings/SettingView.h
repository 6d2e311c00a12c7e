#pragma once

#include <orv/propertyeditor/grid/GridPropertyEditorView.h>

#include <QList>
#include <QPointer>
#include <QString>

#include <optional>

namespace orv {

class PropertyEditorWindow;

/// A column of settings of the document in a window, and where it stands.
struct SettingView
{
    QPointer<GridPropertyEditorView> view;
    int tab = 0;
    int column = 0;
    QString tabName;
    QString columnName;

    bool operator==(const SettingView &) const = default;

    /// "Analysis › Karvon"
    [[nodiscard]] QString placeText() const;

    /// Those of all tabs in their order; none without a window.
    [[nodiscard]] static QList<SettingView> all(const PropertyEditorWindow *window);
    /// That which is \a view; nothing if it isn't one of them.
    [[nodiscard]] static std::optional<SettingView> of(const PropertyEditorWindow *window,
                                                       const GridPropertyEditorView *view);
    /// Whether \a view is one of them. Removed columns live on for a while.
    [[nodiscard]] static bool isIn(const PropertyEditorWindow *window, const GridPropertyEditorView *view);
};

} // namespace orv
