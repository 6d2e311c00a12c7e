#include "orv/widgets/ChoiceBox.h"

#include <QWheelEvent>

namespace orv {

ChoiceBox::ChoiceBox(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

ChoiceBox::~ChoiceBox() = default;

void ChoiceBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

} // namespace orv
