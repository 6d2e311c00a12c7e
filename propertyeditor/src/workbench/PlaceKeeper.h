#pragma once

#include "ColumnPlace.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QStringList>

#include <optional>
#include <utility>

namespace orv {

class CurrentSetting;
class PropertyEditorWindow;
class PropertyGridWidget;

/// A save fills all tabs anew from what was written. This lets people stand where they stood: the same groups
/// unfolded, the same setting current, tabs and columns scrolled as they were, and the focus in its field.
class PlaceKeeper : public QObject
{
    Q_OBJECT

public:
    PlaceKeeper(PropertyEditorWindow *window, CurrentSetting *current, QObject *parent = nullptr);
    ~PlaceKeeper() override;

private:
    struct TabPlace
    {
        QPointer<PropertyGridWidget> grid;
        QStringList columnNames;
        QByteArray widths; ///< of the columns
        QPoint scroll;
        QList<ColumnPlace> columns;
    };
    /// Tab and column.
    using Place = std::pair<int, int>;

    void keep();
    void comeBack();
    void forget();
    [[nodiscard]] TabPlace placeIn(PropertyGridWidget *grid) const;
    [[nodiscard]] std::optional<Place> placeOfCurrentSetting() const;
    void restore(int tab, TabPlace *place);
    /// A tab has its size once it was shown.
    void restoreScrollOfCurrentTab();
    void restoreFocus(const TabPlace &place);

    const QPointer<PropertyEditorWindow> m_window;
    const QPointer<CurrentSetting> m_current;
    QList<TabPlace> m_kept;    ///< by tab, during a reload
    QList<TabPlace> m_waiting; ///< until their tab is shown
    std::optional<Place> m_setting;
};

} // namespace orv
