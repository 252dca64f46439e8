// What a screen reader sees of a program's windows: every widget with name, role, state and place.
// The tests of whole programs and `window_reader` find fields by it.
#pragma once

#include <QDBusConnection>
#include <optional>
#include <string>
#include <vector>

namespace end_to_end {

struct Widget {
  std::string role;         // "push button", "combo box", "label", ...
  std::string name;         // what is read out; of a combo box the item that it shows
  std::string description;  // of a combo box the label in front of it
  std::string content;      // of a text field what stands in it
  std::string group;        // the caption of the frame around it; without one, the window's title
  int x = 0;                // on the display
  int y = 0;
  int width = 0;
  int height = 0;
  bool enabled = false;
  bool focused = false;
  bool checked = false;
};

class ScreenReader {
 public:
  // `sessionBus` is the address of the bus that the read programs were started on. Waits up to the
  // deadline for the bus of the screen readers behind it; throws std::runtime_error without one.
  explicit ScreenReader(const std::string& sessionBus);
  ~ScreenReader();
  ScreenReader(const ScreenReader&) = delete;
  ScreenReader& operator=(const ScreenReader&) = delete;

  // All widgets that are on the display now, each before what is in it. Empty while no program has
  // a window. A widget that goes away during the look is left out.
  std::vector<Widget> Widgets() const;

 private:
  std::string session_;  // names of the connections
  std::string reader_;
  QDBusConnection bus_;
};

}  // namespace end_to_end
