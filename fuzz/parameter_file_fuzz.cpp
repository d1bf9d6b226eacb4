// Fuzzes the parameter file: any bytes, read through the profile file and through its plain model,
// must give the same image, the same record and the same verdict, and an image that has been read
// must be written the same both ways.
#include "adapters/headless/headless_desktop.h"
#include "adapters/headless/headless_ports.h"
#include "adapters/posix/posix_profile_file.h"
#include "fuzz/profile_file_model.h"
#include "parameters/block_table.h"
#include "parameters/found_configuration.h"
#include "parameters/parameter_file.h"
#include "parameters/parm_block.h"
#include "session/ecu_data.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <unistd.h>

namespace {

void Check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "the parameter file and its model differ: %s\n", what);
  std::abort();
}

// The plain model of one file. No value of a parameter file holds a line break, so its lines need
// not be taken apart anew for each call.
class ModelProfileFile : public lorimet::ProfileFile {
 public:
  explicit ModelProfileFile(const std::string& bytes)
      : unicode_(lorimet::model::IsUnicode(bytes)),
        lines_(lorimet::model::Lines(lorimet::model::Decode(bytes))) {}
  std::string Bytes() const {
    return lorimet::model::Encode(lorimet::model::Joined(lines_), unicode_);
  }

  std::string GetString(const std::string& section, const std::string& key,
                        const std::string& fallback, std::size_t size,
                        const std::string&) override {
    return lorimet::model::Read(lines_, section, key, fallback, size);
  }
  bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                   const std::string&) override {
    lorimet::model::Write(lines_, section, key, value);
    return true;
  }
  bool Flush() override { return true; }
  lorimet::ErrorNumber LastError() const override { return lorimet::ErrorNumber::kDeviceIoError; }

 private:
  bool unicode_;
  std::vector<lorimet::model::Line> lines_;
};

const std::string& Path() {
  static const std::string path = [] {
    const char* base = std::getenv("TMPDIR");
    std::string name = std::string(base != nullptr ? base : "/tmp") + "/parameter_file_fuzz_XXXXXX";
    if (mkdtemp(name.data()) == nullptr) std::abort();
    return name + "/trailer.ecu";
  }();
  return path;
}

std::string OnDisk() {
  std::ifstream in(Path(), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

// One program's half of the road: a file, an image and a record of its own.
class Side {
 public:
  explicit Side(lorimet::ProfileFile& file)
      : parameters(file, desktop_, process_, clock_, ecu_data, image, found) {}

  bool Read() {
    desktop_.AnswerFileDialog(Path());
    return parameters.ReadParmsFromFile();
  }
  bool Write() {
    desktop_.AnswerFileDialog(Path());
    return parameters.WriteParmsToFile();
  }
  bool operator==(const Side& other) const {
    return std::ranges::all_of(lorimet::kBlockTable,
                               [&](const lorimet::BlockRow& row) {
                                 return image.*row.block == other.image.*row.block;
                               }) &&
           std::memcmp(&ecu_data, &other.ecu_data, sizeof ecu_data) == 0;
  }

  lorimet::ECUData ecu_data{};
  lorimet::ParameterImage image;
  lorimet::FoundConfiguration found{ecu_data};

 private:
  lorimet::VirtualClock clock_;
  lorimet::HeadlessDesktop desktop_{clock_};
  lorimet::HeadlessProcess process_;

 public:
  lorimet::ParameterFile parameters;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  std::ofstream(Path(), std::ios::binary | std::ios::trunc) << bytes;
  lorimet::PosixProfileFile real_file;
  ModelProfileFile model_file(bytes);
  Side real(real_file);
  Side model(model_file);
  const bool read = real.Read();
  Check(read == model.Read(), "whether the file reads");
  Check(real == model, "what was read");
  Check(OnDisk() == bytes, "reading has changed the file");
  if (!read) return 0;
  Check(real.image.EOL7.bNumBytes == 123, "the count of the trailer's bytes");
  Check(real.Write() == model.Write(), "whether the image can be written");
  Check(OnDisk() == model_file.Bytes(), "the bytes written");
  return 0;
}
