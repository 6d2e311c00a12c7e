#pragma once

#include <QByteArray>

QT_FORWARD_DECLARE_CLASS(QWidget)

namespace orv {

class GridPropertyEditorView;
class PropertyEditorWindow;

/// Goes to places of the document in a window. Whoever hears of the focus may close the window meanwhile.
namespace SettingJump {

/// Shows the tab and the column that \a widget belongs to.
void show(PropertyEditorWindow *window, QWidget *widget);

/// Shows the row of a setting, current, unfolded and with the focus; false if the column has none.
bool toSetting(PropertyEditorWindow *window, GridPropertyEditorView *view, const QByteArray &name);

} // namespace SettingJump

} // namespace orv
