#pragma once

#include <orv/widgets/OptionsWidgetBase.h>

namespace orv {

/// How spectra of intact proteins are deconvolved.
class ORV_PROPERTY_EDITOR_EXPORT IntactOptionsWidget : public OptionsWidgetBase
{
    Q_OBJECT

public:
    explicit IntactOptionsWidget(QWidget *parent = nullptr);
};

} // namespace orv
