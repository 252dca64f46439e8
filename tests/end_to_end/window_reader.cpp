// A screen reader for scripts: prints what is in the windows of the programs on a session bus, or
// waits for a text in them. Used by the script `run`.
//
//   window_reader              prints each widget: x y width height on|off role|name|description
//   window_reader TEXT         the same, once a widget shows TEXT; fails if none ever does
#include <QCoreApplication>
#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "end_to_end/deadline.h"
#include "end_to_end/screen_reader.h"

namespace {

using end_to_end::Widget;

void Print(const std::vector<Widget>& widgets) {
  for (const Widget& widget : widgets) {
    std::cout << widget.x << " " << widget.y << " " << widget.width << " " << widget.height << " "
              << (widget.enabled ? "on" : "off") << " " << widget.role << "|" << widget.name << "|"
              << widget.description << "\n";
  }
}

int Read(const std::string& text) {
  const char* bus = std::getenv("DBUS_SESSION_BUS_ADDRESS");
  const end_to_end::ScreenReader reader(bus == nullptr ? "" : bus);
  std::vector<Widget> widgets;
  const bool found = end_to_end::WaitFor([&] {
    widgets = reader.Widgets();
    return text.empty() || std::any_of(widgets.begin(), widgets.end(),
                                       [&](const Widget& widget) { return widget.name == text; });
  });
  Print(widgets);
  return found ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int count, char** words) {
  const QCoreApplication application(count, words);
  try {
    return Read(count > 1 ? words[1] : "");
  } catch (const std::exception& error) {
    std::cerr << "window_reader: " << error.what() << "\n";
    return EXIT_FAILURE;
  }
}
