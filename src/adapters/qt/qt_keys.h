// Keys as the forms know them, from keys as Qt reports them.
#pragma once

#include "platform/controls.h"

class QKeyEvent;

namespace lorimet {

// The virtual key code and the shift bits; a key that has no code becomes 255.
KeyEvent TranslateKey(const QKeyEvent& event);

// The character that the key types, as a Unicode code point, control characters among them; 0 when
// it types none.
int TypedCharacter(const QKeyEvent& event);

// Keys that belong to the window system and the menus: modifiers by themselves, whatever is
// pressed with Alt, and F10. A form sees them, but cannot keep them from their work.
bool IsSystemKey(const QKeyEvent& event);

// Tab and Shift+Tab, which move the focus and are no business of a form's.
bool IsFocusKey(const QKeyEvent& event);

}  // namespace lorimet
