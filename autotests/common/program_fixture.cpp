#include "autotests/common/program_fixture.h"

#include "session/session_part.h"
#include "support/settings.h"

namespace lorimet::testing_support {

ProgramTest::ProgramTest() {
  link.on_static_read = [this] { Ecu().nLinkJobDone.Store(-1); };
  desktop.on_do_events = [this] { hook.Deliver(); };
}

ProgramTest::~ProgramTest() {
  if (!HasFailure()) {
    EXPECT_EQ(desktop.TakeBoxes(), Boxes{}) << "a message box that the test did not expect";
  }
  // A form that a test left open is closed with no further calls.
  link.on_disconnect = nullptr;
}

ECUData& ProgramTest::Ecu() { return program.session->records.ecu_data; }

frmZeltMain& ProgramTest::Main() { return program.session->main_form; }

void ProgramTest::Start() {
  ASSERT_EQ(program.Start(), EntryResult::kRunning);
  link.TakeCalls();
  link.TakeSequence();
}

void ProgramTest::SetLanguage(int language) {
  registry.SetNumber(RegistryHive::kCurrentUser, kProductKey, "Language",
                     static_cast<std::uint32_t>(language));
}

}  // namespace lorimet::testing_support
