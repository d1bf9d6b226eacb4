// The real program fetches the ECU's memory from the real library, and the files are read back.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "autotests/common/memory_file_reader.h"
#include "autotests/places.h"
#include "autotests/process/running_program.h"

namespace lorimet {
namespace {

using testing_support::ReadMemoryFile;

class RecorderProcessTest : public ProcessTest {
 protected:
  // Files named after the vehicle lie beside the program, so it has a name that no other run has.
  RecorderProcessTest() {
    WriteFile(scenario_, "identity vehicle_id " + vehicle_ +
                             "\nidentity serial_number 4711\nword 2 0x3A 7 1234\n"
                             "word 2 0x20 0x2C 77\nflag 1\n");
    environment["LORIMET32_SCENARIO"] = scenario_;
  }
  ~RecorderProcessTest() override {
    for (const char* extension : {".tso", ".odr"})
      std::filesystem::remove(BesideTheProgram(extension));
  }
  std::string BesideTheProgram(const std::string& extension) const {
    return InBuild(vehicle_ + extension);
  }

  const std::string vehicle_ = "T" + std::to_string(getpid());
  const std::string scenario_ = folder / "trailer.scenario";
};

TEST_F(RecorderProcessTest, UploadsTheEepromAndTheFileHasWhatTheTrailerHas) {
  Run run(*this, "run");
  ASSERT_TRUE(run.Shows("frmZeltMain", "txtSerialNum", "text", "4711"));
  Trailer("transfer size 2560");
  Trailer("transfer restart_at 1024");
  const std::string file = folder / "memory.txt";
  WriteFile(file, "an earlier one");
  ASSERT_TRUE(run.Tell("trigger frmZeltMain mnuTools_0"));
  ASSERT_TRUE(run.ShowsWindow("dlgFile"));
  ASSERT_TRUE(run.Tell("choose dlgFile " + folder / "memory"));
  ASSERT_TRUE(run.ShowsWindow("frmSaveEEPROM"));
  EXPECT_TRUE(
      run.Shows("frmSaveEEPROM", "txtStatus", "plainText", "EEPROM Data saved in \n" + file));
  ASSERT_TRUE(run.Tell("click frmSaveEEPROM cmdClose"));
  ASSERT_TRUE(run.ShowsNoWindow("frmSaveEEPROM"));
  const auto memory = ReadMemoryFile(file);
  ASSERT_TRUE(memory);
  EXPECT_EQ(memory->sections.at("eeprom").size(), 2560u);
  EXPECT_EQ(memory->Text("eeprom", 0, 16), "4711");
  EXPECT_EQ(memory->Number("eeprom", 0x900, 1), 1u);
  EXPECT_EQ(memory->Number("eeprom", 0x916, 2), 1234u);
  EXPECT_EQ(Requests()["Trailer_OVG_UploadData"], 2) << "the upload and its resume";
}

TEST_F(RecorderProcessTest, ExportsTheRecorderStepByStep) {
  Run run(*this, "run");
  ASSERT_TRUE(run.Shows("frmZeltMain", "txtSerialNum", "text", "4711"));
  Trailer("export speed 10");
  ASSERT_TRUE(run.Tell("trigger frmZeltMain mnuODR_1"));
  EXPECT_TRUE(run.Shows("frmSaveODR", "txtStatus", "plainText",
                        "ODR Data saved in \n" + BesideTheProgram(".tso")));
  EXPECT_EQ(run.Get("frmSaveODR", "Progress", "value"), "8") << "the bar is full";
  ASSERT_TRUE(run.Tell("click frmSaveODR cmdClose"));
  ASSERT_TRUE(run.ShowsNoWindow("frmSaveODR"));
  const auto memory = ReadMemoryFile(BesideTheProgram(".tso"));
  ASSERT_TRUE(memory);
  EXPECT_EQ(memory->names.size(), 9u);
  EXPECT_EQ(memory->Number("abs", 0, 2), 1234u);
  EXPECT_EQ(memory->Number("ovg", 0, 2), 77u);
  EXPECT_EQ(Requests()["Trailer_OVG_UploadODRData"], 9);
}

TEST_F(RecorderProcessTest, SavesTheOverviewBesideTheProgram) {
  Run run(*this, "run");
  ASSERT_TRUE(run.Shows("frmZeltMain", "txtSerialNum", "text", "4711"));
  ASSERT_TRUE(run.Tell("trigger frmZeltMain mnuODR_0"));
  ASSERT_TRUE(run.Shows("frmODRView", "txtABSCount", "text", " 1234"));
  EXPECT_EQ(run.Get("frmODRView", "txtTrailerID", "text"), vehicle_);
  ASSERT_TRUE(run.Tell("click frmODRView cmdSave"));
  ASSERT_TRUE(run.ShowsWindow("msgBox"));
  ASSERT_TRUE(run.Tell("click msgBox ."));
  ASSERT_TRUE(run.ShowsNoWindow("msgBox"));
  ASSERT_TRUE(run.Tell("click frmODRView cmdClose"));
  std::ifstream stream(BesideTheProgram(".odr"), std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_NE(text.find("\r\nVIN : " + vehicle_ + "\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\n 1234    Total number of ABS activations\r\n"), std::string::npos);
}

}  // namespace
}  // namespace lorimet
