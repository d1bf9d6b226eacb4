// A small pull reader for the XML that the project itself keeps: .ui and .ts files.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace lorimet {

// Elements, attributes, text, character references and the five entities; no name spaces, no
// document types beyond skipping them. Throws std::runtime_error on malformed input.
class XmlReader {
 public:
  enum class Token { kStart, kText, kEnd };

  explicit XmlReader(std::string_view text) : text_(text) {}

  // False at the end of the document.
  bool Next();
  Token Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  const std::string& Text() const { return value_; }
  // Empty when the element has none of that name.
  std::string Attribute(const std::string& name) const;

 private:
  bool ReadMarkup();
  void CloseElement();
  void ReadStart();
  std::string Decode(std::string_view raw) const;
  std::string_view Until(std::string_view mark);

  std::string_view text_;
  std::size_t at_ = 0;
  Token kind_ = Token::kText;
  std::string name_;
  std::string value_;
  std::map<std::string, std::string> attributes_;
  bool close_pending_ = false;
  std::vector<std::string> open_;  // elements, outermost first
};

}  // namespace lorimet
