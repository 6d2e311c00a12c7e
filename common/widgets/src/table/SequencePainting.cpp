#include "orv/widgets/SequencePainting.h"

#include <orv/table_model/SequenceText.h>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace orv::SequencePainting {

namespace {

constexpr int kMeasuredBlocks = 40;
constexpr qreal kPositionScale = 0.65;
constexpr qreal kPositionOpacity = 0.75;

QFont positionFont(const QFont &font)
{
    QFont small = font;
    if (font.pointSizeF() > 0)
        small.setPointSizeF(font.pointSizeF() * kPositionScale);
    else
        small.setPixelSize(std::max(1, qRound(font.pixelSize() * kPositionScale)));
    return small;
}

/// Where the parts of a line go.
class BlockMetrics
{
public:
    explicit BlockMetrics(const QFont &font)
        : letters(font)
        , small(positionFont(font))
        , margin(letters.averageCharWidth() / 4)
    {}

    [[nodiscard]] qreal positionWidth(const SequenceText::Block &block) const
    {
        return small.horizontalAdvance(QString::number(block.lastPosition)) + 3 * margin;
    }

    QFontMetricsF letters;
    QFontMetricsF small;
    qreal margin;
};

} // namespace

QFont fontLike(const QFont &like)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (like.pointSizeF() > 0)
        font.setPointSizeF(like.pointSizeF());
    else
        font.setPixelSize(like.pixelSize());
    return font;
}

int width(QStringView sequence, const QFont &font)
{
    const BlockMetrics metrics(font);
    qreal width = 0;
    const QList<SequenceText::Block> blocks = SequenceText::blocks(sequence, kMeasuredBlocks);
    for (const SequenceText::Block &block : blocks)
        width += metrics.letters.averageCharWidth() * qreal(block.text.size()) + metrics.positionWidth(block);
    return int(std::ceil(width));
}

void paint(QPainter &painter, const QRect &place, QStringView sequence, const QFont &font,
           const QColor &color)
{
    const BlockMetrics metrics(font);
    const QString more = QStringLiteral("\u2026");
    const qreal letter = std::max(1.0, metrics.letters.averageCharWidth());
    const auto atMost = qsizetype(place.width() / letter / SequenceText::kBlock) + 2;
    const qreal baseline =
        place.top() + (place.height() - metrics.letters.height()) / 2 + metrics.letters.ascent();
    const qreal end = place.left() + place.width();
    qreal x = place.left();
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    painter.setPen(color);
    painter.setFont(font);
    qsizetype done = 0;
    for (const SequenceText::Block &block : SequenceText::blocks(sequence, atMost)) {
        done += block.text.size();
        const bool isLast = done == sequence.size();
        const auto room = qsizetype((end - x) / letter);
        const bool isWhole = isLast ? block.text.size() <= room : block.text.size() < room;
        const QStringView text =
            isWhole ? block.text : block.text.first(std::clamp<qsizetype>(room - 1, 0, block.text.size()));
        painter.drawText(QPointF(x, baseline), text.toString());
        x += letter * qreal(text.size());
        if (!isWhole) {
            painter.drawText(QPointF(x, baseline), more);
            break;
        }
        painter.setFont(positionFont(font));
        painter.setOpacity(kPositionOpacity);
        painter.drawText(QPointF(x + metrics.margin, baseline), QString::number(block.lastPosition));
        painter.setOpacity(1);
        painter.setFont(font);
        x += metrics.positionWidth(block);
    }
    painter.restore();
}

} // namespace orv::SequencePainting
