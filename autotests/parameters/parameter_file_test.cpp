// The parameter file: what is written, what is read, and what ends either in silence.
#include "parameters/parameter_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "autotests/common/program_fixture.h"
#include "autotests/platform/file_faults.h"
#include "parameters/block_table.h"
#include "parameters/parameters_part.h"
#include "session/session_part.h"
#include "support/support_part.h"

namespace lorimet::testing_support {
namespace {

namespace fs = std::filesystem;

// As long as it stands, no file of this process grows beyond `bytes`: a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

class ParameterFileTest : public ProgramTest {
 protected:
  ParameterFileTest() {
    folder_ = fs::path(testing::TempDir()) /
              ("ecu_" + std::to_string(::getpid()) + "_" +
               testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::create_directories(folder_);
    std::tm date{};
    date.tm_year = 126;
    date.tm_mon = 10;
    date.tm_mday = 7;
    date.tm_hour = 9;
    date.tm_min = 5;
    clock.SetDate(date);
  }
  ~ParameterFileTest() override { fs::remove_all(folder_); }

  ParameterImage& Image() { return program.parameters->image; }
  std::string Path() const { return folder_ / "trailer.ecu"; }
  static std::string TextOf(const std::string& path) {
    std::stringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
  }
  bool WriteFile() {
    desktop.AnswerFileDialog(Path());
    return program.parameters->parameter_file.WriteParmsToFile();
  }
  bool ReadFile() {
    desktop.AnswerFileDialog(Path());
    return program.parameters->parameter_file.ReadParmsFromFile();
  }
  std::string Told() const {
    return program.parameters->parameter_file.FailureText(program.support->dictionary);
  }
  bool ReadText(const std::string& text) {
    std::ofstream(Path(), std::ios::binary) << text;
    return ReadFile();
  }
  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }
  // A file that reads through, but for what `sections` says.
  static std::string Whole(const std::string& sections) {
    return sections +
           "[EOL7_Vehicle_Data]\r\nTrailerDateOfProduction=2006-17\r\nVIN=ABCDEFGHIJKLMNOPQR\r\n"
           "Manufacturer=ABCDEFGHIJKLMNOPQRST\r\nTypeOfVehicle=12345678901234567890\r\n";
  }
  void FillImage() {
    ParameterImage& image = Image();
    std::uint8_t seed = 1;
    for (ParmBlock* block : {&image.EOL1, &image.EOL2, &image.EOL5, &image.EOL9}) {
      block->bNumBytes = 5;
      for (int i = 1; i < 5; ++i) (*block)(i) = static_cast<std::uint8_t>(seed++ * 11);
    }
    for (int i = 4; i < 62; ++i) image.EOL7(i) = 'X';
    image.EOL7(1) = 0x20;
    image.EOL7(2) = 0x06;
    image.EOL7(3) = 0x17;
  }

  fs::path folder_;
};

TEST_F(ParameterFileTest, WritesSectionsAndKeysInTheirOrder) {
  FillImage();
  ASSERT_TRUE(WriteFile());
  EXPECT_EQ(TextOf(Path()),
            "[VERSION]\r\nCREATEDBY=Norvick Corbel Software / November 7, 2026 09:05\r\n"
            "[EOL1_System_Parameter]\r\nDataVersion=OVG Version 0.1\r\nP_001=11\r\nP_002=22\r\n"
            "P_003=33\r\nP_004=44\r\nCount=4\r\nChecksum=111\r\n"
            "[EOL2_GIO_Functions]\r\nDataVersion=OVG Version 0.1\r\nP_001=55\r\nP_002=66\r\n"
            "P_003=77\r\nP_004=88\r\nCount=4\r\nChecksum=31\r\n"
            "[EOL5_GIO_Connectors]\r\nDataVersion=OVG Version 0.1\r\nP_001=99\r\nP_002=110\r\n"
            "P_003=121\r\nP_004=132\r\nCount=4\r\nChecksum=207\r\n"
            "[EOL9_GIO_FID]\r\nDataVersion=OVG Version 0.1\r\nP_001=143\r\nP_002=154\r\n"
            "P_003=165\r\nP_004=176\r\nCount=4\r\nChecksum=127\r\n"
            "[EOL7_Vehicle_Data]\r\nDataVersion=OVG Version 0.1\r\n"
            "TrailerDateOfProduction=2006-17\r\nVIN=XXXXXXXXXXXXXXXXXX\r\n"
            "Manufacturer=XXXXXXXXXXXXXXXXXXXX\r\nTypeOfVehicle=XXXXXXXXXXXXXXXXXXXX\r\n");
}

TEST_F(ParameterFileTest, OptionalSectionsStandWhileTheirBlocksArePresent) {
  FillImage();
  Image().EOL3.bNumBytes = 2;
  Image().EOL4.bNumBytes = 2;
  Image().EOL6.bNumBytes = 2;
  Image().EOL9.bNumBytes = 0;
  ASSERT_TRUE(WriteFile());
  const std::string text = TextOf(Path());
  std::vector<std::string> sections;
  for (std::size_t at = 0; (at = text.find("\n[", at)) != std::string::npos; ++at)
    sections.push_back(text.substr(at + 2, text.find(']', at) - at - 2));
  EXPECT_EQ(sections, (std::vector<std::string>{"EOL1_System_Parameter", "EOL2_GIO_Functions",
                                                "EOL3_GIO_Parameter", "EOL4_SLEV_Parameter",
                                                "EOL5_GIO_Connectors", "EOL6_ServiceIntervall",
                                                "EOL7_Vehicle_Data"}));
}

TEST_F(ParameterFileTest, WhatIsWrittenReadsBack) {
  FillImage();
  ASSERT_TRUE(WriteFile());
  const ParameterImage before = Image();
  Image() = {};
  ASSERT_TRUE(ReadFile());
  for (ParmBlock ParameterImage::*block :
       {&ParameterImage::EOL1, &ParameterImage::EOL2, &ParameterImage::EOL5, &ParameterImage::EOL9})
    EXPECT_EQ(Image().*block, before.*block);
  EXPECT_EQ(Image().EOL7.bNumBytes, 123);
  EXPECT_TRUE(std::equal(before.EOL7.DataArr.begin() + 1, before.EOL7.DataArr.begin() + 62,
                         Image().EOL7.DataArr.begin() + 1));
}

TEST_F(ParameterFileTest, DialogsAskAsTheyShould) {
  FillImage();
  WriteFile();
  ReadFile();
  const std::vector<FileDialog> dialogs = desktop.TakeFileDialogs();
  ASSERT_EQ(dialogs.size(), 2u);
  EXPECT_EQ(dialogs[0].kind, FileDialog::Kind::kSave);
  EXPECT_EQ(dialogs[0].default_extension, ".ecu");
  EXPECT_EQ(dialogs[0].initial_directory, "/program");
  EXPECT_EQ(dialogs[0].filter, "ECU (*.ecu)|*.ecu|Text (*.txt)|*.txt|All Files (*.*)|*.*");
  EXPECT_TRUE(dialogs[0].path_must_exist);
  EXPECT_EQ(dialogs[1].kind, FileDialog::Kind::kOpen);
  EXPECT_EQ(dialogs[1].default_extension, ".ecu");
  EXPECT_EQ(dialogs[1].initial_directory, "/program");
  EXPECT_EQ(dialogs[1].file_name, "default");
  EXPECT_EQ(dialogs[1].filter, "ECU (*.ecu)|*.ecu");
  EXPECT_TRUE(dialogs[1].file_must_exist);
}

TEST_F(ParameterFileTest, FiltersOfTheSaveDialogAreInTheUsersLanguage) {
  program.support->dictionary.Open();
  program.support->dictionary.SetLanguage(kFrench);
  FillImage();
  WriteFile();
  EXPECT_EQ(desktop.TakeFileDialogs().at(0).filter,
            "ECU (*.ecu)|*.ecu|Texte (*.txt)|*.txt|Tous les fichiers (*.*)|*.*");
}

TEST_F(ParameterFileTest, ProposesTheVehicleThenTheSerialNumberThenAPlainName) {
  const auto proposed = [&] {
    EXPECT_FALSE(program.parameters->parameter_file.WriteParmsToFile());
    return desktop.TakeFileDialogs().at(0).file_name;
  };
  EXPECT_EQ(proposed(), "OVG Parameters");
  Ecu().SerialNum.Store(" 1234567890123 ");
  EXPECT_EQ(proposed(), "123456789012");
  Image().strTrailerVIN = "  VIN 7 ";
  EXPECT_EQ(proposed(), "VIN 7");
}

TEST_F(ParameterFileTest, ProposalThatIsNoFileNameFallsBack) {
  const auto proposed = [&] {
    EXPECT_FALSE(program.parameters->parameter_file.WriteParmsToFile());
    return desktop.TakeFileDialogs().at(0).file_name;
  };
  Ecu().SerialNum.Store("1234");
  for (const char* name : {"AB/12345", "..\\x", "C:x", "CON", "nul.txt", "a\tb", ".."}) {
    Image().strTrailerVIN = name;
    EXPECT_EQ(proposed(), "1234") << name;
  }
  for (const char* serial : {"                ", "12/34", "LPT1"}) {
    Ecu().SerialNum.Store(serial);
    EXPECT_EQ(proposed(), "OVG Parameters") << serial;
  }
  Image().strTrailerVIN = "AB-12345";
  EXPECT_EQ(proposed(), "AB-12345");
}

TEST_F(ParameterFileTest, NameWithoutASuffixOfTheDialogGetsOne) {
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"AB.1234", "AB.1234.ecu"}, {"AB", "AB.ecu"},     {"AB.ecu", "AB.ecu"},
      {"AB.ECU", "AB.ECU"},       {"AB.txt", "AB.txt"}, {"AB.ecu.bak", "AB.ecu.bak.ecu"},
      {"ecu", "ecu.ecu"},         {"a", "a.ecu"},
  };
  FillImage();
  for (const auto& [chosen, written] : rows) {
    desktop.AnswerFileDialog(folder_ / chosen);
    EXPECT_TRUE(program.parameters->parameter_file.WriteParmsToFile()) << chosen;
    EXPECT_TRUE(fs::exists(folder_ / written)) << chosen;
    EXPECT_EQ(FilesInFolder(), 1u) << chosen;
    fs::remove(folder_ / written);
  }
}

TEST_F(ParameterFileTest, ProposalEndsAtANulAndIsInTheProgramsOwnCharacters) {
  const auto proposed = [&] {
    EXPECT_FALSE(program.parameters->parameter_file.WriteParmsToFile());
    return desktop.TakeFileDialogs().at(0).file_name;
  };
  Ecu().SerialNum.Store(std::string("S\xE9\0XYZ", 6));
  EXPECT_EQ(proposed(), "Sé");
  Image().strTrailerVIN = " Ä7 ";
  EXPECT_EQ(proposed(), "Ä7");
}

TEST_F(ParameterFileTest, CancelDoesNothing) {
  FillImage();
  desktop.AnswerFileDialog(std::nullopt);
  EXPECT_FALSE(program.parameters->parameter_file.WriteParmsToFile());
  desktop.AnswerFileDialog(std::string());
  EXPECT_FALSE(program.parameters->parameter_file.WriteParmsToFile());
  desktop.AnswerFileDialog(std::nullopt);
  EXPECT_FALSE(program.parameters->parameter_file.ReadParmsFromFile());
  EXPECT_FALSE(fs::exists(Path()));
}

TEST_F(ParameterFileTest, AbsentBlockOfARequiredSectionEndsTheWriteHalfWay) {
  FillImage();
  Image().EOL5.bNumBytes = 0;
  EXPECT_FALSE(WriteFile());
  const std::string text = TextOf(Path());
  EXPECT_NE(text.find("[EOL2_GIO_Functions]"), std::string::npos);
  EXPECT_EQ(text.find("[EOL5_GIO_Connectors]"), std::string::npos);
  EXPECT_EQ(text.find("[EOL7_Vehicle_Data]"), std::string::npos);
}

TEST_F(ParameterFileTest, CountBeyondTheBlockEndsTheWriteHalfWay) {
  FillImage();
  Image().EOL1.bNumBytes = 201;
  EXPECT_TRUE(WriteFile());
  EXPECT_NE(TextOf(Path()).find("P_200=0\r\nCount=200\r\n"), std::string::npos);
  fs::remove(Path());
  Image().EOL1.bNumBytes = 202;
  EXPECT_FALSE(WriteFile());
  const std::string text = TextOf(Path());
  EXPECT_TRUE(text.ends_with("P_200=0\r\n")) << text;
}

TEST_F(ParameterFileTest, FullDiskLeavesTheOldFileWhole) {
  FillImage();
  Image().EOL1.bNumBytes = 201;
  ASSERT_TRUE(WriteFile());
  const std::string old = TextOf(Path());
  Image().EOL1(1) = 99;
  {
    const FullDisk full(1000);
    EXPECT_FALSE(WriteFile());
  }
  EXPECT_EQ(TextOf(Path()), old);
  EXPECT_EQ(FilesInFolder(), 1u);
  EXPECT_TRUE(WriteFile());
  EXPECT_NE(TextOf(Path()).find("P_001=99\r\n"), std::string::npos);
}

TEST_F(ParameterFileTest, FullDiskLeavesNothingOfANewFile) {
  FillImage();
  Image().EOL5.bNumBytes = 0;  // which ends the write half-way on top of it
  {
    const FullDisk full(100);
    EXPECT_FALSE(WriteFile());
  }
  EXPECT_EQ(FilesInFolder(), 0u);
}

TEST_F(ParameterFileTest, FolderInPlaceOfAFileNeitherReadsNorIsWritten) {
  FillImage();
  fs::create_directories(Path());
  EXPECT_FALSE(WriteFile());
  EXPECT_FALSE(ReadFile());
  EXPECT_EQ(Image().EOL1.bNumBytes, 0);
  EXPECT_EQ(FilesInFolder(), 1u);
}

TEST_F(ParameterFileTest, FileWithoutPermissionNeitherReadsNorIsWritten) {
  FillImage();
  std::ofstream(Path(), std::ios::binary) << Whole("");
  if (::geteuid() == 0) {
    fs::permissions(fs::path(Path()).parent_path(), fs::perms::all);
    ASSERT_EQ(::chown(Path().c_str(), 65534, 65534), 0);
  }
  const OrdinaryUser user;
  fs::permissions(Path(), fs::perms::none);
  EXPECT_FALSE(ReadFile());
  EXPECT_FALSE(WriteFile());
  fs::permissions(Path(), fs::perms::owner_read);
  EXPECT_TRUE(ReadFile());
  FillImage();
  EXPECT_FALSE(WriteFile());
  EXPECT_EQ(TextOf(Path()), Whole(""));
}

TEST_F(ParameterFileTest, SectionWithNoKeysIsLeftOut) {
  FillImage();
  Image().EOL2.bNumBytes = 1;
  EXPECT_TRUE(WriteFile());
  EXPECT_EQ(TextOf(Path()).find("[EOL2_GIO_Functions]"), std::string::npos);
}

TEST_F(ParameterFileTest, ChecksumOverflowsBeyondSixteenBits) {
  FillImage();
  // 128 x 255 + 127 = 32767 passes.
  Image().EOL1.bNumBytes = 130;
  for (int i = 1; i <= 128; ++i) Image().EOL1(i) = 255;
  Image().EOL1(129) = 127;
  EXPECT_TRUE(WriteFile());
  EXPECT_NE(TextOf(Path()).find("P_129=127\r\nCount=129\r\nChecksum=0\r\n"), std::string::npos);
  fs::remove(Path());
  Image().EOL1(129) = 128;
  EXPECT_FALSE(WriteFile());
  const std::string text = TextOf(Path());
  EXPECT_NE(text.find("P_128=255"), std::string::npos);
  EXPECT_EQ(text.find("P_129"), std::string::npos);
}

// Padding blanks are lost on the way through a file.
TEST_F(ParameterFileTest, ShortTextIsWrittenAndDoesNotReadBack) {
  FillImage();
  for (int i = 19; i < 22; ++i) Image().EOL7(i) = ' ';
  ASSERT_TRUE(WriteFile());
  EXPECT_NE(TextOf(Path()).find("VIN=XXXXXXXXXXXXXXX   \r\n"), std::string::npos);
  EXPECT_FALSE(ReadFile());
}

TEST_F(ParameterFileTest, DateIsWrittenInItsHexadecimalText) {
  FillImage();
  Image().EOL7(1) = 0x0A;
  Image().EOL7(2) = 0x00;
  Image().EOL7(3) = 0xB7;
  ASSERT_TRUE(WriteFile());
  EXPECT_NE(TextOf(Path()).find("TrailerDateOfProduction=A00-B7\r\n"), std::string::npos);
}

TEST_F(ParameterFileTest, TextsEndAtANul) {
  FillImage();
  Image().EOL7(6) = 0;
  ASSERT_TRUE(WriteFile());
  EXPECT_NE(TextOf(Path()).find("VIN=XX\r\n"), std::string::npos);
}

TEST_F(ParameterFileTest, ExistingFileIsReplacedInPlaceWithoutAQuestion) {
  FillImage();
  std::ofstream(Path()) << "[EOL2_GIO_Functions]\nP_001=1\nOther=kept\n";
  ASSERT_TRUE(WriteFile());
  const std::string text = TextOf(Path());
  EXPECT_TRUE(text.starts_with("[EOL2_GIO_Functions]\nP_001=55")) << text;
  EXPECT_NE(text.find("Other=kept"), std::string::npos);
}

TEST_F(ParameterFileTest, FolderThatCannotBeWrittenEndsInSilence) {
  FillImage();
  desktop.AnswerFileDialog(folder_ / "missing" / "x.ecu");
  EXPECT_FALSE(program.parameters->parameter_file.WriteParmsToFile());
}

TEST_F(ParameterFileTest, MissingSectionMakesItsBlockAbsentAndKeepsItsBytes) {
  Image().EOL3(1) = 77;
  Image().EOL3.bNumBytes = 9;
  ASSERT_TRUE(ReadText(Whole("")));
  EXPECT_EQ(Image().EOL3.bNumBytes, 0);
  EXPECT_EQ(Image().EOL3(1), 77);
}

TEST_F(ParameterFileTest, DateIsPackedDigitByDigit) {
  ASSERT_TRUE(ReadText(Whole("")));
  EXPECT_EQ(Image().EOL7(1), 0x20);
  EXPECT_EQ(Image().EOL7(2), 0x06);
  EXPECT_EQ(Image().EOL7(3), 0x17);
}

TEST_F(ParameterFileTest, DateIsTakenByItsPlaces) {
  struct Row {
    const char* date;
    int century, year, week;
  };
  for (const Row& row : std::vector<Row>{
           {"2026/07", 0x20, 0x26, 0x07},
           {"", 0, 0, 0},
           {"2", 0x20, 0, 0},
           {"2006", 0x20, 0x06, 0},
           {"2006-1", 0x20, 0x06, 0x10},
           {"AB1C-x9", 0, 0x10, 0x09},
           {"2006-0100", 0x20, 0x06, 100},  // the week's second part is all the rest
           {"2006-17.5", 0x20, 0x06, 0x18},
           {"\"2006-17\"", 0x20, 0x06, 0x17},
       }) {
    std::string text = Whole("");
    text.replace(text.find("2006-17"), 7, row.date);
    ASSERT_TRUE(ReadText(text)) << row.date;
    EXPECT_EQ(Image().EOL7(1), row.century) << row.date;
    EXPECT_EQ(Image().EOL7(2), row.year) << row.date;
    EXPECT_EQ(Image().EOL7(3), row.week) << row.date;
  }
  std::string text = Whole("");
  text.replace(text.find("2006-17"), 7, "2006-1999");
  EXPECT_FALSE(ReadText(text));
}

TEST_F(ParameterFileTest, SectionsAreReadInTheirOwnOrder) {
  const char* const names[] = {
      "EOL1_System_Parameter", "EOL2_GIO_Functions",    "EOL5_GIO_Connectors", "EOL3_GIO_Parameter",
      "EOL4_SLEV_Parameter",   "EOL6_ServiceIntervall", "EOL9_GIO_FID"};
  for (std::size_t bad = 0; bad < std::size(names); ++bad) {
    Image() = {};
    std::string text;
    for (std::size_t i = 0; i < std::size(names); ++i)
      text += std::string("[") + names[i] + (i == bad ? "]\nCount=300\n" : "]\nCount=1\n");
    EXPECT_FALSE(ReadText(Whole(text)));
    const ParmBlock* const blocks[] = {&Image().EOL1, &Image().EOL2, &Image().EOL5, &Image().EOL3,
                                       &Image().EOL4, &Image().EOL6, &Image().EOL9};
    for (std::size_t i = 0; i < std::size(blocks); ++i)
      EXPECT_EQ(blocks[i]->bNumBytes, i < bad ? 2 : 0) << names[bad] << " " << names[i];
  }
}

TEST_F(ParameterFileTest, NamesMatchWithoutRegardToCaseAndOfTwoKeysTheFirstCounts) {
  ASSERT_TRUE(ReadText(Whole("[eol1_SYSTEM_parameter]\ncOUNT=1\np_001=7\nP_001=8\n")));
  EXPECT_EQ(Image().EOL1(1), 7);
}

TEST_F(ParameterFileTest, FilesInAnotherEncoding) {
  const std::string plain = Whole("[EOL1_System_Parameter]\nCount=1\nP_001=7\n");
  const auto with_vin = [&](const std::string& vin) {
    std::string text = plain;
    text.replace(text.find("ABCDEFGHIJKLMNOPQR"), 18, vin);
    return text;
  };
  // UTF-16 behind its mark is understood.
  std::string wide = "\xFF\xFE";
  for (const char c : with_vin("\xE9"
                               "BCDEFGHIJKLMNOPQR"))
    wide += {c, '\0'};
  ASSERT_TRUE(ReadText(wide));
  EXPECT_EQ(Image().EOL1(1), 7);
  EXPECT_EQ(Ecu().VehicleId.Load(),
            "\xE9"
            "BCDEFGHIJKLMNOPQR");
  // A mark of UTF-8 spoils the first line, here the header of the vehicle's bytes.
  Image() = {};
  ASSERT_TRUE(ReadText("\xEF\xBB\xBF" + plain));
  EXPECT_EQ(Image().EOL1.bNumBytes, 0);
  // UTF-8 without one is taken byte by byte, so this text is one byte longer and is cut.
  ASSERT_TRUE(ReadText(with_vin("éBCDEFGHIJKLMNOPQR")));
  EXPECT_EQ(Ecu().VehicleId.Load(),
            "\xC3\xA9"
            "BCDEFGHIJKLMNOPQ");
}

TEST_F(ParameterFileTest, ValuesAreReadByTheirLeadingNumber) {
  ASSERT_TRUE(
      ReadText(Whole("[EOL1_System_Parameter]\nCount= 6 \nP_001= 12x\nP_002=abc\n"
                     "P_004=2.5\nP_005=3.5\nP_006=1e9\nChecksum=wrong\n")));
  EXPECT_EQ(Image().EOL1.bNumBytes, 7);
  EXPECT_EQ(Image().EOL1(1), 12);
  EXPECT_EQ(Image().EOL1(2), 0);
  EXPECT_EQ(Image().EOL1(3), 0);  // no key
  EXPECT_EQ(Image().EOL1(4), 2);
  EXPECT_EQ(Image().EOL1(5), 4);
  EXPECT_EQ(Image().EOL1(6), 1);
}

TEST_F(ParameterFileTest, BadNumbersEndTheReadAndKeepWhatWasRead) {
  struct Row {
    const char* text;
    int count;  // what EOL1's count then is
  };
  for (const Row& row : std::vector<Row>{
           {"[EOL1_System_Parameter]\nCount=256\n", 7},
           {"[EOL1_System_Parameter]\nCount=-1\n", 7},
           {"[EOL1_System_Parameter]\nCount=1000000000\n", 7},
           {"[EOL1_System_Parameter]\nCount=255.5\n", 7},
           {"[EOL1_System_Parameter]\nCount=201\n", 201},
           {"[EOL1_System_Parameter]\nCount=255\n", 255},
           {"[EOL1_System_Parameter]\nCount=2\nP_001=5\nP_002=256\n", 2},
           {"[EOL1_System_Parameter]\nCount=2\nP_001=5\nP_002=-1\n", 2},
       }) {
    Image() = {};
    Image().EOL1.bNumBytes = 7;
    EXPECT_FALSE(ReadText(Whole(row.text))) << row.text;
    EXPECT_EQ(Image().EOL1.bNumBytes, row.count) << row.text;
    EXPECT_EQ(Image().EOL7.bNumBytes, 0) << row.text;
  }
}

TEST_F(ParameterFileTest, CountThatIsNoNumberMakesTheBlockAbsent) {
  for (const char* count : {"", "abc", "-0.4", "0.5", "x5"}) {
    Image().EOL1.bNumBytes = 7;
    EXPECT_TRUE(
        ReadText(Whole(std::string("[EOL1_System_Parameter]\nCount=") + count + "\nP_001=9\n")))
        << count;
    EXPECT_EQ(Image().EOL1.bNumBytes, 0) << count;
  }
  // Four hundred digits are beyond every byte.
  EXPECT_FALSE(ReadText(Whole("[EOL1_System_Parameter]\nCount=" + std::string(400, '9') + "\n")));
}

TEST_F(ParameterFileTest, TwoHundredBytesAreTheMost) {
  EXPECT_TRUE(ReadText(Whole("[EOL1_System_Parameter]\nCount=200\nP_200=9\n")));
  EXPECT_EQ(Image().EOL1(200), 9);
  EXPECT_EQ(Image().EOL1.bNumBytes, 201);
}

TEST_F(ParameterFileTest, ShortTextsEndTheReadInSilence) {
  const std::string whole = Whole("[EOL1_System_Parameter]\nCount=1\nP_001=5\n");
  ASSERT_TRUE(ReadText(whole));
  for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
           {"VIN=ABCDEFGHIJKLMNOPQR", "VIN=ABCDEFGHIJKLMNOPQ"},
           {"Manufacturer=ABCDEFGHIJKLMNOPQRST", "Manufacturer=ABCDEFGHIJKLMNOPQRS "},
           {"TypeOfVehicle=12345678901234567890", "TypeOfVehicle="}}) {
    Image() = {};
    std::string text = whole;
    text.replace(text.find(from), from.size(), to);
    EXPECT_FALSE(ReadText(text)) << to;
    EXPECT_EQ(Image().EOL1.bNumBytes, 2) << to;  // what was read stays
  }
}

TEST_F(ParameterFileTest, LongTextsAreCut) {
  std::string text = Whole("");
  text.replace(text.find("VIN="), 4, "VIN=Z");
  ASSERT_TRUE(ReadText(text));
  EXPECT_EQ(Ecu().VehicleId.Load(), "ZABCDEFGHIJKLMNOPQ");
}

TEST_F(ParameterFileTest, ReadRefreshesTheConfiguration) {
  struct Row {
    int byte;
    int sensors;
    int modulators;
  };
  for (const Row& row : std::vector<Row>{
           {0, 2, 2}, {1, 4, 2}, {2, 4, 3}, {3, 4, 2}, {4, 2, 1}, {5, 4, 2}, {7, 4, 2}}) {
    const int byte1 = row.byte << 2 | 0x01 | 0x20 | 0x80;
    ASSERT_TRUE(ReadText(Whole("[EOL1_System_Parameter]\nCount=24\nP_001=" + std::to_string(byte1) +
                               "\nP_003=8\nP_004=52\nP_005=35\nP_006=40\nP_007=59\n"
                               // the second axle weighs 4096 kg: a zero byte, not counted
                               "P_009=8\nP_010=52\nP_011=16\nP_012=0\nP_013=33\n"
                               "P_015=1\nP_016=1\nP_017=1\nP_018=1\n")));
    EXPECT_EQ(Ecu().bNumSensors.Load(), row.sensors) << row.byte;
    EXPECT_EQ(Ecu().bNumModulators.Load(), row.modulators) << row.byte;
  }
  EXPECT_EQ(Ecu().nVehicleType.Load(), 1);
  EXPECT_EQ(Ecu().nMechanicalSuspension.Load(), 1);
  EXPECT_EQ(Ecu().nMounting.Load(), 1);
  EXPECT_EQ(Ecu().nNumAxles.Load(), 2);
  EXPECT_EQ(Ecu().nAxleLift[0].Load(), 3);
  EXPECT_EQ(Ecu().nAxleFlag[0].Load(), 1);
  EXPECT_EQ(Ecu().nAxleSensors[0].Load(), 3);
  EXPECT_EQ(Ecu().nAxleLift[1].Load(), 1);
  EXPECT_EQ(Ecu().nAxleFlag[1].Load(), 0);
  EXPECT_EQ(Ecu().nAxleSensors[1].Load(), 2);
}

TEST_F(ParameterFileTest, IdentityOfTheEcuIsNotTouched) {
  Ecu().PartNum.Store("PART");
  Ecu().SysName.Store("SYS");
  ASSERT_TRUE(ReadText(Whole("")));
  EXPECT_EQ(Ecu().PartNum.Load().substr(0, 4), "PART");
  EXPECT_EQ(Ecu().SysName.Load().substr(0, 3), "SYS");
}

TEST_F(ParameterFileTest, FunctionBlocksOfAnEarlierVisitDoNotStay) {
  for (const BlockName block : kFunctionBlocks) (Image().*block).bNumBytes = 111;
  ReadText("");
  for (const BlockName block : kFunctionBlocks) EXPECT_EQ((Image().*block).bNumBytes, 0);
}

TEST_F(ParameterFileTest, FileCutOffAnywhereEitherReadsOrEndsInSilence) {
  FillImage();
  ASSERT_TRUE(WriteFile());
  const std::string whole = TextOf(Path());
  int read = 0;
  for (std::size_t size = 0; size <= whole.size(); ++size)
    if (ReadText(whole.substr(0, size))) ++read;
  // The last text is the last key: the file reads whole from its last letter on.
  EXPECT_EQ(read, 3);
}

TEST_F(ParameterFileTest, StrangeFilesNeverHurt) {
  std::string many = "[EOL1_System_Parameter]\nCount=3\n";
  for (int i = 0; i < 10'000; ++i) many += "K" + std::to_string(i) + "=1\n";
  std::string binary;
  for (int i = 0; i < 4096; ++i) binary += static_cast<char>(i * 37);
  EXPECT_TRUE(ReadText(Whole(many)));
  EXPECT_TRUE(ReadText(Whole(std::string(1'000'000, 'k') + "=1\n")));
  EXPECT_TRUE(ReadText(Whole("[Other]\n" + binary + "\n")));
  std::string sections;
  for (int i = 0; i < 10'000; ++i) sections += "[S" + std::to_string(i) + "]\nk=v\n";
  EXPECT_TRUE(ReadText(Whole(sections)));
  EXPECT_TRUE(ReadText(Whole("[EOL1_System_Parameter]\nCount=" + std::string(1'000'000, ' ') +
                             "1\nP_001=" + std::string(1'000'000, '0') + "\n")));
  EXPECT_FALSE(ReadText(binary));
  EXPECT_FALSE(ReadText(std::string(1'000'000, '\0')));
  EXPECT_TRUE(ReadText(Whole("[EOL1_System_Parameter]\rCount=1\rP_001=7\r")));
  EXPECT_EQ(Image().EOL1(1), 7);
  EXPECT_TRUE(
      ReadText(Whole("[EOL1_System_Parameter]\nCount=1\nP_001=7\n"
                     "[EOL1_System_Parameter]\nCount=1\nP_001=8\n")));
  EXPECT_EQ(Image().EOL1(1), 7);  // of two sections the first counts
}

// Why a file was not read or not saved, in the user's words.
TEST_F(ParameterFileTest, FailedReadIsToldInWords) {
  struct Row {
    const char* from;
    const char* to;
    const char* told;
  };
  const std::string whole = Whole("[EOL1_System_Parameter]\nCount=2\nP_001=5\nP_002=6\n");
  for (const Row& row : std::vector<Row>{
           {"VIN=ABCDEFGHIJKLMNOPQR", "VIN=ABCDEFGHIJKLMNOPQ",
            "The file was not read: the vehicle id has fewer than 18 characters. "
            "(EOL7_Vehicle_Data, VIN)"},
           {"Manufacturer=ABC", "Manufacturer=C",
            "The file was not read: the manufacturer has fewer than 20 characters. "
            "(EOL7_Vehicle_Data, Manufacturer)"},
           {"TypeOfVehicle=123", "TypeOfVehicle=",
            "The file was not read: the trailer type has fewer than 20 characters. "
            "(EOL7_Vehicle_Data, TypeOfVehicle)"},
           {"Count=2", "Count=256",
            "The file was not read: a count is not from 0 to 200. "
            "(EOL1_System_Parameter, Count)"},
           {"Count=2", "Count=201",
            "The file was not read: a count is not from 0 to 200. "
            "(EOL1_System_Parameter, Count)"},
           {"P_002=6", "P_002=256",
            "The file was not read: a byte is not from 0 to 255. "
            "(EOL1_System_Parameter, P_002)"},
           {"2006-17", "2006-1999",
            "The file was not read: the production date is not a date. "
            "(EOL7_Vehicle_Data, TrailerDateOfProduction)"},
       }) {
    std::string text = whole;
    text.replace(text.find(row.from), std::string(row.from).size(), row.to);
    EXPECT_FALSE(ReadText(text)) << row.to;
    EXPECT_EQ(Told(), row.told);
    EXPECT_TRUE(ReadText(whole));
    EXPECT_EQ(Told(), "");
  }
  EXPECT_FALSE(ReadText(""));
  EXPECT_NE(Told(), "");
  desktop.AnswerFileDialog(std::nullopt);
  EXPECT_FALSE(program.parameters->parameter_file.ReadParmsFromFile());
  EXPECT_EQ(Told(), "") << "a cancel is no failure";
}

TEST_F(ParameterFileTest, FailedSaveIsToldInWords) {
  const auto told = [&](const std::function<void()>& spoil) {
    FillImage();
    spoil();
    EXPECT_FALSE(WriteFile());
    return Told();
  };
  EXPECT_EQ(told([&] { Image().EOL5.bNumBytes = 0; }),
            "The file was not saved: a block that it needs is missing. (EOL5_GIO_Connectors)");
  EXPECT_EQ(told([&] { Image().EOL2.bNumBytes = 202; }),
            "The file was not saved: a block is longer than 200 bytes. (EOL2_GIO_Functions)");
  EXPECT_EQ(told([&] {
              Image().EOL1.bNumBytes = 201;
              Image().EOL1.DataArr.fill(255);
            }),
            "The file was not saved: the sum of a block is above 32767. (EOL1_System_Parameter)");
  FillImage();
  desktop.AnswerFileDialog(folder_ / "missing" / "x.ecu");
  EXPECT_FALSE(program.parameters->parameter_file.WriteParmsToFile());
  EXPECT_EQ(Told(), "The file was not saved: it cannot be written.");
  EXPECT_TRUE(WriteFile());
  EXPECT_EQ(Told(), "");
}

TEST_F(ParameterFileTest, MessageCenterTellsWhyAFileWasNotRead) {
  Start();
  Main().txtError.SetText("link");
  desktop.AnswerFileDialog(std::nullopt);
  Main().mnuSystem[1].UserClick();
  EXPECT_EQ(Main().txtError.Text(), "link");
  std::ofstream(Path(), std::ios::binary) << "[EOL7_Vehicle_Data]\r\nVIN=ABC\r\n";
  desktop.AnswerFileDialog(Path());
  Main().mnuSystem[1].UserClick();
  EXPECT_EQ(Main().txtError.Text(),
            "The file was not read: the vehicle id has fewer than 18 characters. "
            "(EOL7_Vehicle_Data, VIN)");
  EXPECT_TRUE(desktop.ModalForms().empty());
  // A file that reads takes the text away.
  std::ofstream(Path(), std::ios::binary) << Whole("");
  desktop.AnswerFileDialog(Path());
  desktop.OnModal("frmOVGParm1", [](Form& form) { form.UserClose(); });
  Main().mnuSystem[1].UserClick();
  EXPECT_EQ(Main().txtError.Text(), " ");
}

TEST_F(ParameterFileTest, MenuOpensTheWizardOnlyForAFileThatReads) {
  Start();
  std::ofstream(Path(), std::ios::binary) << Whole("");
  desktop.AnswerFileDialog(Path());
  desktop.OnModal("frmOVGParm1", [](Form& form) { form.UserClose(); });
  Main().mnuSystem[1].UserClick();
  EXPECT_EQ(desktop.ModalForms(), (std::vector<std::string>{"frmOVGParm1"}));
  desktop.AnswerFileDialog(std::nullopt);
  Main().mnuSystem[1].UserClick();
  EXPECT_EQ(desktop.ModalForms().size(), 1u);
}

}  // namespace
}  // namespace lorimet::testing_support
