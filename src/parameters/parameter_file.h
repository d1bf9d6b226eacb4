// The parameter file: the image in the sections and keys of an INI-style text.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "parameters/block_fields.h"

namespace lorimet {

class Clock;
class Desktop;
class Dictionary;
class FoundConfiguration;
class Process;
class ProfileFile;
struct ECUData;

class ParameterFile {
 public:
  ParameterFile(ProfileFile& file, Desktop& desktop, Process& process, Clock& clock,
                ECUData& ecu_data, ParameterImage& image, FoundConfiguration& found)
      : file_(file),
        desktop_(desktop),
        process_(process),
        clock_(clock),
        ecu_data_(ecu_data),
        image_(image),
        found_(found) {}

  // Asks for a file and reads it into the image and the configuration fields of the record. False
  // on a cancel and on a file that fails; what was read up to then stays.
  bool ReadParmsFromFile();
  // Asks for a name and writes the image; ".ecu" is put behind a name that has no suffix of the
  // dialog's. False on a cancel and when the writing fails; what was reached by then is in the
  // file, or the old file is whole.
  bool WriteParmsToFile();
  // Why the last reading or writing failed, in the user's language, with the place in the file.
  // Empty after a success and after a cancel.
  std::string FailureText(const Dictionary& dictionary) const;

  // Plug: words of the dialogs in the user's language; without it they are English.
  std::function<std::string(const std::string&)> translate;

 private:
  void Read(const std::string& path);
  void ReadFileData(const std::string& strWhichParm, ParmBlock& block);
  void ReadVehicleData(const std::string& section);
  void ReadText(const std::string& section, const std::string& key, const TextField& field);

  // What it would mean for the step that follows to fail.
  void Expect(const char* reason, std::string place) { step_ = {reason, std::move(place)}; }
  // Runs a reading or a writing to its end or to its failure.
  bool Try(void (ParameterFile::*transfer)(const std::string&), const std::string& path);

  void Write(const std::string& path);
  void WriteFileData(const std::string& strWhichParm, const ParmBlock& block);
  void WriteVehicleData(const std::string& section);
  std::string Translated(const char* text) const;
  std::string Proposal() const;
  std::string DataVersion() const;

  std::string Get(const std::string& section, const std::string& key);
  void Put(const std::string& section, const std::string& key, const std::string& value);

  ProfileFile& file_;
  Desktop& desktop_;
  Process& process_;
  Clock& clock_;
  ECUData& ecu_data_;
  ParameterImage& image_;
  FoundConfiguration& found_;
  std::string path_;

  struct Failure {
    const char* reason = nullptr;
    std::string place;  // section and key, or the path
  };
  Failure step_;
  Failure failure_;
};

}  // namespace lorimet
