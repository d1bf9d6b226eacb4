// What holds for every byte of the image on its way through the pages: what the page shows, what it
// writes back, and that it touches nothing else.
//
// The judge is a model of its own on whole numbers: a pressure is a fraction of thousandths, so
// nothing here rounds but the rules themselves.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "autotests/parameters/wizard_fixture.h"
#include "parameters/parameters_part.h"
#include "support/text.h"

namespace lorimet::testing_support {
namespace {

// --- The model.

// n / d to the nearest, a half to the even neighbour.
int Nearest(int n, int d) {
  const int low = n / d;
  const int rest = 2 * (n % d);
  return rest > d || (rest == d && low % 2 != 0) ? low + 1 : low;
}
// psi of a count of 0.1 bar: 1.451 a count, halves up.
int ShownPsi(int count) { return (1451 * count + 500) / 1000; }
int Count(int psi) { return Nearest(1000 * psi, 1451); }
// The factor 0.69 lies a little below its name as a float, so what would be a half goes down.
int UnladenCount(int psi) { return (69 * psi + 49) / 100; }

std::string Tenths(int tenths) {
  std::string text = std::to_string(tenths / 10);
  if (tenths % 10 != 0) text += "." + std::to_string(tenths % 10);
  return text;
}

// Two digits, or the hexadecimal text without its leading zero.
std::string Packed(int byte) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string text = {kDigits[byte / 16], kDigits[byte % 16]};
  if (byte < 16 && byte > 9) text.erase(0, 1);
  return text;
}
int Digit(char c) { return c >= '0' && c <= '9' ? c - '0' : 0; }
// Of up to two characters; a single one is both.
int Unpacked(const std::string& text) { return Digit(text.front()) * 16 + Digit(text.back()); }

std::string TextIn(const ParmBlock& block, int first, int count) {
  std::string text;
  for (int i = first; i < first + count && block(i) != 0; ++i) text += static_cast<char>(block(i));
  return text;
}
void PutText(ParmBlock& block, int first, std::size_t count, std::string text) {
  text.resize(count, ' ');
  for (std::size_t i = 0; i < count; ++i)
    block(first + static_cast<int>(i)) = static_cast<std::uint8_t>(text[i]);
}
std::string Stripped(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  while (!text.empty() && text.front() == ' ') text.erase(0, 1);
  return text;
}

void Put(ParmBlock& block, int index, int mask, int bits) {
  block(index) = static_cast<std::uint8_t>((block(index) & ~mask) | bits);
}

// --- The test.

struct Round {
  int value;  // 0 to 255: over all values each byte of the image takes each value
  bool mechanical;
  int axles;
};

class PageProperties : public WizardFormTest {
 protected:
  frmOVGParm2& Page() { return LoadSensing(); }

  void Fill(const Round& round) {
    int place = round.axles * 7 + (round.mechanical ? 3 : 0);
    const auto next = [&] {
      ++place;
      return static_cast<std::uint8_t>(round.value * (2 * place + 1) + place * place);
    };
    for (const auto& [name, block] : kImageBlocks)
      for (std::uint8_t& byte : (Image().*block).DataArr) byte = next();
    Image().EOL9.bNumBytes = static_cast<std::uint8_t>(round.value);
    Put(Image().EOL1, 1, 0x20, round.mechanical ? 0x20 : 0);
  }
  // The record as a connection to this trailer would have filled it.
  void FillRecord(const Round& round) {
    const ParmBlock& vehicle = Image().EOL1;
    constexpr std::array<std::pair<int, int>, 8> kSystems = {
        {{2, 2}, {4, 2}, {4, 3}, {4, 2}, {2, 1}, {4, 2}, {4, 2}, {4, 2}}};
    const auto& [sensors, modulators] = kSystems.at(static_cast<std::size_t>(AbsCode()));
    Ecu().bNumSensors.Store(static_cast<std::uint8_t>(sensors));
    Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
    Ecu().nNumAxles.Store(static_cast<std::int16_t>(round.axles));
    Ecu().nVehicleType.Store(static_cast<std::int16_t>(vehicle(1) % 4));
    Ecu().nMechanicalSuspension.Store(round.mechanical ? 1 : 0);
    Ecu().nMounting.Store(static_cast<std::int16_t>(vehicle(1) / 128));
    for (int a = 0; a < 3; ++a) {
      const auto at = static_cast<std::size_t>(a);
      Ecu().nAxleLift[at].Store(static_cast<std::int16_t>(vehicle(7 + 6 * a) % 8));
      Ecu().nAxleSensors[at].Store(static_cast<std::int16_t>(vehicle(7 + 6 * a) / 16 % 4));
    }
  }
  int AbsCode() { return Image().EOL1(1) / 4 % 8; }

  static void ExpectSame(const ParameterImage& expected, const ParameterImage& actual) {
    EXPECT_EQ(Differences(expected, actual), Lines{});
  }

  void PassSystemPage(const Round& round);
  void PassLoadSensing(const Round& round);
  void PassLastPage(const Round& round);
  void ExpectLoadSensingShows(const Round& round);
};

// The system page writes its choices in bits and keeps the others.
void PageProperties::PassSystemPage(const Round& round) {
  ParameterImage expected = Image();
  const int system = AbsCode();
  // Of the codes that name no system, and of 4S/2M+1M, the numbers are those of 4S/2M.
  const int selected = system == 0 || system == 2 || system == 4 ? system : 1;
  Put(expected.EOL1, 1, 0x1C, selected * 4);
  // One axle has the sensors c-d, one the sensors e-f: of several the last is selected.
  int cd = -1;
  int ef = -1;
  for (int a = 0; a < 3; ++a) {
    const int sensors = expected.EOL1(7 + 6 * a) / 16 % 4;
    if (sensors == 1) cd = a;
    if (sensors == 2) ef = a;
  }
  const bool four_sensors = selected == 1 || selected == 2;
  for (int a = 0; a < 3; ++a) {
    const int lift = expected.EOL1(7 + 6 * a) % 8;
    int bits = lift == 1 || lift == 3 ? lift : 0;
    if (a == cd && a < round.axles) bits += 0x10;
    // The choice of 4S/2M opens the first two rows, whatever the number of axles.
    const bool open = a < round.axles || (selected == 1 && a < 2);
    if (a == ef && four_sensors && open) bits += 0x20;
    Put(expected.EOL1, 7 + 6 * a, 0x37, bits);
  }
  Put(expected.EOL2, 4, 0x03, round.mechanical ? 1 : 0);
  Put(expected.EOL2, 5, 0x10, round.mechanical ? 0 : 0x10);
  expected.EOL5(34) = static_cast<std::uint8_t>(!round.mechanical ? 0 : system == 4 ? 20 : 148);
  System().Unload();
  System().Load();
  Press(System().cmdNext);
  ExpectSame(expected, Image());
}

void PageProperties::ExpectLoadSensingShows(const Round& round) {
  const ParmBlock& vehicle = Image().EOL1;
  const auto psi = [&](int index) { return std::to_string(ShownPsi(vehicle(index))); };
  const auto pair = [&](int index) { return vehicle(index) * 256 + vehicle(index + 1); };
  for (int i = 0; i < 5; ++i) {
    const bool used = i < round.axles;
    const auto shown = [&](const std::string& text) { return used ? text : std::string(); };
    EXPECT_EQ(Page().txtAxleLoadUnladen[i].Text(), shown(std::to_string(pair(3 + 6 * i))));
    EXPECT_EQ(Page().txtAxleLoadLaden[i].Text(), shown(std::to_string(pair(5 + 6 * i))));
    EXPECT_EQ(Page().txtSuspensionPressUnladen[i].Text(), shown(round.mechanical ? "0" : psi(33)));
    EXPECT_EQ(Page().txtSuspensionPressLaden[i].Text(),
              shown(round.mechanical ? Tenths(pair(68)) : psi(34)));
    EXPECT_EQ(Page().txtLeverLength[i].Text(), shown(round.mechanical ? Tenths(pair(64)) : ""));
    EXPECT_EQ(Page().txtBrakingPressLadenPm_AN[i].Text(), shown(psi(42)));
    EXPECT_EQ(Page().txtBrakingPressLadenPm_K1[i].Text(), shown(psi(43)));
    EXPECT_EQ(Page().txtBrakingPressLadenPm_Max[i].Text(), shown(psi(45)));
    EXPECT_EQ(Page().txtBrakingPressUnladen[i].Text(), shown(psi(46)));
  }
  EXPECT_EQ(Page().txtControlPressureUnladen[0].Text(), "94");
  EXPECT_EQ(Page().txtControlPressureLaden[0].Text(), psi(38));
  EXPECT_EQ(Page().txtControlPressureLaden[1].Text(), psi(39));
  EXPECT_EQ(Page().txtControlPressureLaden[2].Text(), psi(41));
  const ParmBlock& trailer = Image().EOL7;
  EXPECT_EQ(Page().txtProdYear.Text(), Packed(trailer(1)) + Packed(trailer(2)));
  EXPECT_EQ(Page().txtProdWeek.Text(), Packed(trailer(3)));
  EXPECT_EQ(Page().txtTrailerVIN.Text(), FromCp1252(TextIn(trailer, 4, 18)));
  EXPECT_EQ(Page().txtManufacturer.Text(), FromCp1252(TextIn(trailer, 22, 20)));
  EXPECT_EQ(Page().txtTrailerType.Text(), FromCp1252(TextIn(trailer, 42, 20)));
}

void PageProperties::PassLoadSensing(const Round& round) {
  ParameterImage expected = Image();
  ParmBlock& vehicle = expected.EOL1;
  // The loads of axles that are not there.
  for (int a = round.axles; a < 3; ++a)
    for (int i = 3; i <= 6; ++i) vehicle(i + 6 * a) = 0;
  if (!round.mechanical) {
    vehicle(33) = static_cast<std::uint8_t>(UnladenCount(ShownPsi(vehicle(33))));
    vehicle(34) = static_cast<std::uint8_t>(Count(ShownPsi(vehicle(34))));
  }
  for (const int index : {42, 43, 45, 46})
    vehicle(index) = static_cast<std::uint8_t>(Count(ShownPsi(vehicle(index))));
  ParmBlock& trailer = expected.EOL7;
  const std::string year = Packed(trailer(1)) + Packed(trailer(2));
  const std::string week = Packed(trailer(3));
  const std::string vin = TextIn(trailer, 4, 18);
  trailer(1) = static_cast<std::uint8_t>(Unpacked(year.substr(0, 2)));
  trailer(2) = static_cast<std::uint8_t>(Unpacked(year.substr(year.size() - 2)));
  trailer(3) = static_cast<std::uint8_t>(Unpacked(week));
  PutText(trailer, 4, 18, Stripped(vin));
  PutText(trailer, 22, 20, TextIn(trailer, 22, 20));
  PutText(trailer, 42, 20, TextIn(trailer, 42, 20));
  expected.strTrailerVIN = FromCp1252(vin);

  Page().Unload();
  ExpectSame(Image(), (Page().Load(), Image()));
  ExpectLoadSensingShows(round);
  Press(Page().cmdNext);
  ExpectSame(expected, Image());
  EXPECT_EQ(Image().strTrailerVIN, expected.strTrailerVIN);
  std::string identity;
  for (int i = 4; i < 62; ++i) identity += static_cast<char>(trailer(i));
  EXPECT_EQ(Ecu().VehicleId.Load(), identity.substr(0, 18));
  EXPECT_EQ(Ecu().Manufacturer.Load().substr(0, 20), identity.substr(18, 20));
  EXPECT_EQ(Ecu().TrailerType.Load().substr(0, 20), identity.substr(38, 20));
}

void PageProperties::PassLastPage(const Round& round) {
  const int guard = 1 + (round.value + round.axles) % 3;
  const int cable = (round.value / 3 + round.axles) % 3;
  const int modulators = round.mechanical ? 1 : 2;
  const int system = AbsCode();
  Last().Unload();
  Last().Load();
  const ParmBlock& vehicle = Image().EOL1;
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Last().txtTireSize[i].Text(), std::to_string(vehicle(55 + i) * 25));
    EXPECT_EQ(Last().txtNumTeeth[i].Text(), std::to_string(vehicle(58 + i)));
    const bool used = i == 0 || (system != 0 && system != 4);
    EXPECT_EQ(Last().txtTireSize[i].Enabled(), used);
    EXPECT_EQ(Last().txtNumTeeth[i].Enabled(), used);
  }
  const int shown = Image().EOL2(5) < 128 ? 1 : vehicle(62) % 2 == 0 ? 2 : 3;
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Last().optOVGStatus[i].Value(), i == shown);

  Last().optOVGStatus[guard].UserClick();
  System().optSLAC[cable].UserClick();
  Ecu().bNumModulators.Store(static_cast<std::uint8_t>(modulators));
  ParameterImage expected = Image();
  Put(expected.EOL2, 5, 0x80, guard > 1 ? 0x80 : 0);
  if (guard > 1) Put(expected.EOL1, 62, 0x01, guard == 3 ? 1 : 0);
  if (cable < 2) {
    Put(expected.EOL9, 2, 0x04, 0x04);
    expected.EOL9(15) = 'I';
    expected.EOL3(33) = 3;
    expected.EOL5(18) = cable == 1 ? 177 : 65;
    Put(expected.EOL2, 2, 0xA0, 0x20);
  } else {
    expected.EOL2(2) = modulators == 2 ? 128 : 0;
    expected.EOL5(20) = modulators == 2 ? 65 : 0;
    expected.EOL5(18) = 0;
    expected.EOL3(33) = 7;
  }
  // A dialog that is cancelled: the screen has been taken over by then.
  Press(Last().cmdSaveToFile);
  ExpectSame(expected, Image());
}

TEST_F(PageProperties, EveryByteIsShownAndWrittenBackByItsRuleAndNoOtherChanges) {
  for (const bool mechanical : {false, true})
    for (int axles = 1; axles <= 3; ++axles)
      for (int value = 0; value < 256; ++value) {
        SCOPED_TRACE(testing::Message() << (mechanical ? "mechanical" : "air") << ", axles "
                                        << axles << ", value " << value);
        const Round round{value, mechanical, axles};
        Fill(round);
        FillRecord(round);
        PassSystemPage(round);
        PassLoadSensing(round);
        PassLastPage(round);
        if (HasFailure()) return;
      }
}

// A second pass finds what the first has left and changes nothing any more.
TEST_F(PageProperties, OnePassSettlesTheImage) {
  for (int value = 0; value < 256; ++value) {
    const Round round{value, value % 2 != 0, 3};
    Fill(round);
    FillRecord(round);
    System().Unload();
    System().Load();
    Page().Unload();
    Press(Page().cmdNext);
    const ParameterImage settled = Image();
    Page().Unload();
    Press(Page().cmdNext);
    ASSERT_EQ(Differences(settled, Image()), Lines{}) << value;
  }
}

}  // namespace
}  // namespace lorimet::testing_support
