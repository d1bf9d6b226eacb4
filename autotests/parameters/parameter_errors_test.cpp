#include "parameters/parameter_errors.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <utility>

#include "autotests/places.h"

namespace lorimet {
namespace {

// One message a line: byte, bit, text.
std::map<std::pair<int, int>, std::string> ReadListing() {
  std::ifstream file(InSource("autotests/parameters/parameter_error_listing.txt"));
  std::map<std::pair<int, int>, std::string> messages;
  std::string line;
  while (std::getline(file, line)) {
    std::istringstream cells(line);
    std::string byte, bit, text;
    std::getline(cells, byte, '\t');
    std::getline(cells, bit, '\t');
    std::getline(cells, text);
    messages[{std::stoi(byte), std::stoi(bit)}] = text;
  }
  return messages;
}

TEST(ParameterErrors, EveryByteAndMaskGivesTheListedMessageOrNothing) {
  const auto listing = ReadListing();
  ASSERT_EQ(listing.size(), 160u);
  for (int n = -1; n <= 22; ++n) {
    for (int mask = 0; mask <= 255; ++mask) {
      std::string expected;
      for (int bit = 0; bit < 8; ++bit)
        if (mask == 1 << bit && listing.contains({n, bit})) expected = listing.at({n, bit});
      EXPECT_EQ(ParameterErrorText(n, static_cast<std::uint8_t>(mask)), expected)
          << n << ' ' << mask;
    }
  }
}

TEST(ParameterErrors, EveryMessageNamesItsByteAndBit) {
  for (int n = 1; n <= 20; ++n) {
    for (int bit = 0; bit < 8; ++bit) {
      const std::string prefix =
          "Parameter Error " + std::to_string(n) + "-" + std::to_string(bit) + " : ";
      const auto text = ParameterErrorText(n, static_cast<std::uint8_t>(1 << bit));
      EXPECT_TRUE(text.starts_with(prefix)) << text;
      EXPECT_GT(text.size(), prefix.size());
    }
  }
}

TEST(ParameterErrors, OddWordsStayAsTheyAre) {
  EXPECT_NE(ParameterErrorText(12, 32).find("us not supported"), std::string_view::npos);
  EXPECT_NE(ParameterErrorText(18, 8).find("Paramter"), std::string_view::npos);
  EXPECT_EQ(ParameterErrorText(5, 1).back(), ' ');
  EXPECT_EQ(ParameterErrorText(20, 128), "Parameter Error 20-7 : PARA_ERR_9_15");
  for (const int bit : {1, 2, 3, 4, 5})
    EXPECT_TRUE(ParameterErrorText(1, static_cast<std::uint8_t>(1 << bit))
                    .ends_with("axle 1 can be lifted and has c and d sensor"));
}

TEST(ParameterErrors, AByteFarOutsideHasNoMessage) {
  EXPECT_EQ(ParameterErrorText(std::numeric_limits<int>::min(), 1), "");
  EXPECT_EQ(ParameterErrorText(std::numeric_limits<int>::max(), 128), "");
}

}  // namespace
}  // namespace lorimet
