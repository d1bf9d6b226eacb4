// The desktop's own dialogs: the message box, the file dialog and the list to choose from.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/desktop.h"

class QWidget;

namespace lorimet {

// All of them are modal and in front of `parent`, which may be null.
BoxButton RunMessageBox(const MessageBox& box, QWidget* parent);
std::optional<std::string> RunFileDialog(const FileDialog& dialog, QWidget* parent);
std::optional<int> RunListDialog(const std::string& title, const std::vector<std::string>& items,
                                 int selected, QWidget* parent);

}  // namespace lorimet
