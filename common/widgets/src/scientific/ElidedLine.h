#pragma once

#include <QLineEdit>

namespace orv {

/// A line that shows by an ellipsis that its text goes on, while nobody types; the tool tip has all of it.
class ElidedLine : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRect textRect() const;
    [[nodiscard]] bool isCut() const;
};

} // namespace orv
