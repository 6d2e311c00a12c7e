#pragma once

#include <QHeaderView>

namespace orv {

/// The numbers of rows beside a table. All are as wide as the widest, so that none has to be looked at to
/// know the room that they take.
class RowNumbers : public QHeaderView
{
    Q_OBJECT

public:
    explicit RowNumbers(QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize sectionSizeFromContents(int section) const override;
    void changeEvent(QEvent *event) override;

private:
    mutable qsizetype m_digits = 0; ///< that the size is for
    mutable QSize m_size;
};

} // namespace orv
