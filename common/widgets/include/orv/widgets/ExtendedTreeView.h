#pragma once

#include <orv/widgets/Export.h>

#include <QTreeView>

namespace orv {

/// A tree whose rows can be copied as text, and that makes itself anew when what its columns hold has
/// changed. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ExtendedTreeView : public QTreeView
{
    Q_OBJECT

public:
    explicit ExtendedTreeView(QWidget *parent = nullptr);

    /// Lays rows and columns out by what they hold now; unfolded rows and the selection stay.
    void refreshDelegates();

    /// The selected rows, or all that are unfolded where none is, with tabulators between cells and a line of
    /// titles.
    [[nodiscard]] QString toPlainText() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void fitColumns();

    bool m_areColumnsFitted = true;
};

} // namespace orv
