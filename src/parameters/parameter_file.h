// The parameter file: the image in the sections and keys of an INI-style text.
#pragma once

#include <string>

#include "parameters/block_fields.h"

namespace lorimet {

class Clock;
class Desktop;
class Process;
class ProfileFile;
struct ECUData;

class ParameterFile {
 public:
  ParameterFile(ProfileFile& file, Desktop& desktop, Process& process, Clock& clock,
                ECUData& ecu_data, ParameterImage& image)
      : file_(file),
        desktop_(desktop),
        process_(process),
        clock_(clock),
        ecu_data_(ecu_data),
        image_(image) {}

  // Asks for a file and reads it into the image and the configuration fields of the record. False,
  // with no message, on a cancel and on a file that fails; what was read up to then stays.
  bool ReadParmsFromFile();
  // Asks for a name and writes the image. False, with no message, on a cancel and when the writing
  // fails; what was reached by then is in the file, or the old file is whole.
  bool WriteParmsToFile();

 private:
  void Read(const std::string& path);
  void ReadFileData(const std::string& strWhichParm, ParmBlock& block);
  void ReadVehicleData(const std::string& section);
  void ReadText(const std::string& section, const std::string& key, const TextField& field);

  void Write(const std::string& path);
  void WriteFileData(const std::string& strWhichParm, const ParmBlock& block);
  void WriteVehicleData(const std::string& section);
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
  std::string path_;
};

}  // namespace lorimet
