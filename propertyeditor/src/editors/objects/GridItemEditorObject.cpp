#include "orv/propertyeditor/editors/GridItemEditorObject.h"

#include <KProperty.h>
#include <orv/propertyeditor/editors/GridItemDialog.h>
#include <orv/widgets/CoreMainWindow.h>
#include <orv/widgets/ModalDialog.h>

#include <QJsonDocument>

namespace orv {

QJsonObject GridItemEditorObject::fromString(const QString &text) const
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

bool GridItemEditorObject::handleEditObject(QJsonObject *value, const KProperty &property,
                                            QWidget *parent) const
{
    ModalDialog dialog(createDialog(CoreMainWindow::windowFor(parent)));
    dialog->setWindowTitle(property.caption());
    dialog->setData(*value);
    if (!dialog.exec())
        return false;
    *value = dialog->data();
    return true;
}

} // namespace orv
