#pragma once

#include <orv/core/LossObserver.h>

#include <QList>
#include <QStringList>

namespace orv {

/// A line for each loss: where, what and why.
[[nodiscard]] inline QStringList textsOf(const QList<Loss> &losses)
{
    QStringList texts;
    texts.reserve(losses.size());
    for (const Loss &loss : losses)
        texts.append(QStringLiteral("%1: %2: %3").arg(loss.path, loss.what, loss.why));
    return texts;
}

} // namespace orv
