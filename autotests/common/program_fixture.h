// The whole program on the headless desktop, for tests of its screens.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "autotests/common/boxes.h"
#include "autotests/common/fake_link.h"
#include "autotests/common/stand_ins.h"
#include "platform/runtime_error.h"
#include "program.h"
#include "session/ecu_data.h"

namespace lorimet {
class frmZeltMain;
}  // namespace lorimet

namespace lorimet::testing_support {

// A program whose library answers 0 to everything and ends its static read at once. A box that a
// test did not take fails it.
class ProgramTest : public testing::Test, protected StandIns {
 protected:
  ProgramTest();
  ~ProgramTest() override;

  ECUData& Ecu();
  frmZeltMain& Main();
  // Starts the program, connected, and forgets the calls of the start.
  void Start();
  void SetLanguage(int language);

  FakeLink link;
  SequenceClock clock{link};
  HeadlessDesktop desktop{clock};
  Program program{With(desktop, clock, link)};
};

}  // namespace lorimet::testing_support
