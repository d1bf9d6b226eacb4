// The registry's export format: one text file of keys in brackets, each with its named values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lorimet {

struct RegistryValue {
  std::uint32_t type = 0;
  std::vector<std::uint8_t> data;  // a text with its NUL, code page 1252
};

// One file in memory. It reads both formats, REGEDIT4 (code page 1252) and "Windows Registry Editor
// Version 5.00" (UTF-16LE, or UTF-8, or code page 1252), with any line ends. A line that means
// nothing, a deletion or a comment is passed over, and what is not changed is written as it was,
// byte by byte.
//
// Keys are whole, with their hive ("HKEY_CURRENT_USER\SOFTWARE\..."). Keys and names are in code
// page 1252 and match without regard to case; the empty name is the key's default value. What
// comes twice counts as it comes last.
class RegistryFile {
 public:
  // A file with no keys, in the REGEDIT4 format.
  RegistryFile();
  // None when the bytes are no such file.
  static std::optional<RegistryFile> Parse(const std::string& bytes);

  // A key is there when it or one below it is in the file.
  bool HasKey(const std::string& key) const;
  std::optional<RegistryValue> Find(const std::string& key, const std::string& name) const;
  void AddKey(const std::string& key);
  // Replaces the value in place, or adds it behind the key's others, or with the key at the end.
  void SetDword(const std::string& key, const std::string& name, std::uint32_t value);
  std::string Bytes() const;

 private:
  enum class Encoding { kCodePage, kUtf8, kUtf16 };

  struct Line {
    std::string raw;   // as it is in the file, line end included
    std::string text;  // in code page 1252, with no line end and no blanks around it
  };
  struct Section {
    std::string key;   // folded
    std::size_t last;  // the last line of it that means something
  };
  struct Entry {
    std::string key;    // folded
    std::string name;   // folded
    std::string left;   // the name as the file writes it, quotes and all
    std::size_t first;  // its lines
    std::size_t count;
    RegistryValue value;
  };

  void Split(const std::string& bytes);
  bool Index();
  void IndexValue(std::size_t& line);
  std::string Joined(std::size_t& line) const;
  std::optional<RegistryValue> ParseValue(const std::string& text) const;
  std::optional<RegistryValue> ParseHex(const std::string& text) const;
  const Entry* FindEntry(const std::string& key, const std::string& name) const;
  Line MakeLine(const std::string& text) const;
  void EndLastLine();

  Encoding encoding_ = Encoding::kCodePage;
  bool wide_texts_ = false;  // a text given as bytes is UTF-16LE
  std::string mark_;         // the byte-order mark
  std::string line_end_ = "\r\n";
  std::vector<Line> lines_;
  std::vector<Section> sections_;
  std::vector<Entry> entries_;
};

}  // namespace lorimet
