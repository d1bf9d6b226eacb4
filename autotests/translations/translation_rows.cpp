#include "autotests/translations/translation_rows.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>
#include <utility>

#include "adapters/headless/xml_reader.h"
#include "autotests/places.h"
#include "support/text.h"

namespace lorimet::testing_support {
namespace {

// The small letters without accents of code page 1252 from 0xC0 on; a blank stands for the others.
constexpr std::string_view kLettersFromC0 =
    "aaaaaa ceeeeiiii nooooo ouuuuy  aaaaaa ceeeeiiii nooooo ouuuuy y";

class HelpReader {
 public:
  HelpReader(std::string page, std::vector<HelpText>& texts)
      : page_(std::move(page)), texts_(texts) {}

  void Read(const std::string& html) {
    XmlReader reader(html);
    while (reader.Next()) {
      const bool start = reader.Kind() == XmlReader::Token::kStart;
      if (reader.Kind() == XmlReader::Token::kText) {
        paragraph_ += in_code_ ? "x" : reader.Text();
      } else if (reader.Name() == "code" || reader.Name() == "pre") {
        in_code_ = start;
      } else if (reader.Name() == "b") {
        paragraph_ += start ? "[" : "]";
      } else if (reader.Name() != "a") {
        EndParagraph();
      }
    }
  }

 private:
  void EndParagraph() {
    const bool readable = paragraph_.find_first_not_of(" \r\n") != std::string::npos;
    if (readable) texts_.push_back({page_, paragraph_});
    paragraph_.clear();
  }

  std::string page_;
  std::vector<HelpText>& texts_;
  std::string paragraph_;
  bool in_code_ = false;
};

// The pages are HTML whose head and pictures are not closed as XML wants them.
void ReadHelpPage(const std::filesystem::path& path, std::vector<HelpText>& texts) {
  std::string html = ReadFile(path);
  html.erase(0, html.find("<body"));
  html.erase(html.find("</html>"));
  for (std::size_t at = html.find("<img"); at != std::string::npos; at = html.find("<img", at))
    html.erase(at, html.find('>', at) + 1 - at);
  HelpReader(path.filename().string(), texts).Read(html);
}

}  // namespace

std::string ReadFile(const std::filesystem::path& path) {
  std::stringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

std::vector<TranslationRow> RowsOf(const std::string& language, const std::string& program) {
  const std::string xml = ReadFile(InSource("translations/") + program + "_" + language + ".ts");
  XmlReader reader(xml);
  std::vector<TranslationRow> rows;
  std::string value;
  while (reader.Next()) {
    if (reader.Kind() == XmlReader::Token::kText) value += reader.Text();
    if (reader.Kind() == XmlReader::Token::kStart) {
      value.clear();
      if (reader.Name() == "message") rows.emplace_back();
      if (reader.Name() == "translation")
        rows.back().unfinished = !reader.Attribute("type").empty();
    }
    if (reader.Kind() != XmlReader::Token::kEnd) continue;
    if (reader.Name() == "source") rows.back().key = value;
    if (reader.Name() == "translation") rows.back().text = value;
  }
  return rows;
}

std::vector<HelpText> HelpTextsOf(const std::string& language) {
  std::vector<HelpText> texts;
  const std::filesystem::path folder = InSource("help/") + language;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    ReadHelpPage(entry.path(), texts);
  return texts;
}

std::string Folded(std::string_view text) {
  std::string folded;
  for (const char c : ToCp1252(text)) {
    const auto code = static_cast<unsigned char>(c);
    char letter = static_cast<char>(code < 0x80 ? std::tolower(code) : code);
    if (code >= 0xC0 && kLettersFromC0[code - 0xC0] != ' ') letter = kLettersFromC0[code - 0xC0];
    if (code == 0xA0 || letter == '\r' || letter == '\n') letter = ' ';
    if (letter == '&' || (letter == ' ' && folded.ends_with(' '))) continue;
    folded += letter;
  }
  return folded;
}

}  // namespace lorimet::testing_support
