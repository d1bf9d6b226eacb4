// The forms of the parameter wizard within the whole program, for the tests of each.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "autotests/common/gestures.h"
#include "autotests/common/program_fixture.h"
#include "parameters/parameters_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {

constexpr std::array<std::pair<const char*, BlockName>, 16> kImageBlocks = {{
    {"EOL1", &ParameterImage::EOL1},
    {"EOL2", &ParameterImage::EOL2},
    {"EOL3", &ParameterImage::EOL3},
    {"EOL4", &ParameterImage::EOL4},
    {"EOL5", &ParameterImage::EOL5},
    {"EOL6", &ParameterImage::EOL6},
    {"EOL7", &ParameterImage::EOL7},
    {"EOL9", &ParameterImage::EOL9},
    {"FCF1", &ParameterImage::FCF1},
    {"FCF2", &ParameterImage::FCF2},
    {"FCF3", &ParameterImage::FCF3},
    {"FCF4", &ParameterImage::FCF4},
    {"FCF5", &ParameterImage::FCF5},
    {"FCF6", &ParameterImage::FCF6},
    {"FCF7", &ParameterImage::FCF7},
    {"FCF8", &ParameterImage::FCF8},
}};

// The bytes of two images that differ, as "EOL2(5): 16 -> 176".
inline std::vector<std::string> Differences(const ParameterImage& before,
                                            const ParameterImage& after) {
  std::vector<std::string> lines;
  const auto compare = [&](const std::string& name, const ParmBlock& a, const ParmBlock& b) {
    for (int i = 0; i < ParmBlock::kSize; ++i)
      if (a(i) != b(i))
        lines.push_back(name + "(" + std::to_string(i) + "): " + std::to_string(a(i)) + " -> " +
                        std::to_string(b(i)));
    if (a.bNumBytes != b.bNumBytes)
      lines.push_back(name + " count: " + std::to_string(a.bNumBytes) + " -> " +
                      std::to_string(b.bNumBytes));
  };
  for (const auto& [name, block] : kImageBlocks) compare(name, before.*block, after.*block);
  return lines;
}

using Lines = std::vector<std::string>;

// The forms are loaded and driven by themselves; the program need not be started.
class WizardFormTest : public ProgramTest {
 protected:
  ParameterImage& Image() { return program.parameters->image; }
  frmOVGParm1& System() { return program.parameters->system_page; }
  frmGIOSelection& Gio() { return program.parameters->gio_page; }
  frmGIOSpecial& Special() { return program.parameters->special_gio; }
  frmLiftAxlePressures& LiftAxle() { return program.parameters->lift_axle; }
  frmOVGParm2& LoadSensing() { return program.parameters->load_sensing_page; }
  frmOVGParm3& Last() { return program.parameters->overturn_guard_page; }
  frmSpeedSwitchThresh& SpeedSwitch() { return program.parameters->speed_switch; }

  // Fills every byte with its own value, so that a byte that is not written shows.
  void FillImage() {
    std::uint8_t value = 37;
    for (const auto& [name, block] : kImageBlocks)
      for (std::uint8_t& byte : (Image().*block).DataArr)
        byte = value = static_cast<std::uint8_t>(value + 89);
  }
  // The bytes that the action changes.
  Lines ChangesOf(const std::function<void()>& action) {
    const ParameterImage before = Image();
    action();
    return Differences(before, Image());
  }
  void Speak(int language) {
    program.support->dictionary.Open();
    program.support->dictionary.SetLanguage(language);
  }
  // Fills what the last page insists on, and saves to the ECU.
  void SaveToEcu() {
    Last().Load();
    for (int i = 0; i < 2; ++i) {
      Last().txtTireSize[i].UserType("3250");
      Last().txtNumTeeth[i].UserType("100");
    }
    Press(Last().cmdSaveToECU);
    desktop.TakeBoxes();
  }
  static MessageBox RangeBox(const std::string& text) {
    return PlainBox(text, "Range Limit Exceeded");
  }
  static MessageBox ValuesBox(const std::string& text) { return PlainBox(text, "Invalid Values"); }
};

// What the ECU's memory holds, by address, as first and second byte.
using Memory = std::map<int, std::pair<std::uint8_t, std::uint8_t>>;

inline auto AnswerFrom(const Memory& memory) {
  return [memory](int address, std::uint8_t* high, std::uint8_t* low) {
    const auto word = memory.find(address);
    if (word == memory.end()) return 1;
    *high = word->second.first;
    *low = word->second.second;
    return 0;
  };
}

}  // namespace lorimet::testing_support
