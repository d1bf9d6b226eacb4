// The two readers of .ui files, that of the headless desktop and that of the layer check, see the
// same windows.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "adapters/headless/ui_design.h"
#include "autotests/places.h"

namespace lorimet {
namespace {

// What a command says, line by line, sorted; empty when it fails.
std::vector<std::string> LinesOf(const std::string& command) {
  std::string text;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return {};
  char buffer[4096];
  while (const std::size_t size = std::fread(buffer, 1, sizeof buffer, pipe))
    text.append(buffer, size);
  if (pclose(pipe) != 0) return {};
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find('\n', at), text.size());
    lines.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

TEST(UiReaders, SeeTheSameWidgetsAndActionsInEveryWindow) {
  std::vector<std::string> seen;
  for (const std::string& form : UiFormNames())
    for (const auto& [name, control] : ReadUiDesign(form).controls)
      if (name != form) seen.push_back(form + " " + control.widget_class + " " + name);
  std::sort(seen.begin(), seen.end());
  ASSERT_GT(seen.size(), 100u);
  EXPECT_EQ(LinesOf("python3 -B '" + InSource("tools/layer_check.py") + "' --drawn"), seen);
}

}  // namespace
}  // namespace lorimet
