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

void Stage::LayOutDirectory() {
  ASSERT_EQ(RunToEnd({SETUP_PROGRAM, "--directory", directory().string(), "--language", "1",
                      "--port", "1"},
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
  // The window manager places the window after the tool has made it, and what is clicked must stand
  // still.
  EXPECT_TRUE(WaitFor([this] {
    return desktop().ActiveWindow() == "TREVAN BK-CONF" || !tool().Running();
  })) << "the window never comes to the front";
  Await("push button", "Verbinden");
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

bool Stage::IsEnabled(std::string_view role, std::string_view name) {
  const std::optional<Widget> found = desktop().Find(role, name);
  EXPECT_TRUE(found) << "no " << role << " \"" << name << "\"";
  return found && found->enabled;
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
