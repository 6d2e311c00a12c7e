#pragma once

#include <orv/widgets/Export.h>

#include <QComboBox>

namespace orv {

/// A choice that the wheel passes by, so that nobody changes it while scrolling. GUI thread.
class ORV_PROPERTY_EDITOR_EXPORT ChoiceBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget *parent = nullptr);
    ~ChoiceBox() override;

protected:
    void wheelEvent(QWheelEvent *event) override;
};

} // namespace orv
