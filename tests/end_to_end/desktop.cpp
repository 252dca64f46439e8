#include "end_to_end/desktop.h"

#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "end_to_end/deadline.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

// The first line beginning with one of `beginnings` that the program prints: it tells where the
// program is to be found. Complaints may come before it. Nothing if the program ends without.
std::string Announced(Process& process, std::string_view beginnings) {
  std::string found;
  WaitFor([&] {
    std::istringstream lines(process.Output());
    for (std::string line; std::getline(lines, line) && !lines.eof() && found.empty();) {
      if (!line.empty() && beginnings.find(line[0]) != std::string_view::npos) found = line;
    }
    return !found.empty() || !process.Running();
  });
  return found;
}

void Set(const char* name, const std::string& value) {
  setenv(name, value.c_str(), 1);
}

// Nothing that a person has set up on this machine, or left on it, is to be seen by the programs.
void UseOwnDirectories(const fs::path& scratch) {
  for (const char* name : {"HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"}) {
    const fs::path directory = scratch / name;
    fs::create_directories(directory);
    fs::permissions(directory, fs::perms::owner_all);
    Set(name, directory.string());
  }
}

std::string Geometry(const Widget& widget) {
  return std::to_string(widget.width) + "x" + std::to_string(widget.height) + "+" +
         std::to_string(widget.x) + "+" + std::to_string(widget.y);
}

// The words for xdotool: the mouse goes to the middle of the widget and does `click` there.
std::vector<std::string> ClickAt(const Widget& widget, const std::vector<std::string>& click) {
  std::vector<std::string> words = {"xdotool", "mousemove",
                                    std::to_string(widget.x + widget.width / 2),
                                    std::to_string(widget.y + widget.height / 2), "click"};
  words.insert(words.end(), click.begin(), click.end());
  return words;
}

std::optional<int> NumberBehind(const std::string& caption, const std::string& text) {
  const auto at = text.find(caption);
  if (at == std::string::npos) return std::nullopt;
  std::istringstream words(text.substr(at + caption.size()));
  int number = 0;
  if (!(words >> number)) return std::nullopt;
  return number;
}

}  // namespace

Desktop::Desktop(const fs::path& scratch) : scratch_(scratch) {
  InheritOrphans();
  UseOwnDirectories(scratch_);
  StartDisplay();
  StartBus();
  StartWindowManager();
  reader_ = std::make_unique<ScreenReader>(std::getenv("DBUS_SESSION_BUS_ADDRESS"));
}

Desktop::~Desktop() {
  reader_.reset();
  bus_.reset();
  windowManager_.reset();
  display_.reset();
  EndInherited();
}

void Desktop::StartDisplay() {
  // Without -noreset the display drops all its programs whenever the last one goes: the window
  // manager as well if it comes at that moment. Two displays that start at the same time can take
  // the same number, and one of them goes. With -r a key that is held, since whoever presses it has
  // lost the processor, counts once.
  const bool answers = WaitFor([this] {
    display_.reset();
    fs::remove(scratch_ / "display.txt");
    display_ = std::make_unique<Process>(
        std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24",
                                 "-nolisten", "tcp", "-noreset", "-r"},
        scratch_ / "display.txt");
    const std::string number = Announced(*display_, "0123456789");
    if (number.empty()) return false;
    Set("DISPLAY", ":" + number);
    return RunToEnd({"xprop", "-root"}, scratch_ / "root_window.txt") == 0 && display_->Running();
  });
  if (!answers) throw std::runtime_error("Xvfb does not start: " + display_->Output());
  Set("QT_QPA_PLATFORM", "xcb");
  unsetenv("WAYLAND_DISPLAY");
}

void Desktop::StartBus() {
  bus_ = std::make_unique<Process>(
      std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--print-address=1",
                               "--address=unix:tmpdir=" + scratch_.string()},
      scratch_ / "bus.txt");
  const std::string address = Announced(*bus_, "u");
  if (address.empty()) throw std::runtime_error("dbus-daemon does not start: " + bus_->Output());
  Set("DBUS_SESSION_BUS_ADDRESS", address);
  Set("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
}

void Desktop::StartWindowManager() {
  const fs::path output = scratch_ / "window_manager.txt";
  windowManager_ = std::make_unique<Process>(std::vector<std::string>{"openbox"}, output);
  const bool manages = WaitFor([&] {
    const std::string answer = Told({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"});
    return answer.find("window id") != std::string::npos || !windowManager_->Running();
  });
  if (!manages || !windowManager_->Running())
    throw std::runtime_error("openbox does not start: " + ContentOf(output));
}

std::string Desktop::Told(const std::vector<std::string>& words) const {
  const fs::path file = scratch_ / "told.txt";
  fs::remove(file);
  RunToEnd(words, file);
  return ContentOf(file);
}

std::optional<Widget> Desktop::First(const std::function<bool(const Widget&)>& isTheOne) const {
  const std::vector<Widget> widgets = reader_->WidgetsUntil(isTheOne);
  if (widgets.empty() || !isTheOne(widgets.back())) return std::nullopt;
  return widgets.back();
}

std::optional<Widget> Desktop::Find(std::string_view role, std::string_view name) const {
  return First([=](const Widget& each) { return each.role == role && each.name == name; });
}

std::optional<Widget> Desktop::FindDescribed(std::string_view role, std::string_view label) const {
  return First(
      [=](const Widget& each) { return each.role == role && each.description.starts_with(label); });
}

std::optional<Widget> Desktop::FindList(const ListPlace& place) const {
  int number = 0;
  std::optional<Widget> list;
  reader_->WidgetsUntil([&](const Widget& each) {
    const bool labelled = each.role == "combo box" && each.description.starts_with(place.label);
    const bool inside = place.group.empty() || each.group == place.group;
    if (labelled && inside && ++number == place.number) list = each;
    return list.has_value();
  });
  return list;
}

void Desktop::Click(const Widget& widget) const {
  RunToEnd(ClickAt(widget, {"1"}), scratch_ / "xdotool.txt");
}

void Desktop::DoubleClick(const Widget& widget) const {
  RunToEnd(ClickAt(widget, {"--repeat", "2", "--delay", "20", "1"}), scratch_ / "xdotool.txt");
}

void Desktop::Type(const std::string& text) const {
  RunToEnd({"xdotool", "type", text}, scratch_ / "xdotool.txt");
}

void Desktop::Press(const std::vector<std::string>& keys) const {
  std::vector<std::string> words = {"xdotool", "key"};
  words.insert(words.end(), keys.begin(), keys.end());
  RunToEnd(words, scratch_ / "xdotool.txt");
}

std::string Desktop::ActiveWindow() const {
  const std::string title = Told({"xdotool", "getactivewindow", "getwindowname"});
  return title.substr(0, title.find('\n'));
}

std::optional<std::pair<int, int>> Desktop::ActiveCorner() const {
  const std::string window = Told({"xdotool", "getactivewindow"});
  const std::string about = Told({"xwininfo", "-id", window.substr(0, window.find('\n'))});
  const auto x = NumberBehind("Absolute upper-left X:", about);
  const auto y = NumberBehind("Absolute upper-left Y:", about);
  if (!x || !y) return std::nullopt;
  return std::pair(*x, *y);
}

bool Desktop::IsMinimised(const std::string& title) const {
  return Told({"xprop", "-name", title, "WM_STATE"}).find("window state: Iconic") !=
         std::string::npos;
}

void Desktop::BringToFront(const std::string& title) const {
  RunToEnd({"xdotool", "search", "--name", "^" + title + "$", "windowactivate"},
           scratch_ / "xdotool.txt");
}

void Desktop::MoveActiveWindow(int x, int y) const {
  RunToEnd({"xdotool", "getactivewindow", "windowmove", std::to_string(x), std::to_string(y)},
           scratch_ / "xdotool.txt");
}

void Desktop::ResizeActiveWindow(int width, int height) const {
  RunToEnd(
      {"xdotool", "getactivewindow", "windowsize", std::to_string(width), std::to_string(height)},
      scratch_ / "xdotool.txt");
}

std::string Desktop::PixelsOf(const Widget& widget) const {
  const fs::path file = scratch_ / "pixels";
  fs::remove(file);
  RunToEnd({"import", "-window", "root", "-crop", Geometry(widget), "-depth", "8",
            "rgb:" + file.string()},
           scratch_ / "import.txt");
  return ContentOf(file);
}

void Desktop::SaveScreenshot(const fs::path& path) const {
  RunToEnd({"import", "-window", "root", path.string()}, scratch_ / "import.txt");
}

}  // namespace end_to_end
