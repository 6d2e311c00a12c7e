#pragma once

#include <QFrame>
#include <QString>

QT_FORWARD_DECLARE_CLASS(QLabel)

namespace orv {

/// A line in a window that says what is wrong with what it shows; hidden while there is nothing to say.
class NoticeBar : public QFrame
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent = nullptr);

    enum class Kind
    {
        Error,
        Warning,
    };

    /// Plain text; an empty one hides the bar.
    void setText(const QString &text, Kind kind = Kind::Error);
    [[nodiscard]] QString text() const;

private:
    QLabel *m_sign;
    QLabel *m_text;
};

} // namespace orv
