// Every operation of the loaded link library is passed on with its arguments and its result.
#include "session/loaded_link_library.h"

#include <gtest/gtest.h>

#include <bit>
#include <concepts>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/shared_library.h"

namespace lorimet {
namespace {

// What the operations of the stand-in file were called with, as "Name 1 2 3".
std::vector<std::string> g_calls;

std::string TextOf(const void* value) {
  return std::to_string(std::bit_cast<std::uintptr_t>(value));
}
std::string TextOf(std::integral auto value) { return std::to_string(value); }

template <typename... Arguments>
std::int32_t Note(const char* name, Arguments... arguments) {
  std::string call = name;
  ((call += " " + TextOf(arguments)), ...);
  g_calls.push_back(call);
  return static_cast<std::int32_t>(100 + g_calls.size());
}

// Each operation of the stand-in, typed out and not taken from the program's own list.
namespace stand_in {
using I = std::int32_t;
using B = std::uint8_t;
using P = std::uint8_t*;
using T = char*;
// clang-format off
I Connect(T a, std::uint32_t b, T c, I d, I e, P f, P g, void* h, void* i, P j, P k, P l, std::uint32_t* m)
                                              { return Note("Connect", static_cast<void*>(a), b, static_cast<void*>(c), d, e, f, g, h, i, j, k, l, m); }
I Disconnect()                                { return Note("Disconnect"); }
I GetErrorText(I a, T b, I c)                 { return Note("GetErrorText", a, static_cast<void*>(b), c); }
I ResetECU()                                  { return Note("ResetECU"); }
I ClearAllFaults()                            { return Note("ClearAllFaults"); }
I FaultLock()                                 { return Note("FaultLock"); }
I FaultGetCount()                             { return Note("FaultGetCount"); }
I FaultGetData(void* a)                       { return Note("FaultGetData", a); }
I FaultUnlock()                               { return Note("FaultUnlock"); }
I BusMonitorOpen()                            { return Note("BusMonitorOpen"); }
I BusMonitorClose()                           { return Note("BusMonitorClose"); }
I BusMonitorGetData(T a, T b, I c, I d)       { return Note("BusMonitorGetData", static_cast<void*>(a), static_cast<void*>(b), c, d); }
I BusMonitorStartRecord(T a, T b, I c)        { return Note("BusMonitorStartRecord", static_cast<void*>(a), static_cast<void*>(b), c); }
I BusMonitorStopRecord()                      { return Note("BusMonitorStopRecord"); }
I ReadStaticData()                            { return Note("ReadStaticData"); }
I DeleteODRData(B a)                          { return Note("DeleteODRData", a); }
I StartSession(B a)                           { return Note("StartSession", a); }
I StopSession()                               { return Note("StopSession"); }
I Password()                                  { return Note("Password"); }
I SwitchDiagMode(B a)                         { return Note("SwitchDiagMode", a); }
I StartRoutineByLocId(B a, B b, P c)          { return Note("StartRoutineByLocId", a, b, c); }
I WriteMemoryByLocId(B a, B b, P c)           { return Note("WriteMemoryByLocId", a, b, c); }
I WriteMemoryByAddress(B a, B b, B c, B d, P e) { return Note("WriteMemoryByAddress", a, b, c, d, e); }
I ReadMemoryByAddress(B a, B b, B c, P d, P e)  { return Note("ReadMemoryByAddress", a, b, c, d, e); }
I IOControlByLocId(B a, B b, P c)             { return Note("IOControlByLocId", a, b, c); }
I ReadDataByLocId(B a, P b, P c)              { return Note("ReadDataByLocId", a, b, c); }
I UploadData(T a)                             { return Note("UploadData", static_cast<void*>(a)); }
I UploadODRData(B a, B b, I c)                { return Note("UploadODRData", a, b, c); }
I ExportODRData(T a)                          { return Note("ExportODRData", static_cast<void*>(a)); }
I StopLightActivation(I a, I b)               { return Note("StopLightActivation", a, b); }
// clang-format on
}  // namespace stand_in

template <typename Function>
void* Address(Function* function) {
  return std::bit_cast<void*>(function);
}

std::map<std::string, void*> AllOperations() {
  return {
      {"Connect", Address(stand_in::Connect)},
      {"Disconnect", Address(stand_in::Disconnect)},
      {"GetErrorText", Address(stand_in::GetErrorText)},
      {"ResetECU", Address(stand_in::ResetECU)},
      {"ClearAllFaults", Address(stand_in::ClearAllFaults)},
      {"FaultLock", Address(stand_in::FaultLock)},
      {"FaultGetCount", Address(stand_in::FaultGetCount)},
      {"FaultGetData", Address(stand_in::FaultGetData)},
      {"FaultUnlock", Address(stand_in::FaultUnlock)},
      {"BusMonitorOpen", Address(stand_in::BusMonitorOpen)},
      {"BusMonitorClose", Address(stand_in::BusMonitorClose)},
      {"BusMonitorGetData", Address(stand_in::BusMonitorGetData)},
      {"BusMonitorStartRecord", Address(stand_in::BusMonitorStartRecord)},
      {"BusMonitorStopRecord", Address(stand_in::BusMonitorStopRecord)},
      {"Trailer_ABS_QOR_ReadStaticData", Address(stand_in::ReadStaticData)},
      {"Trailer_ABS_QOR_DeleteODRData", Address(stand_in::DeleteODRData)},
      {"Trailer_ABS_KWP_StartSession", Address(stand_in::StartSession)},
      {"Trailer_ABS_KWP_StopSession", Address(stand_in::StopSession)},
      {"Trailer_ABS_KWP_Password", Address(stand_in::Password)},
      {"Trailer_ABS_KWP_SwitchDiagMode", Address(stand_in::SwitchDiagMode)},
      {"Trailer_ABS_KWP_StartRoutineByLocId", Address(stand_in::StartRoutineByLocId)},
      {"Trailer_ABS_KWP_WriteMemoryByLocId", Address(stand_in::WriteMemoryByLocId)},
      {"Trailer_ABS_KWP_WriteMemoryByAddress", Address(stand_in::WriteMemoryByAddress)},
      {"Trailer_ABS_KWP_ReadMemoryByAddress", Address(stand_in::ReadMemoryByAddress)},
      {"Trailer_ABS_KWP_IOControlByLocId", Address(stand_in::IOControlByLocId)},
      {"Trailer_OVG_ReadDataByLocId", Address(stand_in::ReadDataByLocId)},
      {"Trailer_OVG_UploadData", Address(stand_in::UploadData)},
      {"Trailer_OVG_UploadODRData", Address(stand_in::UploadODRData)},
      {"Trailer_OVG_ExportODRData", Address(stand_in::ExportODRData)},
      {"Trailer_OVG_StopLightActivation", Address(stand_in::StopLightActivation)},
  };
}

class StandInLoader : public LibraryLoader {
 public:
  std::string LinkLibraryPath() override { return "libLorimet32.so"; }
  std::unique_ptr<SharedLibrary> Load(const std::string& path, std::string& error) override {
    static_cast<void>(path);
    static_cast<void>(error);
    return std::make_unique<Library>();
  }

 private:
  class Library : public SharedLibrary {
   public:
    void Keep() override {}
    void* Symbol(const std::string& name) override {
      const auto found = operations_.find(name);
      return found == operations_.end() ? nullptr : found->second;
    }

   private:
    std::map<std::string, void*> operations_ = AllOperations();
  };
};

class LinkOperationsTest : public testing::Test {
 protected:
  LinkOperationsTest() { g_calls.clear(); }

  std::int32_t Connect() {
    return library.Connect(protocol, 0x89ABCDEFu, vendor, -5, 3, bytes, bytes + 1, bytes + 2,
                           bytes + 3, bytes + 4, bytes + 5, bytes + 6, &word);
  }
  std::vector<std::string> Take() { return std::exchange(g_calls, {}); }

  StandInLoader loader;
  LoadedLinkLibrary library{loader};
  char protocol[8] = "p";
  char vendor[8] = "v";
  std::uint8_t bytes[16] = {};
  std::uint32_t word = 0;
};

TEST_F(LinkOperationsTest, PassesEveryOperationOnWithItsArgumentsAndItsResult) {
  Connect();
  const std::string p = TextOf(static_cast<void*>(protocol));
  const std::string v = TextOf(static_cast<void*>(vendor));
  const auto b = [this](int i) { return TextOf(static_cast<void*>(bytes + i)); };
  const std::vector<std::string> connect = Take();
  EXPECT_EQ(connect,
            std::vector<std::string>{"Connect " + p + " 2309737967 " + v + " -5 3 " + b(0) + " " +
                                     b(1) + " " + b(2) + " " + b(3) + " " + b(4) + " " + b(5) +
                                     " " + b(6) + " " + TextOf(static_cast<void*>(&word))});
  struct Row {
    std::function<std::int32_t(LinkLibrary&)> call;
    std::string expected;
  };
  // clang-format off
  const Row rows[] = {
      {[&](auto& l) { return l.Disconnect(); },                                  "Disconnect"},
      {[&](auto& l) { return l.GetErrorText(-7, vendor, 5); },                   "GetErrorText -7 " + v + " 5"},
      {[&](auto& l) { return l.ResetECU(); },                                    "ResetECU"},
      {[&](auto& l) { return l.ClearAllFaults(); },                              "ClearAllFaults"},
      {[&](auto& l) { return l.FaultLock(); },                                   "FaultLock"},
      {[&](auto& l) { return l.FaultGetCount(); },                               "FaultGetCount"},
      {[&](auto& l) { return l.FaultGetData(bytes); },                           "FaultGetData " + b(0)},
      {[&](auto& l) { return l.FaultUnlock(); },                                 "FaultUnlock"},
      {[&](auto& l) { return l.BusMonitorOpen(); },                              "BusMonitorOpen"},
      {[&](auto& l) { return l.BusMonitorClose(); },                             "BusMonitorClose"},
      {[&](auto& l) { return l.BusMonitorGetData(protocol, vendor, 1, 2); },     "BusMonitorGetData " + p + " " + v + " 1 2"},
      {[&](auto& l) { return l.BusMonitorStartRecord(protocol, vendor, 3); },    "BusMonitorStartRecord " + p + " " + v + " 3"},
      {[&](auto& l) { return l.BusMonitorStopRecord(); },                        "BusMonitorStopRecord"},
      {[&](auto& l) { return l.Trailer_ABS_QOR_ReadStaticData(); },              "ReadStaticData"},
      {[&](auto& l) { return l.Trailer_ABS_QOR_DeleteODRData(200); },            "DeleteODRData 200"},
      {[&](auto& l) { return l.Trailer_ABS_KWP_StartSession(0x83); },            "StartSession 131"},
      {[&](auto& l) { return l.Trailer_ABS_KWP_StopSession(); },                 "StopSession"},
      {[&](auto& l) { return l.Trailer_ABS_KWP_Password(); },                    "Password"},
      {[&](auto& l) { return l.Trailer_ABS_KWP_SwitchDiagMode(9); },             "SwitchDiagMode 9"},
      {[&](auto& l) { return l.Trailer_ABS_KWP_StartRoutineByLocId(1, 2, bytes); },  "StartRoutineByLocId 1 2 " + b(0)},
      {[&](auto& l) { return l.Trailer_ABS_KWP_WriteMemoryByLocId(3, 4, bytes); },   "WriteMemoryByLocId 3 4 " + b(0)},
      {[&](auto& l) { return l.Trailer_ABS_KWP_WriteMemoryByAddress(1, 2, 3, 4, bytes); }, "WriteMemoryByAddress 1 2 3 4 " + b(0)},
      {[&](auto& l) { return l.Trailer_ABS_KWP_ReadMemoryByAddress(1, 2, 3, bytes, bytes + 1); }, "ReadMemoryByAddress 1 2 3 " + b(0) + " " + b(1)},
      {[&](auto& l) { return l.Trailer_ABS_KWP_IOControlByLocId(5, 6, bytes); }, "IOControlByLocId 5 6 " + b(0)},
      {[&](auto& l) { return l.Trailer_OVG_ReadDataByLocId(7, bytes, bytes + 1); }, "ReadDataByLocId 7 " + b(0) + " " + b(1)},
      {[&](auto& l) { return l.Trailer_OVG_UploadData(vendor); },                "UploadData " + v},
      {[&](auto& l) { return l.Trailer_OVG_UploadODRData(1, 0x51, 2); },         "UploadODRData 1 81 2"},
      {[&](auto& l) { return l.Trailer_OVG_ExportODRData(vendor); },             "ExportODRData " + v},
      {[&](auto& l) { return l.Trailer_OVG_StopLightActivation(-1, 70000); },    "StopLightActivation -1 70000"},
  };
  // clang-format on
  EXPECT_EQ(std::size(rows) + 1, AllOperations().size());
  for (const Row& row : rows) {
    EXPECT_EQ(row.call(library), 101) << row.expected;
    EXPECT_EQ(Take(), std::vector<std::string>{row.expected});
  }
}

}  // namespace
}  // namespace lorimet
