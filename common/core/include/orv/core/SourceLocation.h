#pragma once

#include <source_location>

namespace orv {

#ifdef __cpp_lib_source_location

using SourceLocation = std::source_location;

#else

/// Stands in for std::source_location where the compiler lacks what the standard library needs for it, as
/// clang 14 does, with which the fuzzers are built. Goes when no such compiler is supported any more.
class SourceLocation
{
public:
    static constexpr SourceLocation current(const char *function = __builtin_FUNCTION(),
                                            const char *file = __builtin_FILE(),
                                            unsigned line = __builtin_LINE()) noexcept
    {
        SourceLocation location;
        location.m_function = function;
        location.m_file = file;
        location.m_line = line;
        return location;
    }

    [[nodiscard]] constexpr const char *function_name() const noexcept { return m_function; }
    [[nodiscard]] constexpr const char *file_name() const noexcept { return m_file; }
    [[nodiscard]] constexpr unsigned line() const noexcept { return m_line; }

private:
    const char *m_function = "";
    const char *m_file = "";
    unsigned m_line = 0;
};

#endif

} // namespace orv
