#pragma once

#include <orv/widgets/Export.h>

#include <QObject>

#include <chrono>
#include <functional>
#include <optional>

namespace orv {

/// Asks what a disk that sleeps, or a share whose server is gone, may take minutes to answer. GUI thread.
///
/// \code
///     const std::optional<bool> isFile = SlowQuestion::ask(
///         [path] { return QFileInfo(path).isFile(); }, this, [this](bool isFile) { show(isFile); });
/// \endcode
class ORV_PROPERTY_EDITOR_EXPORT SlowQuestion
{
public:
    /// Longer, a person would notice that the window waits.
    static constexpr std::chrono::milliseconds kPatience{300};

    /// Runs \a question on a thread of its own and waits for it no longer than \a patience. Without an answer
    /// by then \a late is called with it on this thread, if \a context still exists; neither \a context nor
    /// the end of the program waits.
    [[nodiscard]] static std::optional<bool> ask(std::function<bool()> question, QObject *context,
                                                 std::function<void(bool)> late,
                                                 std::chrono::milliseconds patience = kPatience);
};

} // namespace orv
