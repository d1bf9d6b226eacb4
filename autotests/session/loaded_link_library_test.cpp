// The link library in its own file: loading all or nothing, and passing every operation on.
#include "session/loaded_link_library.h"

#include <gtest/gtest.h>

#include <bit>
#include <concepts>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/shared_library.h"

namespace lorimet {
namespace {

// What the operations of the stand-in file were called with, as "Name 1 2 3".
std::vector<std::string> g_calls;

std::string TextOf(const void* value) { return std::to_string(std::bit_cast<std::uintptr_t>(value)); }
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
  using namespace stand_in;
  return {
      {"Connect", Address(Connect)},
      {"Disconnect", Address(Disconnect)},
      {"GetErrorText", Address(GetErrorText)},
      {"ResetECU", Address(ResetECU)},
      {"ClearAllFaults", Address(ClearAllFaults)},
      {"FaultLock", Address(FaultLock)},
      {"FaultGetCount", Address(FaultGetCount)},
      {"FaultGetData", Address(FaultGetData)},
      {"FaultUnlock", Address(FaultUnlock)},
      {"BusMonitorOpen", Address(BusMonitorOpen)},
      {"BusMonitorClose", Address(BusMonitorClose)},
      {"BusMonitorGetData", Address(BusMonitorGetData)},
      {"BusMonitorStartRecord", Address(BusMonitorStartRecord)},
      {"BusMonitorStopRecord", Address(BusMonitorStopRecord)},
      {"Trailer_ABS_QOR_ReadStaticData", Address(ReadStaticData)},
      {"Trailer_ABS_QOR_DeleteODRData", Address(DeleteODRData)},
      {"Trailer_ABS_KWP_StartSession", Address(StartSession)},
      {"Trailer_ABS_KWP_StopSession", Address(StopSession)},
      {"Trailer_ABS_KWP_Password", Address(Password)},
      {"Trailer_ABS_KWP_SwitchDiagMode", Address(SwitchDiagMode)},
      {"Trailer_ABS_KWP_StartRoutineByLocId", Address(StartRoutineByLocId)},
      {"Trailer_ABS_KWP_WriteMemoryByLocId", Address(WriteMemoryByLocId)},
      {"Trailer_ABS_KWP_WriteMemoryByAddress", Address(WriteMemoryByAddress)},
      {"Trailer_ABS_KWP_ReadMemoryByAddress", Address(ReadMemoryByAddress)},
      {"Trailer_ABS_KWP_IOControlByLocId", Address(IOControlByLocId)},
      {"Trailer_OVG_ReadDataByLocId", Address(ReadDataByLocId)},
      {"Trailer_OVG_UploadData", Address(UploadData)},
      {"Trailer_OVG_UploadODRData", Address(UploadODRData)},
      {"Trailer_OVG_ExportODRData", Address(ExportODRData)},
      {"Trailer_OVG_StopLightActivation", Address(StopLightActivation)},
  };
}

class StandInLibrary : public SharedLibrary {
 public:
  StandInLibrary(std::map<std::string, void*> operations, std::set<std::string>& asked, int& open)
      : operations_(std::move(operations)), asked_(asked), open_(open) {
    ++open_;
  }
  ~StandInLibrary() override { --open_; }
  void* Symbol(const std::string& name) override {
    asked_.insert(name);
    const auto found = operations_.find(name);
    return found == operations_.end() ? nullptr : found->second;
  }

 private:
  std::map<std::string, void*> operations_;
  std::set<std::string>& asked_;
  int& open_;
};

class StandInLoader : public LibraryLoader {
 public:
  std::string LinkLibraryPath() override { return path; }
  std::unique_ptr<SharedLibrary> Load(const std::string& file, std::string& error) override {
    loads.push_back(file);
    if (missing) {
      error = "no such file";
      return nullptr;
    }
    return std::make_unique<StandInLibrary>(operations, asked, open);
  }
  std::string path = "/program/libLorimet32.so";
  bool missing = false;
  std::map<std::string, void*> operations = AllOperations();
  std::set<std::string> asked;
  std::vector<std::string> loads;
  int open = 0;
};

class LoadedLinkLibraryTest : public testing::Test {
 protected:
  LoadedLinkLibraryTest() { g_calls.clear(); }

  std::int32_t Connect() {
    return library.Connect(protocol, 0x89ABCDEFu, vendor, -5, 3, bytes, bytes + 1, bytes + 2,
                           bytes + 3, bytes + 4, bytes + 5, bytes + 6, &word);
  }
  std::string ErrorText() {
    std::string text(400, ' ');
    library.GetErrorText(LoadedLinkLibrary::kLibraryMissing, text.data(), 400);
    return text.substr(0, text.find_last_not_of(' ') + 1);
  }
  std::vector<std::string> Take() { return std::exchange(g_calls, {}); }

  StandInLoader loader;
  LoadedLinkLibrary library{loader};
  char protocol[8] = "p";
  char vendor[8] = "v";
  std::uint8_t bytes[16] = {};
  std::uint32_t word = 0;
};

TEST_F(LoadedLinkLibraryTest, IsLoadedAtTheFirstConnectAndKept) {
  EXPECT_TRUE(loader.loads.empty());
  EXPECT_EQ(library.ResetECU(), -1);
  EXPECT_TRUE(loader.loads.empty());
  EXPECT_EQ(Connect(), 101);
  EXPECT_EQ(Connect(), 102);
  EXPECT_EQ(library.Disconnect(), 103);
  EXPECT_EQ(loader.loads, std::vector<std::string>{"/program/libLorimet32.so"});
  EXPECT_EQ(loader.open, 1);
}

TEST_F(LoadedLinkLibraryTest, AsksForEveryOperationByItsName) {
  Connect();
  std::set<std::string> names;
  for (const auto& [name, address] : AllOperations()) names.insert(name);
  EXPECT_EQ(loader.asked, names);
  EXPECT_EQ(names.size(), 30u);
}

TEST_F(LoadedLinkLibraryTest, TellsWhyTheFileCannotBeLoaded) {
  loader.missing = true;
  EXPECT_EQ(ErrorText(), "");
  EXPECT_EQ(Connect(), 128);
  EXPECT_EQ(ErrorText(),
            "The link library /program/libLorimet32.so cannot be loaded: no such file");
  EXPECT_TRUE(Take().empty());
}

TEST_F(LoadedLinkLibraryTest, CutsTheReasonAtTheBuffer) {
  loader.missing = true;
  Connect();
  char text[12] = "           ";
  library.GetErrorText(128, text, 8);
  EXPECT_STREQ(text, "The link   ");
}

TEST_F(LoadedLinkLibraryTest, NamesEveryOperationThatIsMissing) {
  for (const char* name : {"Disconnect", "FaultUnlock", "Trailer_OVG_ReadDataByLocId"})
    loader.operations.erase(name);
  EXPECT_EQ(Connect(), 128);
  EXPECT_EQ(ErrorText(),
            "The link library /program/libLorimet32.so lacks the operations Disconnect, "
            "FaultUnlock, Trailer_OVG_ReadDataByLocId");
  EXPECT_EQ(loader.open, 0);  // not kept half-way
  EXPECT_EQ(library.ResetECU(), -1);
  EXPECT_TRUE(Take().empty());
}

TEST_F(LoadedLinkLibraryTest, RefusesALibraryThatLacksAnyOneOperation) {
  for (const auto& [name, address] : AllOperations()) {
    loader.operations = AllOperations();
    loader.operations.erase(name);
    EXPECT_EQ(Connect(), 128) << name;
    EXPECT_EQ(ErrorText(), "The link library /program/libLorimet32.so lacks the operations " + name);
  }
}

TEST_F(LoadedLinkLibraryTest, TriesAnewAtTheNextConnect) {
  loader.missing = true;
  EXPECT_EQ(Connect(), 128);
  EXPECT_EQ(Connect(), 128);
  loader.missing = false;
  loader.operations.erase("ResetECU");
  EXPECT_EQ(Connect(), 128);
  loader.operations = AllOperations();
  loader.path = "/elsewhere/libLorimet32.so";
  EXPECT_EQ(Connect(), 101);
  EXPECT_EQ(loader.loads.size(), 4u);
  EXPECT_EQ(loader.loads.back(), "/elsewhere/libLorimet32.so");
  // From now on the library words its errors itself.
  char text[4] = "   ";
  EXPECT_EQ(library.GetErrorText(128, text, 3), 102);
}

TEST_F(LoadedLinkLibraryTest, AnswersMinusOneWithoutTheLibrary) {
  loader.missing = true;
  Connect();
  EXPECT_EQ(library.Disconnect(), -1);
  EXPECT_EQ(library.FaultLock(), -1);
  EXPECT_EQ(library.FaultGetCount(), -1);
  EXPECT_EQ(library.Trailer_ABS_KWP_StartSession(0x83), -1);
  EXPECT_EQ(library.Trailer_OVG_ReadDataByLocId(1, bytes, bytes), -1);
}

TEST_F(LoadedLinkLibraryTest, PassesEveryOperationOnWithItsArgumentsAndItsResult) {
  Connect();
  const std::string p = TextOf(static_cast<void*>(protocol));
  const std::string v = TextOf(static_cast<void*>(vendor));
  const auto b = [this](int i) { return TextOf(static_cast<void*>(bytes + i)); };
  const std::vector<std::string> connect = Take();
  EXPECT_EQ(connect, std::vector<std::string>{
                         "Connect " + p + " 2309737967 " + v + " -5 3 " + b(0) + " " + b(1) + " " +
                         b(2) + " " + b(3) + " " + b(4) + " " + b(5) + " " + b(6) + " " +
                         TextOf(static_cast<void*>(&word))});
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
