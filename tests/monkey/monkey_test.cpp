// Somebody who does anything at all in whatever window is in front: picks, types, clicks, opens,
// leaves, saves, reads and sends, with modules that are plugged in, pulled out, and out of order.
// Nothing may crash, no cell may be looked for outside its table, and after every action the tables
// can be saved and opened to the same cells.
//
//   BKCONF_MONKEY_ACTIONS  how many; enough to come into every screen where it is not set
//   BKCONF_MONKEY_SEED     chooses them; the same seed does the same again
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "diagnostics/diagnostics_screen.h"
#include "image/configuration_file.h"
#include "link/transfer.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "platform/runtime_error.h"
#include "shell/directory_picker.h"
#include "shell/directory_screen.h"
#include "shell/module_file.h"
#include "shell/open_dialog.h"
#include "shell/save_dialog.h"
#include "special/alarm_screen.h"
#include "special/audio_screen.h"
#include "special/display_menu_screen.h"
#include "special/ir_screen.h"
#include "special/random_edits.h"
#include "special/simulation_screen.h"
#include "special/temperature_screen.h"
#include "special/weekday_text_screen.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

std::uint64_t FromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* value = std::getenv(name);
  return value == nullptr ? otherwise : std::strtoull(value, nullptr, 10);
}

/// The line of the stage, with an end to the wait for the end of a line: a module that polls again
/// in the middle of one keeps the tool waiting for ever.
class ImpatientLine : public SerialPort {
 public:
  explicit ImpatientLine(FakeLine& line) : line_(line) {}
  void SetNumber(int number) override { line_.SetNumber(number); }
  std::string DeviceOf(int number) const override { return line_.DeviceOf(number); }
  bool Open() override { return line_.Open(); }
  void Close() override { line_.Close(); }
  bool IsOpen() const override { return line_.IsOpen(); }
  int BytesWaiting() override { return line_.BytesWaiting(); }
  void FlushInput() override { line_.FlushInput(); }
  void Write(std::string_view characters) override { line_.Write(characters); }
  std::optional<char> Read() override {
    constexpr int most = 20'000;
    if (++reads_ > most) {
      reads_ = 0;
      throw SpinLimit();
    }
    const std::optional<char> character = line_.Read();
    if (character == '\r') reads_ = 0;
    return character;
  }

 private:
  FakeLine& line_;
  int reads_ = 0;
};

/// Those in front come last: one that is opened from another lies over it.
const std::vector<Screen*> Screens = {
    &MainWindow,        &ButtonScreen,       &OutputScreen, &ContextScreen,
    &TimeProgramScreen, &LightProgramScreen, &AlarmScreen,  &TemperatureScreen,
    &DisplayMenuScreen, &WeekdayTextScreen,  &AudioScreen,  &SimulationScreen,
    &IrScreen,          &DiagnosticsScreen,  &OpenDialog,   &SaveDialog,
    &DirectoryScreen,   &DirectoryPicker,
};

class MonkeyTest : public SessionTest {
 protected:
  MonkeyTest() : random_(static_cast<std::uint32_t>(FromEnvironment("BKCONF_MONKEY_SEED", 1))) {
    Port = &impatient_;
    PutFiles();
    Start();
    for (Screen* screen : Screens) {
      hands_.emplace_back(*screen, static_cast<std::uint32_t>(random_()), Spared);
    }
  }

  /// What goes wrong ends its event, as in the window. A module can send what has no place; what a
  /// person does never asks for it.
  void Do(const std::function<void()>& event, bool modulesTell = false) {
    try {
      event();
    } catch (const RuntimeError& error) {
      const bool ofTheTool =
          error.kind == ErrorKind::IndexOutsideTable || error.kind == ErrorKind::BarPastMaximum;
      EXPECT_TRUE(modulesTell || !ofTheTool) << error.what() << " in " << Front()->name;
      LeaveFailedTransfer();
    } catch (const SpinLimit&) {
      // The window would wait for ever: the installer pulls the plug.
      line.module = nullptr;
      line.failed = false;
      LeaveFailedTransfer();
    }
  }

  /// Whatever chance brings later: once into every screen of every kind.
  void VisitEveryScreen() {
    constexpr int edits = 20;
    for (const int kind : AllKinds) {
      for (std::size_t action = 0;; ++action) {
        Plug(kind, std::nullopt, static_cast<std::uint32_t>(random_()));
        // An image in memory takes a module of its own kind only.
        Do([&] { MainWindow.nieuw.Click(); });
        Do([&] { MainWindow.connect.Click(); });
        Finish();
        ASSERT_EQ(ActiveModuleType.Number(), kind) << "behind action " << action;
        const std::vector<ButtonField*> shown = ShownActions();
        if (action == shown.size()) break;
        Do([&] { shown[action]->Click(); });
        Finish();
        for (int edit = 0; edit < edits && Front() != &MainWindow; ++edit) {
          Edit();
          CheckFile();
        }
        LeaveAll();
      }
    }
  }

  void Act() {
    const int choice = Below(100);
    if (messages.asked && choice < 50) {
      const auto answer = std::exchange(messages.asked, nullptr);
      Do([&] { answer(Below(2) == 0); });
    } else if (choice < 2) {
      ChangeSurroundings();
    } else if (choice < 5) {
      TransferUnderWay ? PullAdapter() : TakeUpAnother();
    } else if (choice < 12) {
      Wait();
    } else if (choice < 16) {
      Do([&] { Front()->Close(); });
    } else if (choice < 22 && Front() == &MainWindow) {
      PressAnyAction();
    } else {
      Edit();
    }
  }

  void CheckFile() {
    const Cell type = ActiveModuleType;
    if (type == Cell(NoModule)) return;
    const std::string content = PrintConfiguration(type);
    if (content == checked_) return;
    const auto blocks = BlocksOf(type);
    std::vector<Cell> cells;
    for (const FileBlock& block : blocks) {
      for (int cell = 0; cell <= block.last; ++cell) cells.push_back((*block.table)[cell]);
    }
    ASSERT_EQ(ReadConfiguration(content), type);
    auto before = cells.begin();
    for (const FileBlock& block : blocks) {
      for (int cell = 0; cell <= block.last; ++cell, ++before) {
        ASSERT_EQ((*block.table)[cell].Number(), before->Number()) << block.table->name << cell;
        (*block.table)[cell] = *before;
      }
    }
    checked_ = content;
  }

  const std::map<std::string, int>& visits() const { return visits_; }

 private:
  /// What would end the program: the copy of it is another test's.
  inline static const std::set<std::string> Spared = {"Einde"};

  int Below(int count) { return static_cast<int>(random_() % static_cast<std::uint32_t>(count)); }

  Screen* Front() const {
    Screen* front = &MainWindow;
    for (Screen* screen : Screens) {
      if (screen->shown) front = screen;
    }
    return front;
  }

  void Edit() {
    const Screen* front = Front();
    ++visits_[front->name + " of kind " + ActiveModuleType.Text()];
    for (std::size_t i = 0; i < Screens.size(); ++i) {
      if (Screens[i] == front) Do([&] { hands_[i].Step(); });
    }
  }

  static std::vector<ButtonField*> ShownActions() {
    std::vector<ButtonField*> shown;
    for (const auto& button : MainWindow.actionButtons) {
      if (button->visible) shown.push_back(button.get());
    }
    return shown;
  }

  void LeaveAll() {
    while (Front() != &MainWindow) {
      if (messages.asked) std::exchange(messages.asked, nullptr)(true);
      Do([&] { Front()->Close(); });
      Finish();
    }
    if (TransferUnderWay) PullAdapter();
  }

  /// The few buttons that open the screens, among all that the main window has. Mostly the module
  /// is there that a table may have to be read from before.
  void PressAnyAction() {
    const std::vector<ButtonField*> shown = ShownActions();
    if (shown.empty()) return;
    ButtonField* button = shown[static_cast<std::size_t>(Below(static_cast<int>(shown.size())))];
    const int kind = static_cast<int>(ActiveModuleType.Number());
    if (Below(4) != 0 && FindKind(kind) != nullptr) PlugKind(kind);
    Do([&] { button->Click(); });
    if (Below(4) != 0) Finish();
  }

  void Wait() {
    constexpr int longest = 4000;
    const int wait = Below(4) == 0 ? longest : 50;
    Do([&] { clock.Advance(Below(wait)); }, true);
  }

  /// Takes up another module: from the line, whole or not, or from a file. Only from the main
  /// window: all others lie over its buttons.
  void TakeUpAnother() {
    if (Front() != &MainWindow) return;
    if (Below(3) == 0) {
      auto file = files.content.begin();
      std::advance(file, Below(static_cast<int>(files.content.size())));
      const std::string path = file->first;
      if (path.starts_with(House)) Do([&] { OpenModule(path); });
      return;
    }
    PlugAny();
    if (Below(2) == 0) Do([&] { MainWindow.nieuw.Click(); });
    Do([&] { MainWindow.connect.Click(); });
    Finish();
  }

  void Finish() {
    constexpr int enough = 30'000;  // for the longest table
    Do([&] { clock.RunUntil([] { return !TransferUnderWay; }, enough); }, true);
  }

  /// The only way out of a transfer with a module that says no more.
  void PullAdapter() {
    line.failed = true;
    Do([&] { clock.Advance(Second); }, true);
    line.failed = false;
    // A port that could not be opened leaves the tool locked; it is started anew then, with what it
    // had before.
    if (!line.IsOpen()) LeaveFailedTransfer();
  }

  void ChangeSurroundings() {
    switch (Below(6)) {
      case 0:
        line.module = nullptr;
        break;
      case 1:
        PlugAny();
        break;
      case 2:
        files.full = Below(4) == 0;
        break;
      case 3:
        line.canOpen = Below(4) != 0;
        break;
      default: {
        const bool language = Below(2) == 0;
        Do([&] { (language ? MainWindow.ned : MainWindow.frans).Click(); });
      }
    }
    // What is only ever added to.
    line.written.clear();
    line.calls.clear();
    messages.told.clear();
    programs.events.clear();
    directories.tries.clear();
  }

  void PlugAny() { PlugKind(AllKinds[Below(static_cast<int>(std::size(AllKinds)))]); }

  void PlugKind(int kind) {
    line.failed = false;
    const auto faults = virtual_module::Faults();
    const auto fault = static_cast<std::size_t>(Below(3 * static_cast<int>(faults.size())));
    Plug(kind, fault < faults.size() ? std::optional(faults[fault].fault) : std::nullopt,
         static_cast<std::uint32_t>(random_()));
  }

  /// The demo house, and each of its files broken off in the middle.
  void PutFiles() {
    for (const auto& file : std::filesystem::directory_iterator(BKCONF_DEMO_HOUSE)) {
      std::ifstream in(file.path(), std::ios::binary);
      const std::string content(std::istreambuf_iterator<char>(in), {});
      const std::string name = file.path().filename().string();
      files.content[std::string(House) + name] = content;
      files.content[std::string(House) + "Broken " + name] = content.substr(0, content.size() / 2);
    }
  }

  inline static constexpr std::string_view House = "/house/";
  static constexpr int Second = 1000;  // ms

  ImpatientLine impatient_{line};
  std::mt19937 random_;
  std::vector<RandomEdits> hands_;
  std::string checked_;
  std::map<std::string, int> visits_;
};

TEST_F(MonkeyTest, NothingThatAnybodyDoesBreaksTheTool) {
  constexpr std::uint64_t enough = 50'000;
  const std::uint64_t actions = FromEnvironment("BKCONF_MONKEY_ACTIONS", enough);
  const std::uint64_t seed = FromEnvironment("BKCONF_MONKEY_SEED", 1);
  std::cout << "seed " << seed << '\n';
  VisitEveryScreen();
  ASSERT_FALSE(HasFailure()) << "seed " << seed << ", at first";
  for (std::uint64_t action = 0; action < actions; ++action) {
    Act();
    CheckFile();
    ASSERT_FALSE(HasFailure()) << "seed " << seed << ", action " << action;
  }
  for (const auto& [where, times] : visits()) std::cout << times << " in " << where << '\n';
  if (actions < enough) return;
  for (const Screen* screen : Screens) {
    EXPECT_TRUE(
        std::any_of(visits().begin(), visits().end(),
                    [&](const auto& each) { return each.first.starts_with(screen->name + " "); }))
        << "never came into " << screen->name;
  }
}

}  // namespace
}  // namespace bkconf
