#include "adapters/qt/qt_keys.h"

#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace lorimet {
namespace {

constexpr int kUnknownKey = 255;
constexpr int kKeypadZero = 96;

struct KeyRow {
  int qt;
  int code;
};

constexpr KeyRow kKeys[] = {
    {Qt::Key_Backspace, 8},      {Qt::Key_Tab, 9},           {Qt::Key_Backtab, 9},
    {Qt::Key_Clear, 12},         {Qt::Key_Return, 13},       {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},         {Qt::Key_Control, 17},      {Qt::Key_Alt, 18},
    {Qt::Key_AltGr, 18},         {Qt::Key_Pause, 19},        {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, 27},        {Qt::Key_Space, 32},        {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},      {Qt::Key_End, 35},          {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},          {Qt::Key_Up, 38},           {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},          {Qt::Key_Print, 44},        {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},        {Qt::Key_Help, 47},         {Qt::Key_Meta, 91},
    {Qt::Key_Super_L, 91},       {Qt::Key_Super_R, 92},      {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},      {Qt::Key_ScrollLock, 145},  {Qt::Key_Exclam, '1'},
    {Qt::Key_At, '2'},           {Qt::Key_NumberSign, '3'},  {Qt::Key_Dollar, '4'},
    {Qt::Key_Percent, '5'},      {Qt::Key_AsciiCircum, '6'}, {Qt::Key_Ampersand, '7'},
    {Qt::Key_Asterisk, '8'},     {Qt::Key_ParenLeft, '9'},   {Qt::Key_ParenRight, '0'},
    {Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186},       {Qt::Key_Equal, 187},
    {Qt::Key_Plus, 187},         {Qt::Key_Comma, 188},       {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189},  {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},      {Qt::Key_Slash, 191},       {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192},  {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},    {Qt::Key_Backslash, 220},   {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221},  {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},
};

constexpr KeyRow kKeypadKeys[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
    {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111},
};

template <typename Table>
int Find(const Table& table, int qt, int otherwise) {
  const auto* row = std::ranges::find(table, qt, &KeyRow::qt);
  return row == std::end(table) ? otherwise : row->code;
}

int KeypadCode(int key) {
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return kKeypadZero + key - Qt::Key_0;
  return Find(kKeypadKeys, key, 0);
}

int KeyCode(int key, bool keypad) {
  if (keypad) {
    if (const int code = KeypadCode(key)) return code;
  }
  const bool is_letter = key >= Qt::Key_A && key <= Qt::Key_Z;
  const bool is_digit = key >= Qt::Key_0 && key <= Qt::Key_9;
  if (is_letter || is_digit) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return kKeyF1 + key - Qt::Key_F1;
  return Find(kKeys, key, kUnknownKey);
}

}  // namespace

KeyEvent TranslateKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  KeyEvent key;
  key.code = KeyCode(event.key(), modifiers.testFlag(Qt::KeypadModifier));
  if (modifiers.testFlag(Qt::ShiftModifier)) key.shift |= kShiftMask;
  if (modifiers.testFlag(Qt::ControlModifier)) key.shift |= kCtrlMask;
  if (modifiers.testFlag(Qt::AltModifier)) key.shift |= kAltMask;
  return key;
}

int TypedCharacter(const QKeyEvent& event) {
  const auto code_points = event.text().toUcs4();
  return code_points.isEmpty() ? 0 : static_cast<int>(code_points.front());
}

bool IsSystemKey(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
      return true;
    default:
      break;
  }
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (event.key() == Qt::Key_F10 && modifiers == Qt::NoModifier) return true;
  // Ctrl with Alt is how AltGr types a character.
  return modifiers.testFlag(Qt::AltModifier) && !modifiers.testFlag(Qt::ControlModifier);
}

bool IsFocusKey(const QKeyEvent& event) {
  const bool is_tab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  return is_tab && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

}  // namespace lorimet
