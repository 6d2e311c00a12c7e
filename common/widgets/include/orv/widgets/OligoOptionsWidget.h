#pragma once

#include <orv/widgets/OptionsWidgetBase.h>

namespace orv {

/// How spectra of oligonucleotides are deconvolved.
class ORV_PROPERTY_EDITOR_EXPORT OligoOptionsWidget : public OptionsWidgetBase
{
    Q_OBJECT

public:
    explicit OligoOptionsWidget(QWidget *parent = nullptr);
};

} // namespace orv
