#include "orv/propertyeditor/editors/IGenericEditorDialog.h"

namespace orv {

IGenericEditorDialog::IGenericEditorDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

IGenericEditorDialog::~IGenericEditorDialog() = default;

} // namespace orv
