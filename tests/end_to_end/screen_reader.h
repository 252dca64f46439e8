// What a screen reader sees of a program's windows: every widget with name, role, state and place.
// The tests of whole programs and `window_reader` find fields by it.
#pragma once

#include <QDBusConnection>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace end_to_end {

// Where a program answers for a widget.
struct ReaderPlace {
  QString service;
  QString path;
};

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
  bool open = false;  // of a combo box: its items are shown
  ReaderPlace place = {};
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
  std::vector<Widget> Widgets() const {
    return WidgetsUntil([](const Widget&) { return false; });
  }
  // The same up to the first widget that is `enough`. What lies deeper than that one, above all the
  // many cells of tables, is not looked at.
  std::vector<Widget> WidgetsUntil(const std::function<bool(const Widget&)>& enough) const;
  // One of them as it is now, by far the cheapest look; none when it is not on the display any
  // more.
  std::optional<Widget> LookAgain(const Widget& widget) const;

 private:
  struct Roles;  // of the widgets seen so far

  std::string session_;  // names of the connections
  std::string reader_;
  QDBusConnection bus_;
  std::unique_ptr<Roles> roles_;
};

}  // namespace end_to_end
