// The reading of .ui files without a toolkit.
#include "adapters/headless/ui_design.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "adapters/headless/xml_reader.h"

namespace lorimet {
namespace {

// The document as one line: "<a k=v>", "text", "</a>".
std::string Read(const std::string& xml, const std::string& attribute = "") {
  XmlReader reader(xml);
  std::string seen;
  while (reader.Next()) {
    if (reader.Kind() == XmlReader::Token::kText) seen += reader.Text();
    if (reader.Kind() == XmlReader::Token::kEnd) seen += "</" + reader.Name() + ">";
    if (reader.Kind() != XmlReader::Token::kStart) continue;
    const std::string value = attribute.empty() ? "" : reader.Attribute(attribute);
    seen += "<" + reader.Name() + (value.empty() ? "" : " " + value) + ">";
  }
  return seen;
}

TEST(XmlReader, ReadsElementsAttributesAndTexts) {
  // clang-format off
  EXPECT_EQ(Read("<a>b</a>"),                          "<a>b</a>");
  EXPECT_EQ(Read("<a/>"),                              "<a></a>");
  EXPECT_EQ(Read("<a k=\"v\" />", "k"),                "<a v></a>");
  EXPECT_EQ(Read("<a\n j='1'\tk='x \"y\"'></a>", "k"), "<a x \"y\"></a>");
  EXPECT_EQ(Read("<a k=\"a&amp;b\"/>", "k"),           "<a a&b></a>");
  EXPECT_EQ(Read("<a k=\"v\"/>", "other"),             "<a></a>");
  EXPECT_EQ(Read("<a>b<c/>d</a >"),                    "<a>b<c></c>d</a>");
  EXPECT_EQ(Read("<?xml?><!DOCTYPE x><!-- <z> --><a/>"), "<a></a>");
  EXPECT_EQ(Read(""),                                  "");
  // clang-format on
}

TEST(XmlReader, DecodesEntitiesReferencesAndLineEnds) {
  // clang-format off
  EXPECT_EQ(Read("<a>&lt;&gt;&amp;&quot;&apos;</a>"), "<a><>&\"'</a>");
  EXPECT_EQ(Read("<a>&#65;&#x42;&#233;&#x20AC;</a>"), "<a>ABé€</a>");
  EXPECT_EQ(Read("<a>one\r\ntwo\rthree</a>"),         "<a>one\ntwo\nthree</a>");
  EXPECT_EQ(Read("<a>one&#13;\ntwo</a>"),             "<a>one\r\ntwo</a>");
  // clang-format on
}

TEST(XmlReader, RefusesWhatIsMalformed) {
  for (const char* xml :
       {"<a", "<a>", "<a></b>", "</a>", "<a><b></a></b>", "<a>&amp</a>", "<a>&what;</a>",
        "<a>&;</a>", "<a>&#;</a>", "<a>&#x;</a>", "<a>&#12z;</a>", "<a k></a>", "<a k=></a>",
        "<a k=\"v></a>", "<!-- ", "text<a>"})
    EXPECT_THROW(Read(xml), std::runtime_error) << xml;
}

bool Holds(const std::vector<std::string>& texts, const std::string& text) {
  return std::ranges::find(texts, text) != texts.end();
}

TEST(UiDesign, HasTheFormsCaptionSizeAndControls) {
  const UiDesign design = ReadUiDesign("frmRP1210Err");
  EXPECT_EQ(design.name, "frmRP1210Err");
  EXPECT_GT(design.width, 100);
  EXPECT_GT(design.height, 100);
  ASSERT_TRUE(design.controls.contains("cmdDetails"));
  EXPECT_EQ(design.controls.at("cmdDetails").widget_class, "QPushButton");
  EXPECT_EQ(design.controls.at("cmdDetails").design.caption, "&Details");
  EXPECT_EQ(design.controls.at("cmdDetails").design.text, std::nullopt);
}

TEST(UiDesign, ListsTheTextsToTranslate) {
  const std::vector<std::string> texts = ReadUiDesign("frmAbout").texts;
  EXPECT_TRUE(Holds(texts, "About Lorimet"));
  EXPECT_TRUE(Holds(texts, "OK"));
  EXPECT_FALSE(Holds(texts, ""));
  EXPECT_FALSE(Holds(texts, "frmAbout"));
  EXPECT_FALSE(Holds(ReadUiDesign("frmErr").texts, "Norvick Lorimet"));  // marked
}

TEST(UiDesign, IsEmptyForAFormWithoutAFile) {
  const UiDesign design = ReadUiDesign("frmNowhere");
  EXPECT_EQ(design.name, "");
  EXPECT_TRUE(design.controls.empty());
}

TEST(UiDesign, FindsEveryForm) {
  const std::vector<std::string> names = UiFormNames();
  for (const char* name : {"frmZeltMain", "frmErr", "frmRP1210Err", "frmAbout", "frmPDFDDEForm"})
    EXPECT_TRUE(Holds(names, name)) << name;
  for (const std::string& name : names) EXPECT_EQ(ReadUiDesign(name).name, name);
}

}  // namespace
}  // namespace lorimet
