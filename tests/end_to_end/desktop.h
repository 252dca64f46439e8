// A display of its own with a window manager, mouse, keyboard and a screen reader. Used by the
// tests of whole programs; programs started while it stands have their windows on it.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "end_to_end/process.h"
#include "end_to_end/screen_reader.h"

namespace end_to_end {

// Where a list is found.
struct ListPlace {
  std::string_view label;       // in front of it
  std::string_view group = {};  // the caption of the frame around it; anywhere when empty
  int number = 1;               // among those with the same label there
};

class Desktop {
 public:
  // What its programs write lies in the directory `scratch`. Throws std::runtime_error when one of
  // them does not come up.
  explicit Desktop(const std::filesystem::path& scratch);
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  std::vector<Widget> Widgets() const { return reader_->Widgets(); }
  // The widget as it is now; none when it is not on the display any more.
  std::optional<Widget> LookAgain(const Widget& widget) const { return reader_->LookAgain(widget); }
  // The first widget of that role with that name; none when it is not on the display now.
  std::optional<Widget> Find(std::string_view role, std::string_view name) const;
  // The same for a field without a name of its own, by the label in front of it.
  std::optional<Widget> FindDescribed(std::string_view role, std::string_view label) const;
  std::optional<Widget> FindList(const ListPlace& place) const;

  // The mouse, at the middle of the widget.
  void Click(const Widget& widget) const;
  void DoubleClick(const Widget& widget) const;
  // The keyboard: a text, or names of keys, one after the other.
  void Type(const std::string& text) const;
  void Press(const std::vector<std::string>& keys) const;
  // The title of the window in front.
  std::string ActiveWindow() const;
  // Where the upper left corner of its content really is. Windows that move on the display, as the
  // window manager makes one come back, tell their place at the end of the way before they are
  // there.
  std::optional<std::pair<int, int>> ActiveCorner() const;
  // Whether there is a window with that title, and it is minimised.
  bool IsMinimised(const std::string& title) const;
  // What the list of windows of a desktop does: brings one to the front, minimised or not.
  void BringToFront(const std::string& title) const;
  // What dragging the title does to the window in front: its corner goes to that place.
  void MoveActiveWindow(int x, int y) const;
  // The same with the corner of its frame: its content gets that size.
  void ResizeActiveWindow(int width, int height) const;

  // The pixels of a widget as they are now.
  std::string PixelsOf(const Widget& widget) const;
  void SaveScreenshot(const std::filesystem::path& path) const;

 private:
  void StartDisplay();
  void StartBus();
  void StartWindowManager();
  // The first widget that is the one.
  std::optional<Widget> First(const std::function<bool(const Widget&)>& isTheOne) const;
  // What a program prints that runs to its end.
  std::string Told(const std::vector<std::string>& words) const;

  std::filesystem::path scratch_;
  std::unique_ptr<Process> display_;
  std::unique_ptr<Process> bus_;
  std::unique_ptr<Process> windowManager_;
  std::unique_ptr<ScreenReader> reader_;
};

}  // namespace end_to_end
