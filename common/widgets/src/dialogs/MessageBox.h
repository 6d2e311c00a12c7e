#pragma once

#include <QMessageBox>

QT_FORWARD_DECLARE_CLASS(QScrollArea)

namespace orv {

/// A box that doesn't outgrow its screen: a long text scrolls then. With something to look through below its
/// text and buttons it can be resized, for which others have no reason.
class MessageBox : public QMessageBox
{
    Q_OBJECT

public:
    using QMessageBox::QMessageBox;

    /// The box takes it over.
    void setBelow(QWidget *below);

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeTextScroll();
    void openUp();
    [[nodiscard]] QSize room() const;

    QScrollArea *m_text = nullptr; ///< around the text, where it scrolls
    QWidget *m_below = nullptr;
};

} // namespace orv
