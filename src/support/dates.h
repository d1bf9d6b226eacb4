// Dates in words.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace lorimet {

// The English name of a month, counted from 0; one beyond the year is taken for its nearest.
inline const char* MonthName(int month) {
  constexpr std::array<const char*, 12> kMonths = {
      "January", "February", "March",     "April",   "May",      "June",
      "July",    "August",   "September", "October", "November", "December",
  };
  return kMonths[static_cast<std::size_t>(std::clamp(month, 0, 11))];
}

}  // namespace lorimet
