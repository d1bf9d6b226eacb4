#include <cstring>
#include <fstream>
#include <map>

#include "autotests/places.h"
#include "autotests/simulator/link_fixture.h"

namespace lorimet::simulator {
namespace {

using RecordFieldsTest = LinkFixture;

struct Declared {
  int count = 1;
  std::string type;
};

// "  std::array<EcuShort, 3> nAxleLift;" to its name, count and type; false for no such line.
bool ParseDeclaration(const std::string& line, std::string& name, Declared& declared) {
  const std::size_t type = line.find("Ecu");
  const std::size_t end = line.find(';');
  if (type == std::string::npos || end == std::string::npos || !line.starts_with("  "))
    return false;
  const std::size_t blank = line.rfind(' ', end);
  name = line.substr(blank + 1, end - blank - 1);
  const bool array = line.starts_with("  std::array<");
  const std::size_t type_end = line.find(array ? ',' : ' ', type);
  declared.type = line.substr(type, type_end - type);
  declared.count = array ? std::stoi(line.substr(type_end + 1)) : 1;
  return true;
}

// The fields as the record's own header declares them.
std::map<std::string, Declared> DeclaredFields() {
  std::ifstream header(InSource("src/session/ecu_data.h"));
  EXPECT_TRUE(header.good());
  std::map<std::string, Declared> fields;
  bool inside = false;
  for (std::string line; std::getline(header, line);) {
    if (line.find("struct alignas(8) ECUData") != std::string::npos) inside = true;
    if (inside && line == "};") break;
    std::string name;
    Declared declared;
    if (inside && ParseDeclaration(line, name, declared)) fields[name] = declared;
  }
  return fields;
}

std::string AbnormalValue(const std::string& type) {
  if (type == "EcuDouble") return "-1.5";
  if (type == "EcuShort") return "-32768";
  if (type == "EcuByte") return "255";
  return R"("\xFF\x01?")";
}

TEST_F(RecordFieldsTest, EveryFieldOfTheRecordCanBeMadeAbnormalAndNothingKnown) {
  const auto fields = DeclaredFields();
  ASSERT_EQ(fields.size(), 42u);
  for (const auto& [name, declared] : fields) {
    const RecordField* field = FindField(name);
    ASSERT_NE(field, nullptr) << name << " is out of every scenario's reach";
    EXPECT_EQ(field->count, declared.count) << name;
    for (int i = 0; i < declared.count; ++i) {
      const std::string element = declared.count == 1 ? name : name + "(" + std::to_string(i) + ")";
      ConnectAndRead();
      const auto normal = LoadField(record_, *field, i);
      ASSERT_EQ(link_->Command("field " + element + " " + AbnormalValue(declared.type)), "");
      link_->Advance(0.2);
      EXPECT_NE(LoadField(record_, *field, i), normal) << element;
      ASSERT_EQ(link_->Command("field " + element + " none"), "");
      link_->Advance(0.2);
      const auto nothing = LoadField(record_, *field, i);
      if (declared.type == "EcuDouble") {
        double value = 0;
        std::memcpy(&value, nothing.data(), 8);
        EXPECT_EQ(value, -1.0) << element;
      } else if (declared.type.starts_with("EcuText")) {
        EXPECT_EQ(nothing, std::vector<std::uint8_t>(nothing.size(), 0)) << element;
      }
    }
  }
}

TEST_F(RecordFieldsTest, TheTableCoversEveryByteThatIsNotReserved) {
  std::array<int, sizeof(ECUData)> owners = {};
  for (const RecordField& field : RecordFields())
    for (std::size_t i = 0; i < field.size * static_cast<std::size_t>(field.count); ++i)
      ++owners[field.offset + i];
  const std::pair<std::size_t, std::size_t> reserved[] = {
      {0x040, 0x048}, {0x068, 0x070}, {0x0A8, 0x0B8}, {0x0C8, 0x0E0}, {0x0FC, 0x0FE},
      {0x110, 0x11A}, {0x15E, 0x188}, {0x197, 0x198}, {0x1EE, 0x200}};
  for (std::size_t i = 0; i < owners.size(); ++i) {
    bool in_reserve = false;
    for (const auto& [begin, end] : reserved) in_reserve = in_reserve || (i >= begin && i < end);
    EXPECT_EQ(owners[i], in_reserve ? 0 : 1) << i;
  }
}

TEST_F(RecordFieldsTest, AWholeArrayCanBePutAtOnce) {
  ConnectAndRead("field dWheelSpeed 33");
  for (const EcuDouble& speed : record_.dWheelSpeed) EXPECT_EQ(speed.Load(), 33);
}

TEST_F(RecordFieldsTest, AReleasedFieldIsMeasuredAgain) {
  ConnectAndRead("field dSupplyPress -1.5");
  EXPECT_EQ(record_.dSupplyPress.Load(), -1.5);
  EXPECT_EQ(link_->Command("release dSupplyPress"), "");
  link_->Advance(0.2);
  EXPECT_GT(record_.dSupplyPress.Load(), 100);
  link_->Command("field dSupplyPress nan");
  link_->Advance(0.2);
  EXPECT_NE(record_.dSupplyPress.Load(), record_.dSupplyPress.Load());
  link_->Command("release all");
  link_->Advance(0.2);
  EXPECT_GT(record_.dSupplyPress.Load(), 100);
}

TEST_F(RecordFieldsTest, AnOverriddenFieldNeverShowsTheMeasuredValue) {
  Start("field dSupplyPress 5");
  ASSERT_EQ(Connect(), 0);
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(record_.dSupplyPress.Load(), 5);
    link_->Advance(0.01);
  }
}

TEST_F(RecordFieldsTest, RefusesUnknownFieldsAndValuesThatDoNotFit) {
  for (const char* command :
       {"field dSupply 1", "field dWheelSpeed(6) 1", "field dWheelSpeed(x) 1",
        "field dWheelSpeed(1 1", "field dSupplyPress lots", "field bNumFaults 256",
        "field bNumFaults -1", "field nWarningLamp 32768", "field DiagId 0123456789ABC",
        "release dSupply", "field nAxleLift(3) 1"})
    EXPECT_NE(link_->Command(command), "") << command;
  EXPECT_EQ(link_->Command("field DiagId 0123456789AB"), "");
}

}  // namespace
}  // namespace lorimet::simulator
