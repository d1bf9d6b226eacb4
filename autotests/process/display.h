// A display of the test's own, with a hand at its mouse and its keyboard.
#pragma once

#include <sys/types.h>

#include <memory>
#include <string>
#include <vector>

namespace lorimet {

class Display {
 public:
  // A screen of 1366 x 768 without a window manager. Nothing, and a line that says so, where Xvfb
  // or xdotool is not installed, and under the thread sanitizer.
  static std::unique_ptr<Display> Open(const std::string& output);
  ~Display();
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  // What DISPLAY names.
  const std::string& Name() const { return name_; }
  // Lays the window with that title on top, as a window manager does with one that is clicked.
  void Raise(const std::string& title) const;
  // A click with the left button; place: x and y with a blank between them.
  void Click(const std::string& place) const;
  // A key such as "Escape" to the window that has the focus.
  void Key(const std::string& key) const;
  // The same to the window with that title.
  void KeyTo(const std::string& title, const std::string& key) const;

 private:
  Display() = default;
  void Robot(const std::vector<std::string>& words) const;

  pid_t server_ = -1;
  std::string name_;
  std::string output_;
};

}  // namespace lorimet
