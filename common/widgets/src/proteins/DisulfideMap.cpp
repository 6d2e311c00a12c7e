#include "DisulfideMap.h"

#include <orv/core/PlainTip.h>
#include <orv/widgets/MeaningColors.h>

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include <cmath>

namespace orv {

namespace {

constexpr int kLinesOfRow = 4;
constexpr int kMostNameLetters = 18;

} // namespace

DisulfideMap::DisulfideMap(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("disulfideMap"));
    setAccessibleName(tr("Disulfide bonds between cysteines"));
    setFocusPolicy(Qt::StrongFocus);
    setToolTip(
        tr("Click two cysteines, or choose them with the arrow keys and Enter, to join them by a bond."));
}

void DisulfideMap::showBonds(const QList<Chain> &chains, const QList<Bond> &bonds)
{
    m_chains = chains;
    m_bonds = bonds;
    const QList<Cysteine> cysteines = allCysteines();
    if (m_current && !cysteines.contains(*m_current))
        m_current.reset();
    if (m_first && !cysteines.contains(*m_first))
        m_first.reset();
    updateGeometry();
    update();
}

int DisulfideMap::rowHeight() const
{
    return fontMetrics().height() * kLinesOfRow;
}

qreal DisulfideMap::barLeft() const
{
    return fontMetrics().averageCharWidth() * (kMostNameLetters + 2);
}

QSize DisulfideMap::sizeHint() const
{
    constexpr int kLetters = 100;
    return {fontMetrics().averageCharWidth() * kLetters,
            rowHeight() * std::max<int>(1, int(m_chains.size()))};
}

QSize DisulfideMap::minimumSizeHint() const
{
    return {int(barLeft()) * 2, sizeHint().height()};
}

QPointF DisulfideMap::placeOf(const Cysteine &cysteine) const
{
    qsizetype longest = 1;
    for (const Chain &chain : m_chains)
        longest = std::max<qsizetype>(longest, chain.length);
    const qreal room = width() - barLeft() - fontMetrics().averageCharWidth() * 2;
    return {barLeft() + room * (cysteine.position - 0.5) / qreal(longest),
            rowHeight() * (cysteine.chain + 0.7)};
}

QList<DisulfideMap::Cysteine> DisulfideMap::allCysteines() const
{
    QList<Cysteine> all;
    for (int chain = 0; chain < m_chains.size(); ++chain) {
        for (const int position : m_chains[chain].cysteines)
            all.append({chain, position});
    }
    return all;
}

std::optional<DisulfideMap::Cysteine> DisulfideMap::cysteineAt(QPointF place) const
{
    std::optional<Cysteine> nearest;
    qreal distance = fontMetrics().height();
    for (const Cysteine &cysteine : allCysteines()) {
        const QPointF way = placeOf(cysteine) - place;
        const qreal length = std::hypot(way.x(), way.y());
        if (length < distance) {
            distance = length;
            nearest = cysteine;
        }
    }
    return nearest;
}

QString DisulfideMap::nameOf(const Cysteine &cysteine) const
{
    return tr("%1 C%2").arg(m_chains[cysteine.chain].name).arg(cysteine.position);
}

void DisulfideMap::take(const Cysteine &cysteine)
{
    m_current = cysteine;
    if (m_first == cysteine) {
        m_first.reset();
    } else if (!m_first) {
        m_first = cysteine;
    } else {
        const Cysteine first = *m_first;
        m_first.reset();
        tell();
        update();
        Q_EMIT bondWanted(m_chains[first.chain].name, first.position, m_chains[cysteine.chain].name,
                          cysteine.position);
        return;
    }
    tell();
    update();
}

void DisulfideMap::tell()
{
    QString text = m_current ? nameOf(*m_current) : QString();
    if (m_first)
        text = tr("%1, bond begins at %2").arg(text, nameOf(*m_first));
    setAccessibleDescription(text);
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void DisulfideMap::step(int by)
{
    const QList<Cysteine> all = allCysteines();
    if (all.isEmpty())
        return;
    const qsizetype at = m_current ? all.indexOf(*m_current) : (by > 0 ? -1 : 0);
    m_current = all[(at + by + all.size()) % all.size()];
    tell();
    update();
}

void DisulfideMap::mousePressEvent(QMouseEvent *event)
{
    if (const auto cysteine = cysteineAt(event->position()))
        take(*cysteine);
}

void DisulfideMap::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        step(1);
        return;
    case Qt::Key_Left:
    case Qt::Key_Up:
        step(-1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_current)
            take(*m_current);
        return;
    case Qt::Key_Escape:
        if (m_first) {
            m_first.reset();
            update();
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

bool DisulfideMap::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        auto *const help = static_cast<QHelpEvent *>(event);
        if (const auto cysteine = cysteineAt(help->pos())) {
            QToolTip::showText(help->globalPos(), PlainTip::of(nameOf(*cysteine)), this);
            return true;
        }
    }
    return QWidget::event(event);
}

void DisulfideMap::paintChain(QPainter &painter, int chain) const
{
    const Chain &shown = m_chains[chain];
    const qreal y = placeOf({chain, 1}).y();
    const QString name = fontMetrics().elidedText(shown.name, Qt::ElideRight,
                                                  int(barLeft()) - fontMetrics().averageCharWidth());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QPointF(fontMetrics().averageCharWidth() / 2.0, y + fontMetrics().ascent() / 2.0), name);
    painter.setPen(
        QPen(palette().color(QPalette::Mid), fontMetrics().height() / 3.0, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(placeOf({chain, 1}).x(), y), QPointF(placeOf({chain, shown.length}).x(), y));
    for (const int position : shown.cysteines) {
        const Cysteine cysteine{chain, position};
        const QPointF place = placeOf(cysteine);
        const bool isChosen = m_first == cysteine || (hasFocus() && m_current == cysteine);
        const qreal radius = fontMetrics().height() / (isChosen ? 3.0 : 5.0);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
        painter.setBrush(palette().color(m_first == cysteine ? QPalette::Highlight : QPalette::Base));
        painter.drawEllipse(place, radius, radius);
    }
}

/// Over the bonds, which must not run through the numbers.
void DisulfideMap::paintPositions(QPainter &painter, int chain) const
{
    painter.setPen(palette().color(QPalette::WindowText));
    qreal labelled = -1;
    for (const int position : m_chains[chain].cysteines) {
        const QPointF place = placeOf({chain, position});
        const QString label = QString::number(position);
        const qreal width = fontMetrics().horizontalAdvance(label);
        if (place.x() - width / 2 <= labelled)
            continue;
        const QPointF base(place.x() - width / 2, place.y() + fontMetrics().height() * 1.1);
        painter.fillRect(QRectF(base.x(), base.y() - fontMetrics().ascent(), width, fontMetrics().height()),
                         palette().color(QPalette::Window));
        painter.drawText(base, label);
        labelled = place.x() + width / 2 + fontMetrics().averageCharWidth() / 2.0;
    }
}

void DisulfideMap::paintBond(QPainter &painter, const Bond &bond) const
{
    const QPointF from = placeOf(bond.first);
    const QPointF to = placeOf(bond.second);
    const QColor color =
        bond.isWrong ? MeaningColors::error(palette()) : palette().color(QPalette::WindowText);
    painter.setPen(QPen(color, fontMetrics().height() / 10.0, bond.isWrong ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(Qt::NoBrush);
    QPainterPath path(from);
    if (bond.first.chain == bond.second.chain) {
        const qreal rise =
            std::min(rowHeight() * 0.6, std::abs(to.x() - from.x()) * 0.5 + fontMetrics().height());
        path.cubicTo(from - QPointF(0, rise), to - QPointF(0, rise), to);
    } else {
        const qreal half = (to.y() - from.y()) / 2;
        path.cubicTo(from + QPointF(0, half), to - QPointF(0, half), to);
    }
    painter.drawPath(path);
}

void DisulfideMap::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_chains.isEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("There are no proteins with cysteines."));
        return;
    }
    for (int chain = 0; chain < m_chains.size(); ++chain)
        paintChain(painter, chain);
    for (const Bond &bond : m_bonds)
        paintBond(painter, bond);
    for (int chain = 0; chain < m_chains.size(); ++chain)
        paintPositions(painter, chain);
}

} // namespace orv
