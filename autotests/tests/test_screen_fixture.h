// What a screen of the vehicle's tests needs, and a record that the test writes as the library
// would.
#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "adapters/headless/headless_ports.h"
#include "autotests/common/boxes.h"
#include "autotests/common/fake_link.h"
#include "autotests/places.h"
#include "faults/fault_table.h"
#include "faults/faults.h"
#include "session/ecu_data.h"
#include "support/dictionary.h"
#include "tests/test_frame.h"
#include "tests/test_results.h"

namespace lorimet::testing_support {

using Calls = std::vector<std::string>;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Link calls, sleeps and repaintings in the one order in which they happened. Equal sleeps in a row
// are one entry with their number, "sleep 10 x 40".
class Sequence {
 public:
  Sequence(FakeLink& link, HeadlessDesktop& desktop) { Watch(link, desktop); }
  void Watch(FakeLink& link, HeadlessDesktop& desktop) {
    link_ = &link;
    desktop.on_repaint = [this] { Add("repaint"); };
  }
  void Add(const std::string& entry) { link_->sequence.push_back(entry); }
  // The entries since the last call.
  Calls Take() {
    Calls taken;
    int sleeps = 0;
    std::string last;
    for (const std::string& entry : link_->TakeSequence()) {
      const bool again = entry == last && entry.starts_with("sleep");
      sleeps = again ? sleeps + 1 : 1;
      if (again) taken.pop_back();
      taken.push_back(again ? entry + " x " + std::to_string(sleeps) : entry);
      last = entry;
    }
    return taken;
  }

 private:
  FakeLink* link_ = nullptr;
};

// A box that a test did not take fails it.
class TestScreenTest : public testing::Test {
 protected:
  TestScreenTest() {
    dictionary.Open();
    dictionary.SetLanguage(kEnglish);
    ecu.bNumSensors.Store(4);
    ecu.bNumModulators.Store(2);
    ecu.dSupplyPress.Store(112.0);
    ecu.dServiceBrake.Store(0.0);
    ecu.dMainBellows.Store(10.2);
    ecu.dBrake1Press.Store(0.0);
    ecu.dBrake2Press.Store(0.0);
    ecu.dControlPressure1.Store(14.51);
    ecu.dControlPressure2.Store(65.295);
    ecu.dTargetPressure1.Store(11.608);
    ecu.dTargetPressure2.Store(58.04);
    ecu.dLadenBellows.Store(69.648);
    ecu.dUnladenBellows.Store(10.157);
    ecu.dLadenHeightValue.Store(80.0);
  }
  ~TestScreenTest() override {
    if (!HasFailure()) {
      EXPECT_EQ(desktop.TakeBoxes(), Boxes{}) << "a message box that the test did not expect";
    }
  }

  TestParts Parts() { return {desktop, clock, dictionary, link, ecu, results}; }
  // The text of a row of the catalogue.
  std::string Row(int language, const std::string& key) {
    return translations.Rows(language).at(key);
  }
  // What was called since the last look, and nothing else.
  void ExpectCalls(const Calls& calls) { EXPECT_EQ(sequence.Take(), calls); }

  FakeLink link;
  SequenceClock clock{link};
  HeadlessDesktop desktop{clock};
  Sequence sequence{link, desktop};
  TsTranslations translations{InSource("translations")};
  Dictionary dictionary{translations, desktop};
  ECUData ecu{};
  TestResults results;
  FaultTable table;
  Faults faults{link, desktop, dictionary, table};
};

}  // namespace lorimet::testing_support
