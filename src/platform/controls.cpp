#include "platform/controls.h"

#include <algorithm>

#include "platform/runtime_error.h"

namespace lorimet {

void RaiseSubscriptOutOfRange() { throw RuntimeError(ErrorNumber::kSubscriptOutOfRange); }

Control::Control(ControlOwner& form, ControlKind kind, std::string name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {
  if (index >= 0) name_ += "_" + std::to_string(index);
  form.AddControl(this);
}

const Control& Control::Touch() const {
  if (!form_.Loaded()) form_.Load();
  return *this;
}

void Control::MarkChanged(Change change) {
  const bool first = changes_ == 0;
  changes_ |= change;
  if (first && form_.View() != nullptr) form_.View()->Changed(this);
}

void Control::Raise(const std::function<void()>& handler) {
  // The handler is copied: it may unload the form or replace itself.
  const std::function<void()> copy = handler;
  form_.GetDesktop().RunEvent([&copy] {
    if (copy) copy();
  });
}

void Control::SetFocus() {
  Touch();
  if (form_.View() != nullptr) form_.View()->SetFocus(*this);
}

void Control::UserDoubleClick() { Raise(on_double_click); }

bool Control::UserKeyDown(KeyEvent key) {
  if (!on_key_down) return true;
  Raise([this, &key] { on_key_down(key); });
  return key.code != 0;
}

void Control::Reset() {
  enabled_ = true;
  visible_ = true;
  tab_stop_ = true;
  back_color_ = kColorDefault;
  tool_tip_.clear();
  placement_ = {};
  changes_ = 0;
  design_ = {};
}

void Control::ImportDesign(const ControlDesign& design) {
  design_ = design;
  ApplyDesign(design);
}

void Control::ApplyDesign(const ControlDesign& design) {
  if (design.enabled) enabled_ = *design.enabled;
  if (design.visible) visible_ = *design.visible;
  if (design.tool_tip) tool_tip_ = *design.tool_tip;
}

void CaptionedControl::Reset() {
  Control::Reset();
  caption_.clear();
}

void CaptionedControl::ApplyDesign(const ControlDesign& design) {
  Control::ApplyDesign(design);
  if (design.caption) caption_ = *design.caption;
}

void TextBox::SetText(const std::string& text) {
  if (!Assign(&TextBox::text_, text, kText)) return;
  all_selected_ = false;
  if (on_change) Raise(on_change);
}

void TextBox::SelectAll() {
  Touch();
  all_selected_ = true;
  MarkChanged(kSelection);
}

void TextBox::UserType(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  all_selected_ = false;
  Raise(on_change);
}

void TextBox::UserClick() { Raise(on_click); }

void TextBox::Reset() {
  Control::Reset();
  text_.clear();
  max_length_ = 0;
  all_selected_ = false;
}

void TextBox::ApplyDesign(const ControlDesign& design) {
  Control::ApplyDesign(design);
  if (design.text) text_ = *design.text;
  if (design.max_length) max_length_ = *design.max_length;
}

bool OptionButton::Select() {
  if (!Assign(&OptionButton::value_, true, kValue)) return false;
  for (OptionButton* sibling : siblings_)
    if (sibling != this) sibling->Assign(&OptionButton::value_, false, kValue);
  return true;
}

void OptionButton::SetValue(bool value) {
  if (!value) {
    Assign(&OptionButton::value_, false, kValue);
    return;
  }
  if (Select()) Raise(on_click);
}

void OptionButton::UserSelect() {
  if (Select()) Raise(on_click);
}

void OptionButton::Reset() {
  CaptionedControl::Reset();
  value_ = false;
}

void OptionButton::ApplyDesign(const ControlDesign& design) {
  CaptionedControl::ApplyDesign(design);
  if (design.value) value_ = *design.value;
}

void CheckBox::SetValue(bool value) {
  if (Assign(&CheckBox::value_, value, kValue)) Raise(on_click);
}

void CheckBox::UserSet(bool value) { SetValue(value); }

void CheckBox::Reset() {
  CaptionedControl::Reset();
  value_ = false;
}

void CheckBox::ApplyDesign(const ControlDesign& design) {
  CaptionedControl::ApplyDesign(design);
  if (design.value) value_ = *design.value;
}

void Picture::Reset() {
  Control::Reset();
  image_.clear();
  drawing_ = {};
}

void ProgressBar::Reset() {
  Control::Reset();
  value_ = 0;
  minimum_ = 0;
  maximum_ = 100;
}

void ProgressBar::ApplyDesign(const ControlDesign& design) {
  Control::ApplyDesign(design);
  if (design.minimum) minimum_ = *design.minimum;
  if (design.maximum) maximum_ = *design.maximum;
}

void Timer::SetInterval(int milliseconds) {
  if (Assign(&Timer::interval_, milliseconds, kInterval)) Owner().GetDesktop().ForgetTick(*this);
}

void Timer::SetEnabled(bool enabled) {
  Control::SetEnabled(enabled);
  if (!enabled) Owner().GetDesktop().ForgetTick(*this);
}

void Timer::Reset() {
  Control::Reset();
  interval_ = 0;
}

void Timer::ViewDropped() { Owner().GetDesktop().ForgetTick(*this); }

void DataGrid::SetColumns(std::vector<GridColumn> columns) {
  Touch();
  columns_ = std::move(columns);
  MarkChanged(kContent);
}

const std::vector<std::string>& DataGrid::Row(int row) const {
  Touch();
  if (row < 0 || row >= RowCount()) RaiseSubscriptOutOfRange();
  return rows_[static_cast<std::size_t>(row)];
}

const std::string& DataGrid::Cell(int row, const std::string& field) const {
  const std::vector<std::string>& cells = Row(row);
  for (std::size_t i = 0; i < columns_.size() && i < cells.size(); ++i)
    if (columns_[i].field == field) return cells[i];
  RaiseSubscriptOutOfRange();
}

void DataGrid::BeginInsert() {
  Touch();
  inserting_ = true;
}

void DataGrid::AppendRow(std::vector<std::string> cells) {
  Touch();
  rows_.push_back(std::move(cells));
  MarkChanged(kContent);
}

void DataGrid::EndInsert() {
  Touch();
  inserting_ = false;
  MarkChanged(kContent);
  if (rows_.empty()) return;
  focused_row_ = 0;
  Raise(on_focused_row_change);
}

void DataGrid::DeleteRow(int row) {
  Touch();
  if (row < 0 || row >= RowCount()) RaiseSubscriptOutOfRange();
  rows_.erase(rows_.begin() + row);
  focused_row_ = std::min(focused_row_, RowCount() - 1);
  MarkChanged(kContent);
}

void DataGrid::UserFocusRow(int row) {
  if (row < 0 || row >= RowCount() || row == focused_row_) return;
  focused_row_ = row;
  MarkChanged(kSelection);
  Raise(on_focused_row_change);
}

void DataGrid::UserClickHyperlink(int row) {
  UserFocusRow(row);
  if (!on_hyperlink_click || row < 0 || row >= RowCount()) return;
  Raise([this, row] { on_hyperlink_click(row); });
}

void DataGrid::Reset() {
  Control::Reset();
  columns_.clear();
  rows_.clear();
  focused_row_ = -1;
  inserting_ = false;
}

void TabStrip::SetTabs(std::vector<std::string> captions) {
  Touch();
  tabs_ = std::move(captions);
  MarkChanged(kContent);
}

void TabStrip::SetSelected(int tab) {
  if (Assign(&TabStrip::selected_, tab, kValue)) Raise(on_click);
}

void TabStrip::Reset() {
  Control::Reset();
  tabs_.clear();
  selected_ = 0;
}

}  // namespace lorimet
