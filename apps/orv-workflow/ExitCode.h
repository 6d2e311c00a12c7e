#pragma once

namespace orv::cli {

/// What a call answers to its caller. In a batch the highest one wins.
enum ExitCode
{
    Done = 0,
    Negative = 1, ///< done, and the answer is negative
    WrongUsage = 2,
    BadInput = 3,  ///< an input can't be read or is no workflow
    BadOutput = 4, ///< an output can't be written
};

} // namespace orv::cli
