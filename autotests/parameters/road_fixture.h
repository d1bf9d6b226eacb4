// A program on a simulated trailer, in virtual time, and a user who walks through its wizard.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "autotests/common/gestures.h"
#include "autotests/common/program_fixture.h"
#include "autotests/common/simulated_link.h"
#include "autotests/common/stand_ins.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"

namespace lorimet::testing_support {

using Bytes = std::vector<std::uint8_t>;

constexpr std::array<std::uint8_t, 16> kBlocks = {0x03, 0x3D, 0x27, 0x17, 0x28, 0x05, 0x06, 0x42,
                                                  0x37, 0x38, 0x39, 0x3A, 0x3B, 0x3C, 0x44, 0x45};

// A program on a simulated trailer; time passes in both at once.
template <typename Base>
class RoadFixture : public Base, protected StandIns {
 protected:
  void Begin(const std::string& scenario) {
    link = std::make_unique<SimulatedLink>(scenario);
    ASSERT_EQ(link->link.ScenarioError(), "");
    Drive(link->link, clock);
    desktop.on_do_events = [this] { hook.Deliver(); };
    program = std::make_unique<Program>(With(desktop, clock, *link));
    ASSERT_EQ(program->Start(), EntryResult::kRunning);
    one_modulator_ = Ecu().bNumModulators.Load() == 1;
  }
  static std::string Scenario(const std::string& configuration,
                              const std::string& suspension = "air") {
    return "configuration " + configuration + "\nsuspension " + suspension + "\n";
  }

  // Walks through the wizard and saves; `edit` may change a page on the way.
  void Walk(const std::function<void(Form&)>& edit, Button frmOVGParm3::*save) {
    const auto next = [&](const char* form, auto member) {
      desktop.OnModal(form, [edit, member](Form& page) {
        edit(page);
        Press(member(page));
      });
    };
    next("frmOVGParm1", [](Form& f) -> Button& { return static_cast<frmOVGParm1&>(f).cmdNext; });
    if (!one_modulator_)
      next("frmGIOSelection",
           [](Form& f) -> Button& { return static_cast<frmGIOSelection&>(f).cmdNext; });
    next("frmOVGParm2", [](Form& f) -> Button& { return static_cast<frmOVGParm2&>(f).cmdNext; });
    next("frmOVGParm3", [save](Form& f) -> Button& { return static_cast<frmOVGParm3&>(f).*save; });
    program->session->main_form.mnuSystem[0].UserClick();
  }
  ECUData& Ecu() { return program->session->records.ecu_data; }
  // What the ECU holds, by local id.
  std::map<int, Bytes> Stored() {
    std::map<int, Bytes> stored;
    StartEcuSession(*link);
    SetParameterAccess(*link, 1);
    for (const std::uint8_t id : kBlocks) {
      Bytes data(512);
      std::uint8_t count = 0;
      if (link->Trailer_OVG_ReadDataByLocId(id, &count, data.data()) != 0) continue;
      data.resize(count);
      stored[id] = data;
    }
    SetParameterAccess(*link, 0);
    return stored;
  }
  std::vector<std::string> Complaints() {
    std::vector<std::string> complaints;
    for (const MessageBox& box : desktop.TakeBoxes())
      if (box.title == "Parameter Error") complaints.push_back(box.text.substr(16, 4));
    return complaints;
  }
  // The indices at which two states of a block differ.
  static std::vector<int> Changed(const Bytes& before, const Bytes& after) {
    std::vector<int> indices;
    for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i)
      if (before[i] != after[i]) indices.push_back(static_cast<int>(i));
    return indices;
  }

  VirtualClock clock;
  HeadlessDesktop desktop{clock};
  std::unique_ptr<SimulatedLink> link;
  std::unique_ptr<Program> program;

 private:
  bool one_modulator_ = false;  // the trailer has, which skips the page of the functions
};

const auto kNoEdit = [](Form&) {};

}  // namespace lorimet::testing_support
