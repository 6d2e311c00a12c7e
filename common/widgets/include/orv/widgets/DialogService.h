#pragma once

#include <orv/widgets/DialogAnswerer.h>
#include <orv/widgets/Export.h>

QT_FORWARD_DECLARE_CLASS(QEventLoop)

namespace orv {

/// The one place where this system waits for a person: every box and every modal dialog comes through here.
/// Where an answerer is installed it answers. On a platform without a screen and without an answerer nothing
/// is shown either: a critical line goes to the log, and the most careful answer is given, so that a test
/// fails and a run doesn't hang. GUI thread.
namespace DialogService {

/// The answerer in place of a person, or null. \a answerer isn't owned and must be uninstalled before it
/// goes; returns the earlier one.
ORV_PROPERTY_EDITOR_EXPORT DialogAnswerer *install(DialogAnswerer *answerer);

/// What is answered in place of a person: nothing where somebody sits in front of a screen.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT std::optional<DialogAnswer>
answerWithoutPerson(const DialogRequest &request);

/// What every dialog has in common, before it is shown: F1 explains its controls, and its buttons have words
/// alone. exec() does it itself.
ORV_PROPERTY_EDITOR_EXPORT void prepare(QDialog &dialog);

/// Shows a modal dialog and waits; whether it was accepted. A dialog that is destroyed meanwhile wasn't.
[[nodiscard]] ORV_PROPERTY_EDITOR_EXPORT bool exec(QDialog &dialog);

/// Waits in a loop that work quits while its progress is shown. It asks nothing, so no answerer hears of it.
ORV_PROPERTY_EDITOR_EXPORT void wait(QEventLoop &loop);

} // namespace DialogService

} // namespace orv
