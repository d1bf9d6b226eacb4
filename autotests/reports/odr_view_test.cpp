// The overview of the recorder: its naming, its counters, its file and its pages.
#include <gtest/gtest.h>

#include "autotests/reports/recorder_fixture.h"

namespace lorimet::testing_support {
namespace {

const std::string kLevel2 = "ReadMemory 02202A";
const std::string kLevel1 = "ReadMemory 02202C";
const std::string kStopLight = "ReadMemory 022030";
const std::string kAbs = "ReadMemory 023A07";

class OdrViewTest : public RecorderTest {
 protected:
  void SetUp() override {
    RecorderTest::SetUp();
    Ecu().VehicleId.Store("1NL4S2M30A0012345");
    link.read_word = [this](int address, std::uint8_t* high, std::uint8_t* low) {
      *high = static_cast<std::uint8_t>(words[address] / 256);
      *low = static_cast<std::uint8_t>(words[address] % 256);
      return 0;
    };
  }
  frmODRView& Screen() { return program.reports->odr_view; }
  std::vector<std::string> Counters() {
    return {Screen().txtABSCount.Text(), Screen().txtStoplightCount.Text(),
            Screen().txtLatAccel1.Text(), Screen().txtLatAccel2.Text()};
  }
  std::string File() {
    EXPECT_EQ(text_files.files.size(), 1u);
    return text_files.files.empty() ? "" : text_files.files.begin()->second;
  }

  std::map<int, int> words = {{0x023A07, 1234}, {0x022030, 32767}, {0x02202C, 0}, {0x02202A, 7}};
};

TEST_F(OdrViewTest, ItsCommandShowsItModallyWithEachCounterFromItsAddress) {
  desktop.OnModal("frmODRView", [&](Form& form) {
    EXPECT_EQ(form.Caption(), "ODR View");
    EXPECT_EQ(Counters(), (std::vector<std::string>{" 1234", " 32767", " 0", " 7"}));
    EXPECT_EQ(Screen().txtTrailerID.Text(), "1NL4S2M30A0012345");
    Screen().cmdClose.UserClick();
  });
  Main().mnuODR[0].UserClick();
  EXPECT_FALSE(Screen().Loaded());
  ExpectCalls({kLevel2, kLevel1, kStopLight, kAbs});
}

TEST_F(OdrViewTest, IsReadAnewAtEachVisit) {
  Screen().Load();
  Screen().Unload();
  words[0x023A07] = 5;
  Screen().Load();
  EXPECT_EQ(Screen().txtABSCount.Text(), " 5");
}

TEST_F(OdrViewTest, TriesEachCounterUpToFourTimesAndShowsTheOthers) {
  link.answers["ReadMemory"] = {1,    1, 1, 0,  // level 2: the fourth try is in time
                                1,    1, 1, 1,  // level 1: given up
                                0,              // stop light
                                0x10, 0};       // ABS
  Screen().Load();
  ExpectCalls(Times(4, kLevel2) + Times(4, kLevel1) + Calls{kStopLight, kAbs, kAbs});
  EXPECT_EQ(Counters(), (std::vector<std::string>{" 1234", " 32767", "N/A", " 7"}));
  link.always["ReadMemory"] = 1;
  Screen().Unload();
  Screen().Load();
  EXPECT_EQ(Counters(), (std::vector<std::string>{"N/A", "N/A", "N/A", "N/A"}));
}

TEST_F(OdrViewTest, AWordOf32768OrMoreIsAnOverflow) {
  for (const int word : {0x8000, 0x80FF, 0xFFFF}) {
    words[0x022030] = word;
    try {
      Screen().Load();
      ADD_FAILURE() << word;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 6);
    }
    EXPECT_FALSE(Screen().Visible());
    Screen().Unload();
    ExpectCalls({kLevel2, kLevel1, kStopLight});
  }
}

TEST_F(OdrViewTest, IsNamedAfterTheVehicleOrTheSerialNumber) {
  for (const Naming& naming : Namings()) {
    Ecu().VehicleId.Store(naming.vehicle_id);
    Ecu().SerialNum.Store(naming.serial);
    Screen().Load();
    EXPECT_EQ(Screen().txtTrailerID.Text(), naming.name.empty() ? "N/A" : naming.name);
    text_files.files.clear();
    Screen().cmdSave.UserClick();
    desktop.TakeBoxes();
    if (!naming.name.empty()) {
      EXPECT_TRUE(text_files.files.contains("/opt/lorimet/" + naming.name + ".odr")) << naming.name;
    }
    Screen().Unload();
  }
}

TEST_F(OdrViewTest, TheFileIsEnglishByteForByteWhateverTheLanguage) {
  Speak(kFrench);
  words[0x02202C] = 100;
  text_files.files["/opt/lorimet/1NL4S2M30A0012345.odr"] = "an earlier one";
  Screen().Load();
  Screen().cmdSave.UserClick();
  ExpectBox(PlainBox("File saved successfully in /opt/lorimet/1NL4S2M30A0012345.odr.",
                     "Information", BoxIcon::kInformation));
  EXPECT_EQ(File(),
            "\r\n"
            "----------------------------------------------------------------\r\n"
            "\r\n"
            "\r\n"
            "Norvick Brake Systems - ODR Data\r\n"
            "\r\n"
            "\r\n"
            "VIN : 1NL4S2M30A0012345\r\n"
            "\r\n"
            "\r\n"
            "Data Extracted :  November 21, 2026   3:07 PM\r\n"
            "\r\n"
            "\r\n"
            " 1234    Total number of ABS activations\r\n"
            " 32767   Total number of Stoplight Power activations\r\n"
            " 100     Total number of Level One OVG applications for all ODR data\r\n"
            " 7       Total number of Level Two OVG applications for all ODR data\r\n"
            "\r\n"
            "\r\n"
            "----------------------------------------------------------------\r\n");
}

TEST_F(OdrViewTest, TheFileHasItsOwnTimeAndTheCountersThatCouldNotBeRead) {
  link.always["ReadMemory"] = 1;
  Screen().Load();
  clock.SetDate(Date(2027, 3, 5, 0, 4));
  Screen().cmdSave.UserClick();
  desktop.TakeBoxes();
  EXPECT_NE(File().find("Data Extracted :  March 5, 2027   12:04 AM\r\n"), std::string::npos);
  EXPECT_NE(File().find("\r\nN/A      Total number of ABS activations\r\n"), std::string::npos);
}

TEST_F(OdrViewTest, ANameThatIsNoneForAFileIsToldAndWritesNothing) {
  for (const std::string id : {"", "A/B", "..\\B", "C:B", "NUL",
                               "A\x01"
                               "B"}) {
    Ecu().VehicleId.Store(id);
    Ecu().SerialNum.Store("");
    Screen().Load();
    Screen().cmdSave.UserClick();
    ExpectBox(
        PlainBox("An error occurred while saving:  52\r\nBad file name or number", "Save Error"));
    EXPECT_TRUE(text_files.files.empty()) << id;
    EXPECT_TRUE(Screen().Loaded());
    Screen().Unload();
  }
}

TEST_F(OdrViewTest, AFailedSaveIsToldAndTheOldFileStands) {
  const std::map<FileTrouble, std::string> words_of = {
      {FileTrouble::kFull, "61\r\nDisk full"},
      {FileTrouble::kNoPermission, "75\r\nPath/File access error"},
      {FileTrouble::kNoFolder, "76\r\nPath not found"},
  };
  text_files.files["/opt/lorimet/1NL4S2M30A0012345.odr"] = "an earlier one";
  Screen().Load();
  for (const auto& [trouble, words_then] : words_of) {
    text_files.trouble = trouble;
    Screen().cmdSave.UserClick();
    ExpectBox(PlainBox("An error occurred while saving:  " + words_then, "Save Error"));
    EXPECT_EQ(File(), "an earlier one");
  }
  Speak(kSpanish);
  Screen().cmdSave.UserClick();
  ExpectBox(
      PlainBox("Se ha producido un error al guardar:  76\r\nPath not found", "Error al guardar"));
}

// --- On paper.

class OdrPrintTest : public OdrViewTest {
 protected:
  void SetUp() override {
    OdrViewTest::SetUp();
    Screen().Load();
  }
  std::string Transcript() { return RecordingPrinter::Transcript(printer.Documents().back()); }
  // How many twips so many blanks of the size of the text are.
  static int Blanks(int count, bool bold) {
    RecordingPrinter ruler;
    ruler.SetFont({"Arial", 9.75, bold});
    return ruler.TextWidth(std::string(static_cast<std::size_t>(count), ' '));
  }
};

TEST_F(OdrPrintTest, PutsEachItemInItsPlaceAndFont) {
  std::vector<MousePointer> pointers;
  desktop.OnBox([&](const MessageBox&) { pointers.push_back(Main().Pointer()); });
  Screen().cmdPrint.UserClick();
  ExpectBox(PlainBox("ODR Data successfully sent to printer.", "Print OK"));
  EXPECT_EQ(pointers, std::vector<MousePointer>{MousePointer::kDefault});
  ASSERT_EQ(printer.Documents().size(), 1u);
  const auto& document = printer.Documents().back();
  EXPECT_EQ(document.state, RecordingPrinter::State::kEnded);
  EXPECT_EQ(document.pages, 1);
  EXPECT_EQ(document.file, "");

  const int title = 322, line = 224;  // heights
  int y = 2 * title;
  std::vector<std::tuple<int, int, bool, std::string>> expected;
  const auto add = [&](int x, bool bold, const std::string& text) {
    expected.emplace_back(y, x, bold, text);
  };
  add(0, true, "<line>");
  y += 2 * title;
  add(0, true, "Norvick Brake Systems");
  y += 3 * title;
  const int value = Blanks(30, false), count = Blanks(20, false);
  add(0, true, "Vehicle ID:");
  add(value, false, "1NL4S2M30A0012345");
  y += 3 * line;
  add(0, true, "Data Extracted:");
  add(value, false, "November 21, 2026   3:07 PM");
  y += 3 * line;
  const std::pair<const char*, const char*> rows[] = {
      {" 1234", " Total number of ABS activations"},
      {" 32767", " Total number of Stoplight Power activations"},
      {" 0", " Total number of Level One OVG applications for all ODR data"},
      {" 7", " Total number of Level Two OVG applications for all ODR data"}};
  for (const auto& [number, sentence] : rows) {
    add(count, true, number);
    add(value, false, sentence);
    y += 2 * line;
  }
  y += line;
  add(0, false, "<line>");
  std::vector<std::tuple<int, int, bool, std::string>> printed;
  for (const auto& mark : document.marks)
    printed.emplace_back(mark.y, mark.x, mark.font.bold, mark.to_x < 0 ? mark.text : "<line>");
  EXPECT_EQ(printed, expected) << Transcript();
  for (const auto& mark : document.marks) {
    EXPECT_EQ(mark.font.name, "Arial");
    if (mark.to_x < 0) continue;
    EXPECT_EQ(mark.to_x, printer.page_width);
    EXPECT_EQ(mark.width, 5);
  }
}

TEST_F(OdrPrintTest, SpeaksTheUsersLanguage) {
  Speak(kFrench);
  Screen().cmdPrint.UserClick();
  ExpectBox(PlainBox("Les données ODR ont été envoyées à l'imprimante.", "Impression terminée"));
  for (const char* text :
       {"ID véhicule", "novembre 21, 2026   3:07 PM", " Nombre total d'activations de l'ABS"})
    EXPECT_NE(Transcript().find(text), std::string::npos) << text << "\n" << Transcript();
}

TEST_F(OdrPrintTest, ShowsTheHourglassWhileItPrintsAndTakesItAwayAfterAFailure) {
  const std::size_t calls = 25;
  for (std::size_t at = 0; at < calls; ++at) {
    printer.fails_at = static_cast<int>(at);
    printer.has_printer = true;
    RecordingPrinter fresh;
    fresh.fails_at = printer.fails_at;
    printer = fresh;
    Screen().cmdPrint.UserClick();
    const Boxes boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1u);
    if (boxes[0].title == "Print OK") {
      EXPECT_GT(at, 20u) << "the document has more calls than that";
      break;
    }
    EXPECT_EQ(boxes[0], PlainBox("An error occurred printing the ODR data:  482\nPrinter error",
                                 "Printer Error"));
    EXPECT_EQ(Main().Pointer(), MousePointer::kDefault);
    for (const auto& document : printer.Documents())
      EXPECT_NE(document.state, RecordingPrinter::State::kOpen);
  }
}

TEST_F(OdrPrintTest, GoesIntoAFileWhereThereIsNoPrinter) {
  printer.has_printer = false;
  Screen().cmdPrint.UserClick();
  desktop.TakeBoxes();
  EXPECT_EQ(printer.Documents().back().file, "/opt/lorimet/1NL4S2M30A0012345 ODR.pdf");
  EXPECT_EQ(Main().txtError.Text(),
            "There is no printer here.  The pages are in /opt/lorimet/1NL4S2M30A0012345 ODR.pdf");
  Screen().Unload();
  Ecu().VehicleId.Store("");
  Ecu().SerialNum.Store("");
  Screen().Load();
  Screen().cmdPrint.UserClick();
  ExpectBox(PlainBox("ODR Data successfully sent to printer.", "Print OK"));
  EXPECT_EQ(printer.Documents().back().file, "/opt/lorimet/ODR.pdf");
  Screen().Unload();
  Ecu().VehicleId.Store("A/B");
  Screen().Load();
  Screen().cmdPrint.UserClick();
  ExpectBox(PlainBox("An error occurred printing the ODR data:  52\nBad file name or number",
                     "Printer Error"));
}

}  // namespace
}  // namespace lorimet::testing_support
