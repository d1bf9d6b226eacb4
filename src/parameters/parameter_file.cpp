#include "parameters/parameter_file.h"

#include <algorithm>
#include <array>
#include <optional>

#include "parameters/block_table.h"
#include "parameters/conversions.h"
#include "parameters/function_blocks.h"
#include "parameters/parameter_map.h"
#include "parameters/record_refresh.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/process.h"
#include "platform/profile_file.h"
#include "session/ecu_data.h"
#include "support/file_names.h"
#include "support/numbers.h"
#include "support/text.h"
#include "support/version.h"

namespace lorimet {
namespace {

constexpr std::size_t kAnswerSize = 1024;
constexpr std::int32_t kHighestSum = 32767;  // the running sum is a 16-bit signed one

// The three texts of the vehicle section.
struct TextKey {
  const char* key;
  TextField field;
};

constexpr std::array<TextKey, 3> kTextKeys = {{
    {"VIN", parameter::kVehicleId},
    {"Manufacturer", parameter::kManufacturer},
    {"TypeOfVehicle", parameter::kTrailerType},
}};

std::string Digit(const std::string& text, std::size_t at) {
  return at < text.size() ? text.substr(at, 1) : std::string();
}

std::string KeyOf(int index) { return "P_" + FormatNumber(index, "#000"); }

// English month names, whatever the system's language: the file is read on other machines.
std::string DateText(const std::tm& now) {
  constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                   "May",       "June",     "July",     "August",
                                                   "September", "October",  "November", "December"};
  return std::string(kMonths[static_cast<std::size_t>(std::clamp(now.tm_mon, 0, 11))]) + " " +
         std::to_string(now.tm_mday) + ", " + FormatNumber(now.tm_year + 1900, "0000") + " " +
         FormatNumber(now.tm_hour, "00") + ":" + FormatNumber(now.tm_min, "00");
}

}  // namespace

std::string ParameterFile::Get(const std::string& section, const std::string& key) {
  return file_.GetString(section, key, "", kAnswerSize, path_);
}

void ParameterFile::Put(const std::string& section, const std::string& key,
                        const std::string& value) {
  if (!file_.WriteString(section, key, value, path_))
    throw RuntimeError(ErrorNumber::kPathFileAccessError);
}

bool ParameterFile::ReadParmsFromFile() {
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kOpen;
  dialog.default_extension = ".ecu";
  dialog.file_name = "default";
  dialog.initial_directory = process_.ProgramFolder();
  dialog.filter = "ECU (*.ecu)|*.ecu";
  dialog.file_must_exist = true;
  const std::optional<std::string> path = desktop_.ShowFileDialog(dialog);
  if (!path || path->empty()) return false;
  try {
    Read(*path);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

void ParameterFile::Read(const std::string& path) {
  path_ = path;
  DropFunctionBlocks(image_);
  for (const BlockRow* row : kBlocksInOrder<&BlockRow::file_read>) {
    if (row->block == &ParameterImage::EOL7)
      ReadVehicleData(row->section);
    else
      ReadFileData(row->section, image_.*row->block);
  }
  image_.EOL7.bNumBytes = kTrailerBytes;
  RefreshConfiguration(image_, ecu_data_);
}

void ParameterFile::ReadFileData(const std::string& strWhichParm, ParmBlock& block) {
  const std::uint8_t count = ToByte(NumericValue(Get(strWhichParm, "Count")));
  block.bNumBytes = count;
  if (count == 0) return;
  for (int i = 1; i <= count; ++i) {
    const std::uint8_t value = ToByte(NumericValue(Trim(Get(strWhichParm, KeyOf(i)))));
    block(i) = value;
  }
  block.bNumBytes = static_cast<std::uint8_t>(count + 1);
}

void ParameterFile::ReadVehicleData(const std::string& section) {
  const std::string date = Get(section, "TrailerDateOfProduction");
  parameter::kProductionCentury.Put(image_, PackedByte(Digit(date, 0), Digit(date, 1)));
  parameter::kProductionYear.Put(image_, PackedByte(Digit(date, 2), Digit(date, 3)));
  const std::string rest = date.size() > 6 ? date.substr(6) : std::string();
  parameter::kProductionWeek.Put(image_, PackedByte(Digit(date, 5), rest));
  for (const TextKey& row : kTextKeys) ReadText(section, row.key, row.field);
}

// A text shorter than its field, its padding lost on the way through the file, ends the reading.
void ParameterFile::ReadText(const std::string& section, const std::string& key,
                             const TextField& field) {
  const std::string text = Trim(Get(section, key));
  if (static_cast<int>(text.size()) < field.size)
    throw RuntimeError(ErrorNumber::kSubscriptOutOfRange);
  StoreBlockText(image_, field, text);
}

std::string ParameterFile::Proposal() const {
  const std::string vehicle = Trim(image_.strTrailerVIN);
  if (!vehicle.empty()) return vehicle;
  const std::string serial = ecu_data_.SerialNum.Load();
  if (serial.front() != '\0') return FromCp1252(Trim(UntilNul(serial)).substr(0, 12));
  return "OVG Parameters";
}

bool ParameterFile::WriteParmsToFile() {
  try {
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::kSave;
    dialog.default_extension = ".ecu";
    dialog.file_name = Proposal();
    // A serial number of blanks proposes no name at all, which leads nowhere.
    if (!dialog.file_name.empty()) CheckFileName(dialog.file_name);
    dialog.initial_directory = process_.ProgramFolder();
    dialog.filter = "ECU (*.ecu)|*.ecu|Text (*.txt)|*.txt|All Files (*.*)|*.*";
    dialog.path_must_exist = true;
    const std::optional<std::string> path = desktop_.ShowFileDialog(dialog);
    if (!path || path->empty()) return false;
    Write(*path);
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

void ParameterFile::Write(const std::string& path) {
  path_ = path;
  try {
    Put("VERSION", "CREATEDBY", "Norvick Corbel Software / " + DateText(clock_.Now()));
    for (const BlockRow* row : kBlocksInOrder<&BlockRow::file_write>) {
      const ParmBlock& block = image_.*row->block;
      if (row->block == &ParameterImage::EOL7)
        WriteVehicleData(row->section);
      else if (!row->optional || block.bNumBytes > 0)
        WriteFileData(row->section, block);
    }
  } catch (const RuntimeError&) {
    // Half-way by design: what was reached is the file.
    file_.Flush();
    throw;
  }
  if (!file_.Flush()) throw RuntimeError(ErrorNumber::kPathFileAccessError);
}

void ParameterFile::WriteFileData(const std::string& strWhichParm, const ParmBlock& block) {
  const std::uint8_t count = ToByte(block.bNumBytes - 1);
  if (count == 0) return;
  Put(strWhichParm, "DataVersion", DataVersion());
  std::int32_t sum = 0;
  for (int i = 1; i <= count; ++i) {
    sum += block(i);
    if (sum > kHighestSum) throw RuntimeError(ErrorNumber::kOverflow);
    Put(strWhichParm, KeyOf(i), std::to_string(block(i)));
  }
  Put(strWhichParm, "Count", std::to_string(count));
  Put(strWhichParm, "Checksum", std::to_string((sum + 1) % 256));
}

void ParameterFile::WriteVehicleData(const std::string& section) {
  Put(section, "DataVersion", DataVersion());
  Put(section, "TrailerDateOfProduction",
      PackedText(parameter::kProductionCentury.In(image_)) +
          PackedText(parameter::kProductionYear.In(image_)) + "-" +
          PackedText(parameter::kProductionWeek.In(image_)));
  for (const TextKey& row : kTextKeys)
    Put(section, row.key, ToCp1252(BlockText(image_, row.field)));
}

std::string ParameterFile::DataVersion() const {
  return "OVG Version " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor);
}

}  // namespace lorimet
