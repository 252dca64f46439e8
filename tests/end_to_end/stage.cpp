#include "end_to_end/stage.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "end_to_end/deadline.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

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

void Stage::LaunchTool() {
  tool_ = std::make_unique<Process>(
      std::vector<std::string>{TOOL_PROGRAM, "--directory", directory().string()},
      scratch_ / "tool.txt");
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
  Widget widget = Await(role, name);
  const bool still = WaitFor([&] {
    const Widget before = widget;
    widget = Await(role, name);
    return widget.x == before.x && widget.y == before.y && widget.width == before.width &&
           widget.height == before.height;
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

void Stage::ClickOnEntry(std::string_view menu, std::string_view entry) {
  ClickOn("menu item", menu);
  Await("popup menu", menu);
  ClickOn("menu item", entry);
  AwaitGone("popup menu", menu);
}

bool Stage::IsEntryEnabled(std::string_view menu, std::string_view entry) {
  ClickOn("menu item", menu);
  Await("popup menu", menu);
  const bool enabled = IsEnabled("menu item", entry);
  desktop().Press({"Escape"});
  AwaitGone("popup menu", menu);
  return enabled;
}

void Stage::LeaveScreen(std::string_view title) {
  const bool left = WaitFor([&] {
    desktop().Press({"Escape"});
    return WaitFor([&] { return !desktop().Find("frame", title); }, std::chrono::seconds(3));
  });
  EXPECT_TRUE(left) << "the screen \"" << title << "\" stays";
}

void Stage::PickInList(std::string_view label, const std::vector<std::string>& keys,
                       std::string_view item) {
  const auto shown = [&] {
    const auto list = desktop().FindDescribed("combo box", label);
    return list && list->name == item;
  };
  // Keys that come before the list is open are lost.
  const bool taken = WaitFor([&] {
    const auto list = desktop().FindDescribed("combo box", label);
    if (!list || !list->enabled) return false;
    desktop().Click(*list);
    desktop().Press(keys);
    if (WaitFor(shown, std::chrono::seconds(3))) return true;
    desktop().Press({"Escape"});
    return false;
  });
  EXPECT_TRUE(taken) << "the list \"" << label << "\" does not take " << item;
}

bool Stage::IsEnabled(std::string_view role, std::string_view name) {
  const std::optional<Widget> found = desktop().Find(role, name);
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
  AwaitText("Edit mode");
  AwaitOnLine(false, "STOP\\r");
  Await("push button", captions().send);
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

void Stage::AwaitOnLine(bool fromTool, std::string_view text) {
  const bool came = WaitFor([&] {
    const std::vector<LogUnit> units = Log();
    return std::any_of(units.begin(), units.end(), [&](const LogUnit& unit) {
      return unit.fromTool == fromTool && unit.text == text;
    });
  });
  EXPECT_TRUE(came) << "never on the line: " << text;
}

void Stage::CloseTool() {
  ASSERT_TRUE(tool().Running()) << "the tool has ended by itself";
  // A key that comes while the window manager is busy with the focus is lost.
  WaitFor([this] {
    desktop().Press({"alt+F4"});
    return WaitFor([this] { return !tool().Running(); }, std::chrono::seconds(3));
  });
  EXPECT_EQ(tool().AwaitEnd(), 0) << tool().Output();
}

}  // namespace end_to_end
