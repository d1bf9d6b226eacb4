#include "reports/text_form.h"

#include "support/text.h"

namespace lorimet {

void TextForm::Text(std::string_view utf8) { Bytes(ToCp1252(utf8)); }

void TextForm::Bytes(std::string_view bytes) {
  contents_ += bytes;
  column_ += static_cast<int>(bytes.size());
}

void TextForm::Number(std::int32_t value) {
  Bytes((value < 0 ? "" : " ") + std::to_string(value) + " ");
}

void TextForm::Spc(int blanks) { Bytes(std::string(static_cast<std::size_t>(blanks), ' ')); }

void TextForm::Tab(int column) {
  if (column_ > column) EndLine();
  Spc(column - column_);
}

void TextForm::EndLine() {
  contents_ += kCrLf;
  column_ = 1;
}

void TextForm::EmptyLines(int count) {
  for (int i = 0; i < count; ++i) EndLine();
}

void TextForm::Line(std::string_view utf8) {
  Text(utf8);
  EndLine();
}

}  // namespace lorimet
