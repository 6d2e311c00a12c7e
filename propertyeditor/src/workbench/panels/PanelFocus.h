#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

QT_FORWARD_DECLARE_CLASS(QDockWidget)
QT_FORWARD_DECLARE_CLASS(QMainWindow)
QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

/// Where the keys went in the document and in each panel of a window, so that a panel gives them back to
/// where they came from.
class PanelFocus : public QObject
{
    Q_OBJECT

public:
    explicit PanelFocus(QMainWindow *window, QObject *parent);

    /// A panel that lies behind another one is a visible widget out of sight: its content is hidden, so that
    /// the Tab key doesn't go there.
    void watch(QDockWidget *panel);
    /// To the list or field that stands for \a panel, which is shown.
    static void enter(QDockWidget *panel);
    /// To the last place outside \a panel that is still there.
    void leave(const QDockWidget *panel) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Place
    {
        QPointer<QDockWidget> panel; ///< null for the document
        /// With what stands around it: editors of a cell go when the focus does.
        QList<QPointer<QWidget>> widgets;
    };

    void follow(QWidget *before, QWidget *now);
    void remember(QWidget *now);
    [[nodiscard]] QDockWidget *panelOf(QWidget *widget) const;

    QPointer<QWidget> m_window; ///< a main window, but while it goes
    QList<Place> m_places;      ///< the last first
};

} // namespace orv
