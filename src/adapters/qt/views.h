// The table of windows that the build makes from the .ui files.
#pragma once

#include <functional>
#include <map>
#include <string>

class QWidget;

namespace lorimet {

// Builds a window as its designer drew it; the caller owns it.
using ViewFactory = std::function<QWidget*(QWidget* parent)>;

// By the form's name.
const std::map<std::string, ViewFactory>& ViewFactories();

}  // namespace lorimet
