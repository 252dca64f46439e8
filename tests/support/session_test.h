// The fixture of all core tests: a fresh session on the virtual clock, with stand-ins for the
// machine.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/machine.h"
#include "platform/runtime_error.h"
#include "shell/action_buttons.h"
#include "shell/main_window.h"
#include "support/fake_line.h"
#include "support/snapshot.h"
#include "support/virtual_clock.h"
#include "virtual_module/module.h"

namespace bkconf {

class FakeMessages : public MessageBoxes {
 public:
  void Tell(const std::string& text) override { told.push_back(text); }
  void Ask(const std::string& title, const std::string& text,
           std::function<void(bool)> answer) override {
    told.push_back(title + ": " + text);
    asked = std::move(answer);
  }
  std::vector<std::string> told;
  std::function<void(bool)> asked;  ///< answers the last question
};

/// Files by path, in memory.
class FakeFiles : public Files {
 public:
  std::optional<std::string> Read(const std::string& path) const override;
  std::string Load(const std::string& path) const override;
  void Write(const std::string& path, std::string_view content) override;
  std::map<std::string, std::string> content;
  bool full = false;  ///< every write fails
};

/// A tree of directories in memory, with the files of `FakeFiles` in it.
class FakeDirectories : public Directories {
 public:
  explicit FakeDirectories(const FakeFiles& files) : files_(files) {}
  std::vector<std::string> Drives() const override { return drives; }
  std::vector<std::string> FoldersIn(const std::string& path) const override;
  std::vector<std::string> FilesIn(const std::string& path, std::string_view ending) const override;
  bool Make(const std::string& path) override;

  std::vector<std::string> drives = {"/", "/home/installer", "/media/stick"};
  std::set<std::string> existing = {"/",        "/home",        "/home/installer", "/house",
                                    "/media",   "/media/stick", "/house/Cellar",   "/house/Attic",
                                    "/settings"};
  std::vector<std::string> tries;  ///< what `Make` was asked for
  bool canMake = true;

 private:
  const FakeFiles& files_;
};

class FakePrograms : public Programs {
 public:
  bool Start(const std::string& fileName) override;
  bool StartThisProgram() override;
  void ShowWebPage(const std::string& address) override { events.push_back("show " + address); }
  void End() override { events.emplace_back("end"); }
  bool canStart = false;
  std::vector<std::string> events;  ///< "start upgrade.exe", "start this program", "end"
};

/// Puts the stand-ins behind the platform, and sets tables, flags, link and screens back to what a
/// new process has. What the files of the screens keep to themselves, as the context or detector
/// that is being edited, stays from the test before: each opening sets it anew.
class SessionTest : public testing::Test {
 public:
  SessionTest();
  ~SessionTest() override;

  VirtualClock clock;
  FakeLine line{clock};
  FakeMessages messages;
  FakeFiles files;
  FakeDirectories directories{files};
  FakePrograms programs;

  /// Puts the four settings files in place: Dutch or French, port 1, 2000 turns of 1 microsecond.
  void PutSettings(int language = 1);
  /// Starts the session with these settings; the main window stands then.
  void Start(int language = 1);

  /// Plugs in a module, with the memory of the seed or the given one.
  virtual_module::Module& Plug(int kind, std::optional<virtual_module::Fault> fault = std::nullopt,
                               std::uint32_t seed = 1);
  virtual_module::Module& Plug(virtual_module::Options options);

  /// Starts the session and puts an image of that kind into memory, as a file does: every cell of
  /// its table 42, and the letter in its address cell.
  void StartWithImage(int kind, int language = 1, char letter = 'C');

  /// Presses Connect and runs until the menus are back.
  void ReadModule();
  /// Presses Send and runs until the menus are back.
  void SendToModule();
  /// Runs until the transfer is over; fails the test when it is not over in `limitMs`.
  void FinishTransfer(std::int64_t limitMs = 120'000);

 private:
  std::unique_ptr<virtual_module::Module> module_;
};

/// The codes of all module kinds.
inline constexpr int AllKinds[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11};

/// The action button with that meaning that the kind in memory shows; throws std::runtime_error
/// when there is none.
const ButtonField& ShownAction(Action action);

/// The captions of the action buttons that the window shows, in their order.
std::vector<std::string> VisibleActions();
/// False when one of them cannot be pressed.
bool AllVisibleActionsEnabled();

}  // namespace bkconf
