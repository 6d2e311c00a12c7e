#include "orv/widgets/OligoOptionsWidget.h"

namespace orv {

OligoOptionsWidget::OligoOptionsWidget(QWidget *parent)
    : OptionsWidgetBase(tr("Deconvolution of oligonucleotides"), QStringLiteral("OligoOptions"),
                        QStringLiteral("H"), parent)
{}

} // namespace orv
