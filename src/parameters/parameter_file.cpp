#include "parameters/parameter_file.h"

#include <algorithm>
#include <array>
#include <optional>

#include "parameters/block_table.h"
#include "parameters/conversions.h"
#include "parameters/found_configuration.h"
#include "parameters/function_blocks.h"
#include "parameters/parameter_map.h"
#include "parameters/record_refresh.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/process.h"
#include "platform/profile_file.h"
#include "session/ecu_data.h"
#include "support/dates.h"
#include "support/dictionary.h"
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
  const char* too_short;
};

constexpr std::array<TextKey, 3> kTextKeys = {{
    {"VIN", parameter::kVehicleId,
     "The file was not read: the vehicle id has fewer than 18 characters."},
    {"Manufacturer", parameter::kManufacturer,
     "The file was not read: the manufacturer has fewer than 20 characters."},
    {"TypeOfVehicle", parameter::kTrailerType,
     "The file was not read: the trailer type has fewer than 20 characters."},
}};

constexpr const char* kBadCount = "The file was not read: a count is not from 0 to 200.";
constexpr const char* kBadByte = "The file was not read: a byte is not from 0 to 255.";
constexpr const char* kBadDate = "The file was not read: the production date is not a date.";
constexpr const char* kNotWritten = "The file was not saved: it cannot be written.";
constexpr const char* kNoBlock = "The file was not saved: a block that it needs is missing.";
constexpr const char* kLongBlock = "The file was not saved: a block is longer than 200 bytes.";
constexpr const char* kLargeSum = "The file was not saved: the sum of a block is above 32767.";

std::string Place(const std::string& section, const std::string& key) {
  return section + ", " + key;
}

// The path with ".ecu" behind it unless it has one of the suffixes of the dialog's filters.
std::string WithSuffix(std::string path) {
  std::string end = path.substr(path.size() < 4 ? 0 : path.size() - 4);
  std::ranges::transform(end, end.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
  if (end != ".ecu" && end != ".txt") path += ".ecu";
  return path;
}

std::string Digit(const std::string& text, std::size_t at) {
  return at < text.size() ? text.substr(at, 1) : std::string();
}

std::string KeyOf(int index) { return "P_" + FormatNumber(index, "#000"); }

// English month names, whatever the system's language: the file is read on other machines.
std::string DateText(const std::tm& now) {
  return std::string(MonthName(now.tm_mon)) + " " + std::to_string(now.tm_mday) + ", " +
         FormatNumber(now.tm_year + 1900, "0000") + " " + FormatNumber(now.tm_hour, "00") + ":" +
         FormatNumber(now.tm_min, "00");
}

}  // namespace

std::string ParameterFile::Translated(const char* text) const {
  return translate ? translate(text) : text;
}

std::string ParameterFile::Get(const std::string& section, const std::string& key) {
  return file_.GetString(section, key, "", kAnswerSize, path_);
}

void ParameterFile::Put(const std::string& section, const std::string& key,
                        const std::string& value) {
  Expect(kNotWritten, "");
  if (!file_.WriteString(section, key, value, path_))
    throw RuntimeError(ErrorNumber::kPathFileAccessError);
}

std::string ParameterFile::FailureText(const Dictionary& dictionary) const {
  if (failure_.reason == nullptr) return {};
  const std::string reason = dictionary.Translate(failure_.reason);
  return failure_.place.empty() ? reason : reason + " (" + failure_.place + ")";
}

bool ParameterFile::Try(void (ParameterFile::*transfer)(const std::string&),
                        const std::string& path) {
  try {
    (this->*transfer)(path);
    return true;
  } catch (const RuntimeError&) {
    failure_ = step_;
    return false;
  }
}

bool ParameterFile::ReadParmsFromFile() {
  failure_ = {};
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kOpen;
  dialog.default_extension = ".ecu";
  dialog.file_name = "default";
  dialog.initial_directory = process_.ProgramFolder();
  dialog.filter = "ECU (*.ecu)|*.ecu";
  dialog.file_must_exist = true;
  const std::optional<std::string> path = desktop_.ShowFileDialog(dialog);
  if (!path || path->empty()) return false;
  return Try(&ParameterFile::Read, *path);
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
  found_.Keep();
  RefreshConfiguration(image_, ecu_data_);
}

void ParameterFile::ReadFileData(const std::string& strWhichParm, ParmBlock& block) {
  Expect(kBadCount, Place(strWhichParm, "Count"));
  const std::uint8_t count = ToByte(NumericValue(Get(strWhichParm, "Count")));
  block.bNumBytes = count;
  if (count == 0) return;
  for (int i = 1; i <= count; ++i) {
    if (i < ParmBlock::kSize) Expect(kBadByte, Place(strWhichParm, KeyOf(i)));
    const std::uint8_t value = ToByte(NumericValue(Trim(Get(strWhichParm, KeyOf(i)))));
    if (i == ParmBlock::kSize) Expect(kBadCount, Place(strWhichParm, "Count"));
    block(i) = value;
  }
  block.bNumBytes = static_cast<std::uint8_t>(count + 1);
}

void ParameterFile::ReadVehicleData(const std::string& section) {
  Expect(kBadDate, Place(section, "TrailerDateOfProduction"));
  const std::string date = Get(section, "TrailerDateOfProduction");
  parameter::kProductionCentury.Put(image_, PackedByte(Digit(date, 0), Digit(date, 1)));
  parameter::kProductionYear.Put(image_, PackedByte(Digit(date, 2), Digit(date, 3)));
  const std::string rest = date.size() > 6 ? date.substr(6) : std::string();
  parameter::kProductionWeek.Put(image_, PackedByte(Digit(date, 5), rest));
  for (const TextKey& row : kTextKeys) {
    Expect(row.too_short, Place(section, row.key));
    ReadText(section, row.key, row.field);
  }
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
  if (IsFileName(vehicle)) return vehicle;
  const std::string serial = ecu_data_.SerialNum.Load();
  const std::string number = FromCp1252(Trim(UntilNul(serial)).substr(0, 12));
  if (IsFileName(number)) return number;
  return "OVG Parameters";
}

bool ParameterFile::WriteParmsToFile() {
  failure_ = {};
  FileDialog dialog;
  dialog.kind = FileDialog::Kind::kSave;
  dialog.default_extension = ".ecu";
  dialog.file_name = Proposal();
  dialog.initial_directory = process_.ProgramFolder();
  dialog.filter = "ECU (*.ecu)|*.ecu|" + Translated("Text (*.txt)|*.txt|All Files (*.*)|*.*");
  dialog.path_must_exist = true;
  const std::optional<std::string> path = desktop_.ShowFileDialog(dialog);
  if (!path || path->empty()) return false;
  return Try(&ParameterFile::Write, WithSuffix(*path));
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
  Expect(kNotWritten, "");
  if (!file_.Flush()) throw RuntimeError(ErrorNumber::kPathFileAccessError);
}

void ParameterFile::WriteFileData(const std::string& strWhichParm, const ParmBlock& block) {
  Expect(kNoBlock, strWhichParm);
  const std::uint8_t count = ToByte(block.bNumBytes - 1);
  if (count == 0) return;
  Put(strWhichParm, "DataVersion", DataVersion());
  std::int32_t sum = 0;
  for (int i = 1; i <= count; ++i) {
    Expect(kLongBlock, strWhichParm);
    sum += block(i);
    Expect(kLargeSum, strWhichParm);
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
