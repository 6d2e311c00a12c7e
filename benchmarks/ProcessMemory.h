#pragma once

namespace ProcessMemory {

/// What this process holds at the moment, in kB; negative where the system doesn't tell.
[[nodiscard]] long heldKilobytes();

/// The most that it has held since its start, in kB; getrusage would tell that of the parent from before
/// exec.
[[nodiscard]] long peakKilobytes();

} // namespace ProcessMemory
