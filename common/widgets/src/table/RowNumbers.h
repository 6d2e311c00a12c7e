#pragma once

#include <QHeaderView>

namespace orv {

/// The numbers of rows beside a table. All are as wide as the widest, so that none has to be looked at to
/// know the room that they take. A sign stands at rows with a remark.
class RowNumbers : public QHeaderView
{
    Q_OBJECT

public:
    explicit RowNumbers(QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize sectionSizeFromContents(int section) const override;
    void paintSection(QPainter *painter, const QRect &section, int logicalIndex) const override;
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] int signMargin() const;

    mutable qsizetype m_digits = 0; ///< that the size is for
    mutable QSize m_size;
    mutable bool m_hasRemarks = false; ///< so that their sign has room
};

} // namespace orv
