// The string literals of a C++ source file, for the test of the translations.
#pragma once

#include <cctype>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet::testing_support {

struct SourceLiteral {
  std::string text;         // adjacent literals joined, escapes decoded
  bool translated = false;  // stands within the parentheses of a call of Translate
};

// Reads C++ well enough for this project's own sources: comments, character and string literals,
// raw strings without a delimiter, and preprocessor lines.
class LiteralReader {
 public:
  explicit LiteralReader(std::string_view source) : source_(source) {}

  std::vector<SourceLiteral> Read() {
    while (at_ < source_.size()) Step();
    return literals_;
  }

 private:
  void Step() {
    const std::string_view rest = source_.substr(at_);
    if (rest.starts_with("//") || rest.starts_with("#include")) {
      SkipPast("\n");
    } else if (rest.starts_with("/*")) {
      SkipPast("*/");
    } else if (rest.starts_with("R\"(")) {
      ReadRaw();
    } else if (rest.front() == '"') {
      ReadString();
    } else if (rest.front() == '\'') {
      ReadCharacter();
    } else {
      ReadOther(rest.front());
    }
  }

  void SkipPast(std::string_view mark) {
    const std::size_t end = source_.find(mark, at_);
    at_ = end == std::string_view::npos ? source_.size() : end + mark.size();
  }

  void ReadRaw() {
    const std::size_t begin = at_ + 3;
    at_ = begin;
    SkipPast(")\"");
    Add(std::string(source_.substr(begin, at_ - 2 - begin)));
  }

  void ReadString() {
    std::string text;
    for (++at_; at_ < source_.size() && source_[at_] != '"'; ++at_) {
      if (source_[at_] != '\\') {
        text += source_[at_];
        continue;
      }
      const char escape = source_[++at_];
      text += escape == 'n' ? '\n' : escape == 'r' ? '\r' : escape == 't' ? '\t' : escape;
    }
    ++at_;
    Add(text);
  }

  // A quote within a number parts its digits; behind another letter it begins a wide character.
  void ReadCharacter() {
    const bool digits = at_ > 0 && std::isxdigit(static_cast<unsigned char>(source_[at_ - 1]));
    ++at_;
    if (digits) return;
    while (at_ < source_.size() && source_[at_] != '\'') at_ += source_[at_] == '\\' ? 2 : 1;
    ++at_;
    joined_ = false;
  }

  void ReadOther(char c) {
    if (std::isspace(static_cast<unsigned char>(c))) {
      ++at_;
      return;
    }
    joined_ = false;
    if (std::isalpha(static_cast<unsigned char>(c)) || c == '_') {
      const std::size_t begin = at_;
      while (at_ < source_.size() && IsNamePart(source_[at_])) ++at_;
      called_ = source_.substr(begin, at_ - begin);
      return;
    }
    if (c == '(') calls_.push_back(called_ == "Translate");
    if (c == ')' && !calls_.empty()) calls_.pop_back();
    called_ = {};
    ++at_;
  }

  static bool IsNamePart(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

  void Add(const std::string& text) {
    if (joined_)
      literals_.back().text += text;
    else
      literals_.push_back({text, !calls_.empty() && calls_.back()});
    joined_ = true;
    called_ = {};
  }

  std::string_view source_;
  std::size_t at_ = 0;
  std::string_view called_;  // the name that an opening parenthesis would call
  std::vector<bool> calls_;  // open parentheses: whether each is a call of Translate
  bool joined_ = false;      // only blanks stand since the last literal
  std::vector<SourceLiteral> literals_;
};

}  // namespace lorimet::testing_support
