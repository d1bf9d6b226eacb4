// The look of the program.
#pragma once

class QApplication;

namespace lorimet {

enum class Look { kAsTheDesktop, kLight, kDark };

// Called once, before the first window. As the desktop means dark where its own windows are.
void ApplyStyle(QApplication& application, Look look = Look::kAsTheDesktop);

}  // namespace lorimet
