// Fuzzes the profile file: random calls on a random file, with edits from outside between them,
// must give what the plain model gives.
#include "adapters/posix/posix_profile_file.h"
#include "fuzz/profile_file_model.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <unistd.h>

namespace {

// The input is fields parted by a bar; a byte behind a backslash is itself.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}
  bool Empty() const { return rest_.empty(); }
  std::string Field() {
    std::string field;
    while (!rest_.empty()) {
      char c = rest_.front();
      rest_.remove_prefix(1);
      if (c == '|') break;
      if (c == '\\' && !rest_.empty()) {
        c = rest_.front();
        rest_.remove_prefix(1);
      }
      field += c;
    }
    return field;
  }

 private:
  std::string_view rest_;
};

void Check(bool equal, const char* what) {
  if (equal) return;
  std::fprintf(stderr, "the profile file and its model differ: %s\n", what);
  std::abort();
}

// One file on disk, and what the model takes it for.
struct TestFile {
  std::string path;
  std::optional<std::string> expected;
  std::vector<std::array<std::string, 3>> pending;

  std::optional<std::string> OnDisk() const {
    std::ifstream in(path, std::ios::binary);
    if (!in) return {};
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  void Put(const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
    expected = bytes;
    Replay();
  }
  void Remove() {
    std::remove(path.c_str());
    expected.reset();
    Replay();
  }
  void Write(const std::string& section, const std::string& key, const std::string& value) {
    const std::string after = lorimet::model::Write(expected, section, key, value);
    if (expected == after) return;
    expected = after;
    pending.push_back({section, key, value});
  }
  // An edit from outside finds the pending writes made again on its text.
  void Replay() {
    for (const auto& [section, key, value] : pending)
      expected = lorimet::model::Write(expected, section, key, value);
  }
};

const std::string& Folder() {
  static const std::string folder = [] {
    const char* base = std::getenv("TMPDIR");
    std::string name = std::string(base != nullptr ? base : "/tmp") + "/profile_file_fuzz_XXXXXX";
    if (mkdtemp(name.data()) == nullptr) std::abort();
    return name;
  }();
  return folder;
}

void Read(lorimet::PosixProfileFile& real, const TestFile& file, Input& input) {
  const std::string section = input.Field();
  const std::string key = input.Field();
  const std::string fallback = input.Field();
  const std::size_t size = fallback.size() % 3 == 0 ? 1024 : section.size() + 2 * key.size();
  Check(real.GetString(section, key, fallback, size, file.path) ==
            lorimet::model::Read(file.expected, section, key, fallback, size),
        "a read");
}

void Write(lorimet::PosixProfileFile& real, TestFile& file, Input& input) {
  const std::string section = input.Field();
  const std::string key = input.Field();
  const std::string value = input.Field();
  Check(real.WriteString(section, key, value, file.path), "a write");
  file.Write(section, key, value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  std::array<TestFile, 2> files{TestFile{Folder() + "/a.ecu", {}, {}},
                                TestFile{Folder() + "/b.ecu", {}, {}}};
  for (TestFile& file : files) file.Remove();
  files[0].Put(input.Field());
  lorimet::PosixProfileFile real;
  TestFile* file = &files[0];
  const auto flushed = [&] {
    for (TestFile& each : files) {
      Check(each.OnDisk() == each.expected, "the bytes");
      each.pending.clear();
    }
  };
  while (!input.Empty()) {
    const std::string call = input.Field();
    switch (call.empty() ? 'r' : call.front()) {
      case 'w':
        Write(real, *file, input);
        break;
      case 'f':
        Check(real.Flush(), "a flush");
        flushed();
        break;
      case 'p':
        file->Put(input.Field());
        break;
      case 'd':
        file->Remove();
        break;
      case 'o':
        // Another file: the first call on it writes out the one before.
        file = &files[file == &files[0] ? 1 : 0];
        real.GetString("", "", "", 0, file->path);
        flushed();
        break;
      default:
        Read(real, *file, input);
        break;
    }
  }
  Check(real.Flush(), "the last flush");
  flushed();
  return 0;
}
