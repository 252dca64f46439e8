#include "end_to_end/stage.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "end_to_end/deadline.h"
#include "end_to_end/grid.h"
#include "end_to_end/image_lines.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

// The widget with the keyboard, in words; different ones have different words.
std::string FocusOf(const std::vector<Widget>& widgets) {
  std::string focus;
  for (const Widget& each : widgets) {
    if (!each.focused) continue;
    focus += each.role + " \"" + each.name + "\" \"" + each.description + "\" at " +
             std::to_string(each.x) + "," + std::to_string(each.y) + "; ";
  }
  return focus;
}

// What a list shows. Without an item it has the label's name, and a text that is none stands behind
// the label.
std::string TextOf(const Widget& list, std::string_view label) {
  if (list.name != label) return list.name;
  const std::string behind = list.description.substr(label.size());
  return behind.empty() ? behind : behind.substr(1);
}

fs::path MakeScratch() {
  std::string name = (fs::temp_directory_path() / "bkconf-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error(name + " cannot be made");
  return name;
}

LogUnit UnitOf(const std::string& line) {
  LogUnit unit;
  std::string sender;
  std::istringstream words(line);
  words >> unit.firstByte >> unit.lastByte >> sender;
  unit.fromTool = sender == "tool";
  words.get();  // the blank
  std::getline(words, unit.text);
  constexpr std::string_view means = " = ";
  if (const auto at = unit.text.find(means); at != std::string::npos) {
    unit.meaning = unit.text.substr(at + means.size());
    unit.text.resize(at);
  }
  return unit;
}

}  // namespace

Stage::Stage() : scratch_(MakeScratch()), desktop_(std::make_unique<Desktop>(scratch_)) {}

Stage::~Stage() {
  if (HasFailure()) KeepTraces();
  tool_.reset();
  module_.reset();
  desktop_.reset();
  std::error_code ignored;
  fs::remove_all(scratch_, ignored);
}

void Stage::KeepTraces() {
  const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string(test->test_suite_name()) + "." + test->name();
  std::replace(name.begin(), name.end(), '/', '.');
  const fs::path kept = fs::path(FAILURE_DIRECTORY) / name;
  fs::create_directories(kept);
  desktop_->SaveScreenshot(kept / "screenshot.png");
  for (const char* file : {"line.log", "tool.txt", "module.txt", "setup.txt"}) {
    std::error_code ignored;
    fs::copy_file(scratch_ / file, kept / file, fs::copy_options::overwrite_existing, ignored);
  }
  ADD_FAILURE() << "screenshot, log of the line and output are in " << kept
                << "\nthe tool printed: " << ContentOf(scratch_ / "tool.txt");
}

void Stage::LayOutDirectory(const Captions& captions) {
  captions_ = &captions;
  ASSERT_EQ(RunToEnd({SETUP_PROGRAM, "--directory", directory().string(), "--language",
                      std::to_string(captions.language), "--port", "1"},
                     scratch_ / "setup.txt"),
            0);
}

void Stage::StartModule(int kind, const std::vector<std::string>& options) {
  std::vector<std::string> words = {MODULE_PROGRAM,
                                    "--kind",
                                    std::to_string(kind),
                                    "--link",
                                    (directory() / "com1").string(),
                                    "--log",
                                    (scratch_ / "line.log").string()};
  words.insert(words.end(), options.begin(), options.end());
  module_ = std::make_unique<Process>(words, scratch_ / "module.txt");
  ASSERT_TRUE(WaitFor([this] { return module_->Output().starts_with("ready"); }))
      << module_->Output();
}

void Stage::LaunchTool(const std::vector<std::string>& words) {
  std::vector<std::string> command = {TOOL_PROGRAM, "--directory", directory().string()};
  command.insert(command.end(), words.begin(), words.end());
  tool_ = std::make_unique<Process>(command, scratch_ / "tool.txt");
}

void Stage::StartTool() {
  LaunchTool();
  AwaitWindow("TREVAN BK-CONF");
  Await("push button", captions().connect);
}

void Stage::FollowTool() {
  const std::optional<int> status = tool().AwaitEnd();
  ASSERT_TRUE(status) << "the tool goes on";
  EXPECT_EQ(*status, 0) << tool().Output();
  std::vector<pid_t> copies;
  WaitFor([&] {
    copies = Inherited(TOOL_PROGRAM);
    return !copies.empty();
  });
  ASSERT_EQ(copies.size(), 1U) << "copies of the tool";
  tool_ = std::make_unique<Process>(copies.front(), scratch_ / "tool.txt");
}

Widget Stage::Await(std::string_view role, std::string_view name, bool enabled) {
  std::optional<Widget> found;
  WaitFor([&] {
    found = desktop().Find(role, name);
    return (found && (found->enabled || !enabled)) || !tool().Running();
  });
  const std::string widget = std::string(role) + " \"" + std::string(name) + "\"";
  if (!tool().Running()) throw std::runtime_error("the tool has ended; awaited was " + widget);
  if (!found) throw std::runtime_error("there is no " + widget);
  if (enabled && !found->enabled) throw std::runtime_error(widget + " is disabled");
  return *found;
}

Widget Stage::AwaitStill(std::string_view role, std::string_view name) {
  constexpr int looks = 3;  // all but the first come after a rest
  Widget widget = Await(role, name);
  int same = 0;
  const bool still = WaitFor([&] {
    const Widget before = widget;
    const std::optional<Widget> now = desktop().LookAgain(widget);
    widget = now && now->name == name && now->enabled ? *now : Await(role, name);
    const bool stands = widget.x == before.x && widget.y == before.y &&
                        widget.width == before.width && widget.height == before.height;
    same = stands ? same + 1 : 0;
    return same >= looks;
  });
  EXPECT_TRUE(still) << role << " \"" << name << "\" never stands still";
  return widget;
}

void Stage::AwaitGone(std::string_view role, std::string_view name) {
  EXPECT_TRUE(WaitFor([&] { return !desktop().Find(role, name); }))
      << role << " \"" << name << "\" stays";
}

void Stage::AwaitWindow(std::string_view title) {
  const auto stands = [&] {
    if (desktop().ActiveWindow() != title) return false;
    const auto window = desktop().Find("frame", title);
    return window && desktop().ActiveCorner() == std::pair(window->x, window->y);
  };
  EXPECT_TRUE(WaitFor([&] { return stands() || !tool().Running(); }))
      << "the window \"" << title << "\" never comes to the front; there is \""
      << desktop().ActiveWindow() << "\"";
}

void Stage::DismissMessage(std::string_view text) {
  AwaitText(text);
  // The window manager may still be about to give the box its place.
  const auto isGone = [&] { return !desktop().Find("label", text); };
  const bool dismissed = WaitFor([&] {
    if (const auto button = desktop().Find("push button", "OK")) desktop().Click(*button);
    return WaitFor(isGone, nextTry);
  });
  EXPECT_TRUE(dismissed) << "the message \"" << text << "\" stays";
}

void Stage::OpenMenu(std::string_view menu) {
  // The first click is lost where a list that was just picked from is still about to close. A
  // second one closes the menu again.
  const auto stands = [&] { return desktop().Find("popup menu", menu).has_value(); };
  const bool open = WaitFor([&] {
    if (!stands()) ClickOn("menu item", menu);
    return WaitFor(stands, nextTry);
  });
  EXPECT_TRUE(open) << "the menu \"" << menu << "\" does not open";
}

void Stage::ClickOnEntry(std::string_view menu, std::string_view entry) {
  OpenMenu(menu);
  ClickOn("menu item", entry);
  AwaitGone("popup menu", menu);
}

bool Stage::IsEntryEnabled(std::string_view menu, std::string_view entry) {
  OpenMenu(menu);
  const bool enabled = IsEnabled("menu item", entry);
  desktop().Press({"Escape"});
  AwaitGone("popup menu", menu);
  return enabled;
}

void Stage::LeaveScreen(std::string_view title) {
  const bool left = WaitFor([&] {
    desktop().Press({"Escape"});
    return WaitFor([&] { return !desktop().Find("frame", title); }, nextTry);
  });
  EXPECT_TRUE(left) << "the screen \"" << title << "\" stays";
}

void Stage::LeaveByButton(std::string_view title, std::string_view mainTitle) {
  ClickOn("push button", captions().leave);
  AwaitGone("frame", title);
  AwaitWindow(mainTitle);
}

bool Stage::AwaitOpen(const Widget& list, bool open, std::chrono::milliseconds limit) {
  return WaitFor(
      [&] {
        const std::optional<Widget> now = desktop().LookAgain(list);
        return now && now->open == open;
      },
      limit);
}

void Stage::PickInList(const ListPlace& place, const std::vector<std::string>& keys,
                       std::string_view item) {
  const auto shown = [&] {
    const auto list = desktop().FindList(place);
    return list && list->name == item;
  };
  // A click while another list closes is lost, a second one closes this list again, and keys that
  // come before it is open go to the list that had the keyboard last.
  constexpr std::chrono::milliseconds eachKey(100);
  const bool taken = WaitFor([&] {
    const auto list = desktop().FindList(place);
    if (!list || !list->enabled) return false;
    if (!list->open) desktop().Click(*list);
    if (!AwaitOpen(*list, true, nextTry)) return false;
    desktop().Press(keys);
    return AwaitOpen(*list, false, nextTry + eachKey * keys.size()) && WaitFor(shown, nextTry);
  });
  EXPECT_TRUE(taken) << "the list \"" << place.label << "\" does not take " << item;
}

void Stage::PickItem(const ListPlace& place, int index, std::string_view item) {
  std::vector<std::string> keys = {"Home"};
  keys.insert(keys.end(), static_cast<std::size_t>(index), "Down");
  keys.emplace_back("Return");
  PickInList(place, keys, item);
}

void Stage::AwaitListText(const ListPlace& place, std::string_view text) {
  std::string shown = "nothing: there is none";
  EXPECT_TRUE(WaitFor([&] {
    const auto list = desktop().FindList(place);
    if (list) shown = TextOf(*list, place.label);
    return list && shown == text;
  })) << "the list \""
      << place.label << "\" shows \"" << shown << "\" in place of \"" << text << "\"";
}

Widget Stage::AwaitCell(std::string_view row, std::string_view column, std::string_view text) {
  std::optional<Widget> cell;
  const bool stands = WaitFor([&] {
    const std::optional<Widget> before = cell;
    cell = GridOf(desktop().Widgets()).Find(row, column);
    return before && cell && cell->x == before->x && cell->y == before->y && cell->name == text;
  });
  const std::string place = std::string(row) + ", " + std::string(column);
  if (!cell) throw std::runtime_error("there is no cell " + place);
  EXPECT_TRUE(stands) << "the cell " << place << " shows \"" << cell->name << "\" in place of \""
                      << text << "\"";
  return *cell;
}

Widget Stage::AwaitPlace(std::size_t row, std::size_t column, std::string_view text) {
  std::optional<Widget> cell;
  const bool stands = WaitFor([&] {
    const std::optional<Widget> before = cell;
    const Grid grid = GridOf(desktop().Widgets());
    cell.reset();
    if (row < grid.rows.size() && column < grid.rows[row].size()) cell = grid.rows[row][column];
    return before && cell && cell->x == before->x && cell->y == before->y && cell->name == text;
  });
  const std::string place = std::to_string(row) + ", " + std::to_string(column);
  if (!cell) throw std::runtime_error("there is no cell " + place);
  EXPECT_TRUE(stands) << "the cell " << place << " shows \"" << cell->name << "\" in place of \""
                      << text << "\"";
  return *cell;
}

void Stage::AwaitRows(const std::vector<std::string>& rows) {
  std::vector<std::string> shown;
  WaitFor([&] {
    shown = GridOf(desktop().Widgets()).Texts();
    if (shown.size() > rows.size()) shown.resize(rows.size());
    return shown == rows;
  });
  EXPECT_EQ(shown, rows);
}

void Stage::TabTo(const std::function<bool(const Widget&)>& isWidget) {
  const auto isThere = [&](const Widget& each) { return each.focused && isWidget(each); };
  constexpr int mostSteps = 60;
  for (int step = 0; step < mostSteps; ++step) {
    const std::vector<Widget> widgets = desktop().Widgets();
    if (std::any_of(widgets.begin(), widgets.end(), isThere)) return;
    const std::string before = FocusOf(widgets);
    desktop().Press({"Tab"});
    WaitFor([&] { return FocusOf(desktop().Widgets()) != before; }, nextTry);
  }
  ADD_FAILURE() << "the keyboard does not get there; it is in " << FocusOf(desktop().Widgets());
}

void Stage::PressOn(std::string_view role, std::string_view name) {
  TabTo(role, name);
  desktop().Press({"space"});
}

void Stage::TabToList(const ListPlace& place) {
  TabTo([&](const Widget& each) {
    const auto list = desktop().FindList(place);
    return list && each.role == list->role && each.x == list->x && each.y == list->y;
  });
}

void Stage::StepInList(const ListPlace& place, int index, std::string_view item) {
  TabToList(place);
  std::vector<std::string> keys = {"Home"};
  keys.insert(keys.end(), static_cast<std::size_t>(index), "Down");
  desktop().Press(keys);
  AwaitListText(place, item);
}

bool Stage::IsEnabled(std::string_view role, std::string_view name) {
  std::optional<Widget> found;
  WaitFor([&] { return (found = desktop().Find(role, name)).has_value(); });
  EXPECT_TRUE(found) << "no " << role << " \"" << name << "\"";
  return found && found->enabled;
}

std::vector<std::string> Stage::Shown() const {
  std::vector<std::string> shown;
  for (const Widget& widget : desktop_->Widgets()) {
    shown.push_back(widget.role + "|" + widget.name + "|" + widget.description + "|" +
                    widget.content + "|" + (widget.enabled ? "enabled" : "disabled"));
  }
  return shown;
}

void Stage::AwaitShown(const std::vector<std::string>& widgets) {
  if (!WaitFor([&] { return Shown() == widgets; })) {
    EXPECT_EQ(Shown(), widgets);
  }
}

void Stage::ConnectAndRead() {
  ClickOn("push button", captions().connect);
  AwaitRead();
}

void Stage::AwaitRead() {
  AwaitText("Edit mode");
  AwaitOnLine(false, "STOP\\r");
  Await("push button", captions().send);
}

void Stage::ExpectSent(const std::string& demoFile, const std::map<int, int>& cells) {
  const std::vector<std::string> wanted = WithCells(LinesOf(ContentOf(DemoFile(demoFile))), cells);
  std::vector<std::string> saved;
  WaitFor([&] {
    saved = LinesOf(ContentOf(savedImage()));
    return saved == wanted;
  });
  EXPECT_EQ(saved, wanted);
  AwaitText("Ready");
  Await("push button", captions().send);
}

void Stage::SendAndExpect(const std::string& demoFile, const std::map<int, int>& cells) {
  ClickOn("push button", captions().send);
  ExpectSent(demoFile, cells);
}

fs::path Stage::DemoFile(const std::string& name) {
  return fs::path(DEMO_DIRECTORY) / name;
}

std::vector<LogUnit> Stage::Log() const {
  std::vector<LogUnit> units;
  std::istringstream lines(ContentOf(scratch_ / "line.log"));
  for (std::string line; std::getline(lines, line) && !lines.eof();) {
    const LogUnit unit = UnitOf(line);
    if (unit.fromTool || !unit.text.starts_with("M x ")) units.push_back(unit);
  }
  return units;
}

std::size_t Stage::TimesOnLine(bool fromTool, std::string_view text) const {
  const std::vector<LogUnit> units = Log();
  return static_cast<std::size_t>(std::count_if(
      units.begin(), units.end(),
      [&](const LogUnit& unit) { return unit.fromTool == fromTool && unit.text == text; }));
}

void Stage::AwaitOnLine(bool fromTool, std::string_view text) {
  EXPECT_TRUE(WaitFor([&] { return TimesOnLine(fromTool, text) > 0; }))
      << "never on the line: " << text;
}

void Stage::CloseTool() {
  ASSERT_TRUE(tool().Running()) << "the tool has ended by itself";
  // A key that comes while the window manager is busy with the focus is lost.
  WaitFor([this] {
    desktop().Press({"alt+F4"});
    return WaitFor([this] { return !tool().Running(); }, nextTry);
  });
  EXPECT_EQ(tool().AwaitEnd(), 0) << tool().Output();
}

}  // namespace end_to_end
