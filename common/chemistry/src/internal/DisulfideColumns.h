#pragma once

#include <QLatin1String>

/// Columns of the table of disulfide bonds, as they stand in files.
namespace orv::Internal::DisulfideColumns {

inline constexpr QLatin1String kFirstChain("FirstChain");
inline constexpr QLatin1String kFirstPosition("FirstPosition");
inline constexpr QLatin1String kSecondChain("SecondChain");
inline constexpr QLatin1String kSecondPosition("SecondPosition");

} // namespace orv::Internal::DisulfideColumns
