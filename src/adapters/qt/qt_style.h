// The look of the program.
#pragma once

class QApplication;

namespace lorimet {

// Called once, before the first window.
void ApplyStyle(QApplication& application);

}  // namespace lorimet
