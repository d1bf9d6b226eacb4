// The controls of a form as plain objects: their properties, and the events that they raise.
//
// The control is the truth. What code sets here is mirrored to the screen by the form's view when
// the running event ends (or at Repaint and DoEvents on the way); what the user does arrives
// through the User... functions, which change the property first and raise the event then.
// Touching a control of a form that is not loaded loads the form.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop.h"
#include "platform/drawing.h"

namespace lorimet {

enum class ControlKind {
  kTextBox,
  kLabel,
  kFrame,
  kButton,
  kOptionButton,
  kCheckBox,
  kPicture,
  kProgressBar,
  kTimer,
  kMenuItem,
  kToolButton,
  kDataGrid,
  kTabStrip,
};

// A key on its way to a control. Codes are the virtual key codes of Windows; setting the code to 0
// swallows the key. Bits of shift: Shift 1, Ctrl 2, Alt 4.
struct KeyEvent {
  int code = 0;
  int shift = 0;
};
constexpr int kShiftMask = 1;
constexpr int kCtrlMask = 2;
constexpr int kAltMask = 4;
constexpr int kKeyF1 = 112;
constexpr int kKeyF9 = 120;

// Where a control stands in the container around it, in twips, and the size of its font in points.
// The window's layout decides until a form places its controls by itself.
struct Placement {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 285;
  double font_size = 8.25;

  bool operator==(const Placement&) const = default;
};

// A control as the form's designer drew it. Absent members keep the kind's default.
struct ControlDesign {
  std::optional<std::string> caption;
  std::optional<std::string> text;
  std::optional<std::string> tool_tip;
  std::optional<bool> enabled;
  std::optional<bool> visible;
  std::optional<bool> value;
  std::optional<int> max_length;
  std::optional<int> minimum;
  std::optional<int> maximum;
};

class Control {
 public:
  // What the view has still to mirror.
  enum Change : unsigned {
    kEnabled = 1u << 0,
    kVisible = 1u << 1,
    kBackColor = 1u << 2,
    kToolTip = 1u << 3,
    kCaption = 1u << 4,
    kText = 1u << 5,
    kValue = 1u << 6,
    kRange = 1u << 7,
    kContent = 1u << 8,  // rows of a grid, tabs, picture
    kInterval = 1u << 9,
    kSelection = 1u << 10,
    kTabStop = 1u << 11,
    kPlacement = 1u << 12,
  };

  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  ControlKind Kind() const { return kind_; }
  // The name in the running program: item i of a control array is "name_i".
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }  // -1 outside an array
  ControlOwner& Owner() const { return form_; }

  bool Enabled() const { return Touch().enabled_; }
  void SetEnabled(bool enabled) { Assign(&Control::enabled_, enabled, kEnabled); }
  // The control's own wish; it shows only while its containers and its form do.
  bool Visible() const { return Touch().visible_; }
  void SetVisible(bool visible) { Assign(&Control::visible_, visible, kVisible); }
  Color BackColor() const { return Touch().back_color_; }
  void SetBackColor(Color color) { Assign(&Control::back_color_, color, kBackColor); }
  const std::string& ToolTipText() const { return Touch().tool_tip_; }
  void SetToolTipText(const std::string& text) { Assign(&Control::tool_tip_, text, kToolTip); }

  // Whether the Tab key stops here; the mouse and SetFocus reach the control all the same. False is
  // for fields that show and are no part of the work, such as rows that are not in use. Loading the
  // form sets it to true again.
  bool TabStop() const { return Touch().tab_stop_; }
  void SetTabStop(bool stop) { Assign(&Control::tab_stop_, stop, kTabStop); }
  const Placement& Place() const { return Touch().placement_; }
  // From here on the form and no layout keeps the window's controls in their places.
  void SetPlace(const Placement& place) { Assign(&Control::placement_, place, kPlacement); }

  // False for what drops or keeps the page as it is, such as Close and Previous: a field that is
  // left for it is not asked, its on_lost_focus comes when the focus goes on from here. Part of the
  // form's build like the handlers, not of its state.
  bool causes_validation = true;

  // Moves the keyboard focus here; raises on_lost_focus of the control that had it and on_got_focus
  // of this one.
  void SetFocus();

  std::function<void()> on_got_focus;
  std::function<void()> on_lost_focus;
  std::function<void()> on_double_click;
  std::function<void(KeyEvent&)> on_key_down;

  // For views: the changes since the last call, and the design.
  unsigned TakeChanges() { return std::exchange(changes_, 0u); }
  void ImportDesign(const ControlDesign& design);
  const ControlDesign& Design() const { return design_; }
  // Where the window has the control; nothing is to be mirrored.
  void ViewMeasured(const Placement& place) { placement_ = place; }
  void UserDoubleClick();
  // False when the key was swallowed.
  bool UserKeyDown(KeyEvent key);

 protected:
  Control(ControlOwner& form, ControlKind kind, std::string name, int index);

  // Loads the form when it is not loaded.
  const Control& Touch() const;
  template <typename Owner, typename T, typename U>
  bool Assign(T Owner::*member, const U& value, Change change) {
    Touch();
    auto& self = static_cast<Owner&>(*this);
    if (self.*member == value) return false;
    self.*member = value;
    MarkChanged(change);
    return true;
  }
  void MarkChanged(Change change);
  void Raise(const std::function<void()>& handler);
  virtual void Reset();
  virtual void ApplyDesign(const ControlDesign& design);
  // The window ends; not called when the form is destroyed with it.
  virtual void ViewDropped() {}

 private:
  friend class Form;

  ControlOwner& form_;
  ControlKind kind_;
  std::string name_;
  int index_;
  bool enabled_ = true;
  bool visible_ = true;
  bool tab_stop_ = true;
  Color back_color_ = kColorDefault;
  std::string tool_tip_;
  Placement placement_;
  unsigned changes_ = 0;
  ControlDesign design_;
};

// A control with fixed words.
class CaptionedControl : public Control {
 public:
  const std::string& Caption() const {
    Touch();
    return caption_;
  }
  void SetCaption(const std::string& caption) {
    Assign(&CaptionedControl::caption_, caption, kCaption);
  }

 protected:
  using Control::Control;
  void Reset() override;
  void ApplyDesign(const ControlDesign& design) override;

 private:
  std::string caption_;
};

class Label : public CaptionedControl {
 public:
  explicit Label(ControlOwner& form, std::string name, int index = -1)
      : CaptionedControl(form, ControlKind::kLabel, std::move(name), index) {}
};

class Frame : public CaptionedControl {
 public:
  explicit Frame(ControlOwner& form, std::string name, int index = -1)
      : CaptionedControl(form, ControlKind::kFrame, std::move(name), index) {}
};

class TextBox : public Control {
 public:
  explicit TextBox(ControlOwner& form, std::string name, int index = -1)
      : Control(form, ControlKind::kTextBox, std::move(name), index) {}

  const std::string& Text() const {
    Touch();
    return text_;
  }
  // Raises on_change when the text becomes another one.
  void SetText(const std::string& text);
  // The most characters that the user can type; 0 is no limit. SetText is not cut.
  int MaxLength() const {
    Touch();
    return max_length_;
  }
  void SelectAll();
  bool AllSelected() const {
    Touch();
    return all_selected_;
  }

  std::function<void()> on_change;
  std::function<void()> on_click;

  void UserType(const std::string& text);
  void UserClick();

 protected:
  void Reset() override;
  void ApplyDesign(const ControlDesign& design) override;

 private:
  std::string text_;
  int max_length_ = 0;
  bool all_selected_ = false;
};

class Button : public CaptionedControl {
 public:
  explicit Button(ControlOwner& form, std::string name, int index = -1)
      : CaptionedControl(form, ControlKind::kButton, std::move(name), index) {}

  std::function<void()> on_click;
  void UserClick() { Raise(on_click); }
};

// Option buttons of one array exclude each other. Selecting one raises its click, whoever does it;
// the one that loses its selection raises nothing.
class OptionButton : public CaptionedControl {
 public:
  explicit OptionButton(ControlOwner& form, std::string name, int index = -1)
      : CaptionedControl(form, ControlKind::kOptionButton, std::move(name), index) {}

  bool Value() const {
    Touch();
    return value_;
  }
  void SetValue(bool value);

  std::function<void()> on_click;
  void UserClick() { UserSelect(); }

  // The other items of the array; set by ControlArray.
  void JoinArray(std::vector<OptionButton*> siblings) { siblings_ = std::move(siblings); }

 protected:
  void Reset() override;
  void ApplyDesign(const ControlDesign& design) override;

 private:
  void UserSelect();
  bool Select();

  bool value_ = false;
  std::vector<OptionButton*> siblings_;
};

class CheckBox : public CaptionedControl {
 public:
  explicit CheckBox(ControlOwner& form, std::string name, int index = -1)
      : CaptionedControl(form, ControlKind::kCheckBox, std::move(name), index) {}

  bool Value() const {
    Touch();
    return value_;
  }
  // Raises on_click when the value changes.
  void SetValue(bool value);

  std::function<void()> on_click;
  void UserClick() { UserSet(!value_); }
  void UserSet(bool value);

 protected:
  void Reset() override;
  void ApplyDesign(const ControlDesign& design) override;

 private:
  bool value_ = false;
};

// Shows a picture by the name of its file without extension, or a drawing that has shapes; without
// either it shows what the designer chose.
class Picture : public Control {
 public:
  explicit Picture(ControlOwner& form, std::string name, int index = -1)
      : Control(form, ControlKind::kPicture, std::move(name), index) {}

  const std::string& Image() const {
    Touch();
    return image_;
  }
  void SetImage(const std::string& image) { Assign(&Picture::image_, image, kContent); }
  const lorimet::Drawing& Drawing() const {
    Touch();
    return drawing_;
  }
  void SetDrawing(const lorimet::Drawing& drawing) {
    Assign(&Picture::drawing_, drawing, kContent);
  }

 protected:
  void Reset() override;

 private:
  std::string image_;
  lorimet::Drawing drawing_;
};

// A value beyond the range is kept as it is and shows as an empty or a full bar.
class ProgressBar : public Control {
 public:
  explicit ProgressBar(ControlOwner& form, std::string name, int index = -1)
      : Control(form, ControlKind::kProgressBar, std::move(name), index) {}

  int Value() const {
    Touch();
    return value_;
  }
  void SetValue(int value) { Assign(&ProgressBar::value_, value, kValue); }
  int Min() const {
    Touch();
    return minimum_;
  }
  int Max() const {
    Touch();
    return maximum_;
  }
  void SetMax(int maximum) { Assign(&ProgressBar::maximum_, maximum, kRange); }

 protected:
  void Reset() override;
  void ApplyDesign(const ControlDesign& design) override;

 private:
  int value_ = 0;
  int minimum_ = 0;
  int maximum_ = 100;
};

// Ticks on the user-interface thread every Interval milliseconds while it is enabled; an interval
// of 0 stops it.
class Timer : public Control, public Ticker {
 public:
  explicit Timer(ControlOwner& form, std::string name, int index = -1)
      : Control(form, ControlKind::kTimer, std::move(name), index) {}
  ~Timer() override { Timer::ViewDropped(); }

  int Interval() const {
    Touch();
    return interval_;
  }
  // Another interval starts the timer anew.
  void SetInterval(int milliseconds);
  void SetEnabled(bool enabled);
  bool Running() const override { return interval_ > 0 && Enabled(); }

  std::function<void()> on_tick;
  void Tick() override { Raise(on_tick); }

 protected:
  void Reset() override;
  void ViewDropped() override;

 private:
  int interval_ = 0;
};

// A top-level menu or an item of one.
class MenuItem : public CaptionedControl {
 public:
  explicit MenuItem(ControlOwner& form, std::string name, int index = -1)
      : CaptionedControl(form, ControlKind::kMenuItem, std::move(name), index) {}

  std::function<void()> on_click;
  void UserClick() { Raise(on_click); }
};

// A button of a toolbar; its name is the toolbar's with the button's key, "tbrABS_faults".
class ToolButton : public Control {
 public:
  ToolButton(ControlOwner& form, const std::string& toolbar, std::string key)
      : Control(form, ControlKind::kToolButton, toolbar + "_" + key, -1), key_(std::move(key)) {}

  const std::string& Key() const { return key_; }

  std::function<void()> on_click;
  void UserClick() { Raise(on_click); }

 private:
  std::string key_;
};

// One column of a grid; the captions are centred.
struct GridColumn {
  std::string field;
  std::string caption;
  bool hyperlink = false;
};

// Rows of text with one focused row.
class DataGrid : public Control {
 public:
  explicit DataGrid(ControlOwner& form, std::string name, int index = -1)
      : Control(form, ControlKind::kDataGrid, std::move(name), index) {}

  const std::vector<GridColumn>& Columns() const {
    Touch();
    return columns_;
  }
  void SetColumns(std::vector<GridColumn> columns);
  int RowCount() const {
    Touch();
    return static_cast<int>(rows_.size());
  }
  // Error 9 on a row or a field that is not there.
  const std::string& Cell(int row, const std::string& field) const;
  const std::vector<std::string>& Row(int row) const;
  // A grid in insert mode takes rows without moving the focus; leaving it focuses the first row
  // and raises on_focused_row_change when there is one.
  void BeginInsert();
  void AppendRow(std::vector<std::string> cells);
  void EndInsert();
  bool Inserting() const {
    Touch();
    return inserting_;
  }
  void DeleteRow(int row);
  int FocusedRow() const {  // -1 with no row
    Touch();
    return focused_row_;
  }

  std::function<void()> on_focused_row_change;
  std::function<void(int row)> on_hyperlink_click;

  void UserFocusRow(int row);
  void UserClickHyperlink(int row);

 protected:
  void Reset() override;

 private:
  std::vector<GridColumn> columns_;
  std::vector<std::vector<std::string>> rows_;
  int focused_row_ = -1;
  bool inserting_ = false;
};

class TabStrip : public Control {
 public:
  explicit TabStrip(ControlOwner& form, std::string name, int index = -1)
      : Control(form, ControlKind::kTabStrip, std::move(name), index) {}

  const std::vector<std::string>& Tabs() const {
    Touch();
    return tabs_;
  }
  void SetTabs(std::vector<std::string> captions);
  int Selected() const {
    Touch();
    return selected_;
  }
  // Raises on_click when another tab is selected.
  void SetSelected(int tab);

  std::function<void()> on_click;
  void UserClick(int tab) { SetSelected(tab); }

 protected:
  void Reset() override;

 private:
  std::vector<std::string> tabs_;
  int selected_ = 0;
};

// The items of one name, reached by their index. Error 9 for an index that has no item.
template <typename T>
class ControlArray {
 public:
  ControlArray(ControlOwner& form, const std::string& name, int count) {
    for (int i = 0; i < count; ++i) Add(form, name, i);
    Join();
  }
  // An array with gaps.
  ControlArray(ControlOwner& form, const std::string& name, std::initializer_list<int> indices) {
    for (const int i : indices) Add(form, name, i);
    Join();
  }

  T& operator[](int index) const { return Item(index); }
  int Size() const { return static_cast<int>(items_.size()); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

  void OnClick(const std::function<void(int)>& handler) {
    for (auto& item : items_) item->on_click = [handler, i = item->Index()] { handler(i); };
  }
  void OnGotFocus(const std::function<void(int)>& handler) {
    for (auto& item : items_) item->on_got_focus = [handler, i = item->Index()] { handler(i); };
  }
  void OnLostFocus(const std::function<void(int)>& handler) {
    for (auto& item : items_) item->on_lost_focus = [handler, i = item->Index()] { handler(i); };
  }

 private:
  void Add(ControlOwner& form, const std::string& name, int index) {
    items_.push_back(std::make_unique<T>(form, name, index));
  }
  void Join() {
    if constexpr (std::is_same_v<T, OptionButton>) {
      std::vector<OptionButton*> all;
      for (auto& item : items_) all.push_back(item.get());
      for (auto& item : items_) item->JoinArray(all);
    }
  }
  T& Item(int index) const;

  std::vector<std::unique_ptr<T>> items_;
};

[[noreturn]] void RaiseSubscriptOutOfRange();

template <typename T>
T& ControlArray<T>::Item(int index) const {
  for (auto& item : items_)
    if (item->Index() == index) return *item;
  RaiseSubscriptOutOfRange();
}

}  // namespace lorimet
