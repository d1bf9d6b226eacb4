// The recorder's screens with a library of the test's own, in virtual time.
#pragma once

#include <string>
#include <vector>

#include "autotests/reports/report_fixture.h"
#include "support/text.h"

namespace lorimet::testing_support {

using Calls = std::vector<std::string>;

const Calls kAccessOn = {"StartRoutine 42:00000100"};
const Calls kAccessOff = {"StartRoutine 42:00000000"};

inline Calls operator+(Calls a, const Calls& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}
inline Calls Times(int count, const std::string& call) {
  return Calls(static_cast<std::size_t>(count), call);
}

// A program that is connected and stands in /opt/lorimet, in English.
class RecorderTest : public ReportTest {
 protected:
  void SetUp() override {
    process.folder = "/opt/lorimet";
    SetLanguage(kEnglish);
    Start();
    ReportTest::SetUp();
    program.session->main_form.txtError.SetText("");
  }
  void Speak(int language) { program.support->dictionary.SetLanguage(language); }
  void ExpectCalls(const Calls& calls) { EXPECT_EQ(link.TakeCalls(), calls); }
  void ExpectBox(const MessageBox& box) { EXPECT_EQ(desktop.TakeBoxes(), Boxes{box}); }
};

// A vehicle id or a serial number as the ECU tells it, and what the files are called after them;
// empty where there is nothing to be called after.
struct Naming {
  std::string vehicle_id, serial, name;
};

inline const std::vector<Naming>& Namings() {
  static const std::vector<Naming> namings = {
      {"1NL4S2M30A0012345", "000417723518", "1NL4S2M30A0012345"},
      {"1NL4S2M30A00123456", "000417723518", "1NL4S2M30A00123456"},
      {"1NL4 2M30A0012345", "000417723518", "1NL4"},
      {"  1NL4S2M30A", "000417723518", "1NL4S2M30A"},
      {std::string("1NL\0S2M", 7), "000417723518", "1NL"},
      {std::string(" \0S2M", 5), "000417723518", "000417723518"},
      {"", "000417723518", "000417723518"},
      {"                  ", "0123456789ABCDEF", "0123456789AB"},
      {"", "  0123456789ABC", "0123456789AB"},
      {"", "42", "42"},
      {ToCp1252("GÖTE"), "", "GÖTE"},
      {"", "", ""},
  };
  return namings;
}

}  // namespace lorimet::testing_support
