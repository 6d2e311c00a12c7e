#pragma once

#include <orv/core/Error.h>

#include <QPointer>

namespace orv::PropertyEditor {

/// Runs \a signals one after another for as long as \a sender lives, as whoever hears of the first may delete
/// it; false if somebody did. Then nothing of the sender may be touched any more.
template<typename Sender, typename... Signals>
bool announce(Sender *sender, Signals... signals)
{
    const QPointer<Sender> alive(sender);
    return (... && (signals(), !alive.isNull()));
}

/// Why a load ends when somebody who heard of a part of it deleted what is loaded.
[[nodiscard]] Error removedWhileLoading();

} // namespace orv::PropertyEditor
