#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <optional>

namespace orv {

/// Chains as bars with their cysteines, and bows for the bonds between these.
class DisulfideMap : public QWidget
{
    Q_OBJECT

public:
    struct Chain
    {
        QString name;
        int length = 0;
        QList<int> cysteines; ///< counted from 1
    };

    struct Cysteine
    {
        int chain = 0; ///< in the list of chains
        int position = 0;

        bool operator==(const Cysteine &) const = default;
    };

    struct Bond
    {
        Cysteine first;
        Cysteine second;
        bool isWrong = false; ///< a cysteine that stands in two bonds
    };

    explicit DisulfideMap(QWidget *parent = nullptr);

    void showBonds(const QList<Chain> &chains, const QList<Bond> &bonds);
    [[nodiscard]] QList<Chain> chains() const { return m_chains; }
    /// The centre of a cysteine, in this widget.
    [[nodiscard]] QPointF placeOf(const Cysteine &cysteine) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void bondWanted(const QString &firstChain, int first, const QString &secondChain, int second);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    void take(const Cysteine &cysteine);
    void step(int by);
    void tell();
    [[nodiscard]] int rowHeight() const;
    [[nodiscard]] qreal barLeft() const;
    [[nodiscard]] std::optional<Cysteine> cysteineAt(QPointF place) const;
    [[nodiscard]] QList<Cysteine> allCysteines() const;
    [[nodiscard]] QString nameOf(const Cysteine &cysteine) const;
    void paintChain(QPainter &painter, int chain) const;
    void paintPositions(QPainter &painter, int chain) const;
    void paintBond(QPainter &painter, const Bond &bond) const;

    QList<Chain> m_chains;
    QList<Bond> m_bonds;
    std::optional<Cysteine> m_current; ///< under the keyboard
    std::optional<Cysteine> m_first;   ///< of the bond that is being drawn
};

} // namespace orv
