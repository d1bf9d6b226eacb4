// The whole program on the headless desktop, for tests of its screens.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "adapters/headless/headless_ports.h"
#include "adapters/posix/posix_profile_file.h"
#include "autotests/common/fake_link.h"
#include "program.h"

namespace lorimet::testing_support {

using Boxes = std::vector<MessageBox>;

// A box of the dictionary with an OK button.
inline MessageBox DictionaryBox(const std::string& text, const std::string& title, BoxIcon icon) {
  MessageBox box;
  box.text = text;
  box.title = title;
  box.icon = icon;
  box.ok = "OK";
  return box;
}

inline MessageBox PlainBox(const std::string& text, const std::string& title,
                           BoxIcon icon = BoxIcon::kNone) {
  MessageBox box;
  box.text = text;
  box.title = title;
  box.icon = icon;
  return box;
}

// A program whose library answers 0 to everything and ends its static read at once. A box that a
// test did not take fails it.
class ProgramTest : public testing::Test {
 protected:
  ProgramTest() {
    link.on_static_read = [this] { Ecu().nLinkJobDone.Store(-1); };
    desktop.on_do_events = [this] { hook.Deliver(); };
    process.files = {"/opt/hubrest"};
    registry.SetText(RegistryHive::kLocalMachine, std::string(kAppPathsKey) + "Hubrest.exe", "",
                     "/opt/hubrest");
  }
  ~ProgramTest() override {
    if (!HasFailure()) {
      EXPECT_EQ(desktop.TakeBoxes(), Boxes{}) << "a message box that the test did not expect";
    }
    // A form that a test left open is closed with no further calls.
    link.on_disconnect = nullptr;
  }

  ECUData& Ecu() { return program.records.ecu_data; }
  frmZeltMain& Main() { return program.main_form; }
  // Starts the program, connected, and forgets the calls of the start.
  void Start() {
    ASSERT_EQ(program.Start(), EntryResult::kRunning);
    link.TakeCalls();
  }
  void SetLanguage(int language) {
    registry.SetNumber(RegistryHive::kCurrentUser, kProductKey, "Language",
                       static_cast<std::uint32_t>(language));
  }

  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  MemoryRegistry registry;
  HeadlessMessageHook hook;
  HeadlessProcess process;
  FakeLink link;
  RecordingHelpViewer help_viewer;
  TsTranslations translations{LORIMET_SOURCE_ROOT "/translations"};
  PosixProfileFile profile_file;
  Program program{
      {desktop, clock, registry, hook, process, link, help_viewer, translations, profile_file}};
};

}  // namespace lorimet::testing_support
