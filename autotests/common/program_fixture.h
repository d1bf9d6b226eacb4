// The whole program on the headless desktop, for tests of its screens.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "adapters/headless/headless_desktop.h"
#include "adapters/headless/headless_files.h"
#include "adapters/headless/headless_ports.h"
#include "adapters/headless/recording_printer.h"
#include "adapters/posix/posix_profile_file.h"
#include "autotests/common/fake_link.h"
#include "autotests/places.h"
#include "platform/runtime_error.h"
#include "program.h"
#include "session/ecu_data.h"

namespace lorimet {
class frmZeltMain;
}  // namespace lorimet

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
  MemoryRegistry registry;
  HeadlessMessageHook hook;
  HeadlessProcess process;
  RecordingHelpViewer help_viewer;
  TsTranslations translations{InSource("translations")};
  PosixProfileFile profile_file;
  MemoryTextFiles text_files;
  RecordingPrinter printer;
  Program program{{desktop, clock, registry, hook, process, link, help_viewer, translations,
                   profile_file, text_files, printer}};
};

}  // namespace lorimet::testing_support
