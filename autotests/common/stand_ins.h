// What stands in for the machine where a test or a measurement puts the whole program together.
#pragma once

#include <cstdint>
#include <string>

#include "adapters/headless/headless_files.h"
#include "adapters/headless/headless_ports.h"
#include "adapters/headless/recording_printer.h"
#include "adapters/posix/posix_profile_file.h"
#include "autotests/places.h"
#include "session/ports.h"
#include "simulator/library/link.h"
#include "support/settings.h"

namespace lorimet::testing_support {

// All ports but the desktop, its clock and the link. The launcher, without which no program starts,
// is there.
struct StandIns {
  StandIns() {
    process.files = {"/opt/hubrest"};
    registry.SetText(RegistryHive::kLocalMachine, std::string(kAppPathsKey) + "Hubrest.exe", "",
                     "/opt/hubrest");
  }
  Ports With(Desktop& desktop, Clock& clock, LinkLibrary& link) {
    return {desktop,     clock,        registry,     hook,       process, link,
            help_viewer, translations, profile_file, text_files, printer};
  }
  // The trailer lives in the program's time, and its statuses go to the message hook.
  void Drive(simulator::Link& trailer, VirtualClock& clock) {
    trailer.SetStatusSink([this](std::int32_t status) { hook.Post(status); });
    trailer.SetWaiter(
        [&clock](double seconds) { clock.Advance(static_cast<std::uint32_t>(seconds * 1000)); });
    clock.on_advance = [&trailer](std::uint32_t milliseconds) {
      trailer.Advance(milliseconds / 1000.0);
    };
  }

  MemoryRegistry registry;
  HeadlessMessageHook hook;
  HeadlessProcess process;
  RecordingHelpViewer help_viewer;
  TsTranslations translations{InSource("translations")};
  PosixProfileFile profile_file;
  MemoryTextFiles text_files;
  RecordingPrinter printer;
};

}  // namespace lorimet::testing_support
