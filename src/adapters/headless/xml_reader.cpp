#include "adapters/headless/xml_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <stdexcept>
#include <utility>

#include "support/text.h"

namespace lorimet {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

constexpr std::array<std::pair<std::string_view, char>, 5> kEntities{
    {{"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}}};

char32_t CharacterOfEntity(std::string_view entity) {
  for (const auto& [name, character] : kEntities)
    if (name == entity) return static_cast<unsigned char>(character);
  const bool hex = entity.starts_with("#x");
  const char* const end = entity.data() + entity.size();
  std::uint32_t code = 0;
  const bool numbered = entity.starts_with('#');
  const char* const digits = entity.data() + std::min<std::size_t>(entity.size(), hex ? 2 : 1);
  const auto result = std::from_chars(digits, end, code, hex ? 16 : 10);
  if (!numbered || result.ec != std::errc{} || result.ptr != end || code > 0xFFFF)
    throw std::runtime_error("XML entity " + std::string(entity) + " is not known");
  return code;
}

}  // namespace

std::string_view XmlReader::Until(std::string_view mark) {
  const std::size_t end = text_.find(mark, at_);
  if (end == std::string_view::npos) throw std::runtime_error("XML ends within a tag");
  const std::string_view found = text_.substr(at_, end - at_);
  at_ = end + mark.size();
  return found;
}

bool XmlReader::Next() {
  if (close_pending_) {
    close_pending_ = false;
    CloseElement();
    return true;
  }
  while (at_ < text_.size()) {
    if (text_[at_] == '<') {
      if (ReadMarkup()) return true;
      continue;
    }
    const std::size_t end = text_.find('<', at_);
    const std::string_view raw = text_.substr(at_, end == std::string_view::npos ? end : end - at_);
    at_ += raw.size();
    value_ = Decode(raw);
    kind_ = Token::kText;
    return true;
  }
  if (!open_.empty()) throw std::runtime_error("XML ends within " + open_.back());
  return false;
}

void XmlReader::CloseElement() {
  if (open_.empty() || open_.back() != name_)
    throw std::runtime_error("XML closes " + name_ + ", which is not open");
  open_.pop_back();
  kind_ = Token::kEnd;
}

// True when an element starts or ends here; comments, declarations and the like are skipped.
bool XmlReader::ReadMarkup() {
  const std::string_view rest = text_.substr(at_);
  if (rest.starts_with("<!--")) {
    Until("-->");
    return false;
  }
  if (rest.starts_with("<?") || rest.starts_with("<!")) {
    Until(">");
    return false;
  }
  if (rest.starts_with("</")) {
    at_ += 2;
    const std::string_view name = Until(">");
    name_ = std::string(name.substr(0, name.find_last_not_of(kBlanks) + 1));
    CloseElement();
    return true;
  }
  ReadStart();
  return true;
}

void XmlReader::ReadStart() {
  ++at_;
  std::string_view tag = Until(">");
  close_pending_ = tag.ends_with('/');
  if (close_pending_) tag.remove_suffix(1);
  const std::size_t name_end = tag.find_first_of(kBlanks);
  name_ = std::string(tag.substr(0, name_end));
  open_.push_back(name_);
  attributes_.clear();
  std::size_t at = name_end == std::string_view::npos ? tag.size() : name_end;
  while ((at = tag.find_first_not_of(kBlanks, at)) != std::string_view::npos) {
    const std::size_t equals = tag.find('=', at);
    if (equals == std::string_view::npos || equals + 1 >= tag.size())
      throw std::runtime_error("XML attribute without a value");
    const char quote = tag[equals + 1];
    const std::size_t end = tag.find(quote, equals + 2);
    if (end == std::string_view::npos) throw std::runtime_error("XML attribute without an end");
    attributes_[std::string(tag.substr(at, equals - at))] =
        Decode(tag.substr(equals + 2, end - equals - 2));
    at = end + 1;
  }
  kind_ = Token::kStart;
}

std::string XmlReader::Attribute(const std::string& name) const {
  const auto found = attributes_.find(name);
  return found == attributes_.end() ? std::string() : found->second;
}

// Line ends become LF, as XML has it; a carriage return that is meant stands as a reference.
std::string XmlReader::Decode(std::string_view raw) const {
  std::string text;
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] == '\r') {
      if (i + 1 >= raw.size() || raw[i + 1] != '\n') text += '\n';
      continue;
    }
    if (raw[i] != '&') {
      text += raw[i];
      continue;
    }
    const std::size_t end = raw.find(';', i);
    if (end == std::string_view::npos) throw std::runtime_error("XML entity without an end");
    const std::string_view entity = raw.substr(i + 1, end - i - 1);
    i = end;
    AppendUtf8(text, CharacterOfEntity(entity));
  }
  return text;
}

}  // namespace lorimet
