#pragma once

#include <orv/propertyeditor/grid/GridPropertyEditorView.h>

#include <QByteArray>
#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QPointer>

class KProperty;

namespace orv {

class PropertyEditorWindow;

/// The settings at which somebody works: the column of settings of a window that has the focus, or had it
/// before a menu or a panel got it, with its current and its selected rows. GUI thread.
class CurrentSetting : public QObject
{
    Q_OBJECT

public:
    explicit CurrentSetting(PropertyEditorWindow *window, QObject *parent = nullptr);
    ~CurrentSetting() override;

    enum class Focus
    {
        Elsewhere,
        Editor, ///< somebody edits a value
        Rows,
    };
    /// Menus and other programs take no focus away.
    [[nodiscard]] Focus focus() const { return m_focus; }

    /// Null if there is none yet, or if it has gone.
    [[nodiscard]] GridPropertyEditorView *view() const { return m_view; }
    /// Null for a group and for no row.
    [[nodiscard]] const KProperty *property() const;
    /// The names of the settings in selected rows as they stand in the column; of a group all that it shows.
    [[nodiscard]] QList<QByteArray> selected() const;

    /// Another column than the one in which somebody was.
    void setView(GridPropertyEditorView *view);

Q_SIGNALS:
    /// The column, the rows or the focus became others. May come too often.
    void changed();

private:
    void followFocus(QWidget *now);
    void tell() { Q_EMIT changed(); }

    const QPointer<PropertyEditorWindow> m_window;
    QPointer<GridPropertyEditorView> m_view;
    QList<QMetaObject::Connection> m_connections; ///< to the view
    Focus m_focus = Focus::Elsewhere;
};

} // namespace orv
