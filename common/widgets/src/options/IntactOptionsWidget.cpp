#include "orv/widgets/IntactOptionsWidget.h"

namespace orv {

IntactOptionsWidget::IntactOptionsWidget(QWidget *parent)
    : OptionsWidgetBase(tr("Deconvolution of intact proteins"), QStringLiteral("IntactOptions"),
                        QStringLiteral("H"), parent)
{}

} // namespace orv
