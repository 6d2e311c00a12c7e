#pragma once

#include <orv/propertyeditor/workflow/MissingFileQuestions.h>

/// What a person answered who doesn't want to be asked again. Any thread.
namespace orv::RememberedAnswer {

[[nodiscard]] MissingFileQuestions::Answer answer();
[[nodiscard]] bool isAskingStopped();
void remember(MissingFileQuestions::Answer answer);

} // namespace orv::RememberedAnswer
