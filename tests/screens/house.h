// The tool in the demo house: its true windows and logic, with a virtual module on a virtual clock
// at the serial port. The screenshots and the test of how the windows look work in it.
#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/disk_directories.h"
#include "platform/disk_files.h"
#include "shell/action_buttons.h"
#include "shell/qt/message_boxes.h"
#include "shell/qt/screen_window.h"
#include "support/fake_line.h"
#include "support/virtual_clock.h"
#include "virtual_module/module.h"

namespace bkconf {

/// What the tool starts besides itself: nothing here.
class NoPrograms : public Programs {
 public:
  bool Start(const std::string&) override { return false; }
  bool StartThisProgram() override { return false; }
  void ShowWebPage(const std::string&) override {}
  void End() override {}
};

class House {
 public:
  /// Starts the session in a laid-out settings directory, in its language. The windows are made
  /// once in a process.
  explicit House(const std::string& settingsDirectory);
  ~House();
  House(const House&) = delete;
  House& operator=(const House&) = delete;

  /// What the user does. Ends when no transfer is under way any more.
  void Do(const std::function<void()>& event);
  /// The same without waiting for a transfer: the clock goes on by so much.
  void DoFor(std::int64_t milliseconds, const std::function<void()>& event);

  /// A module with the memory of a file of the demo house is plugged in and read.
  void Read(const std::string& demoFile);
  /// The same with a module of that kind, since the demo house has none.
  void ReadKind(int kind);
  /// A file of the demo house is opened; there is no module then.
  void Open(const std::string& demoFile);
  /// A press of the button of the main window that does so.
  void Press(Action action);

  virtual_module::Module& Module() { return *module_; }

  /// As after the start: no screen is open, nothing in memory, no module at the port.
  void Clear();

  /// The window that the user works in, a message box or a menu.
  static QWidget* Front();
  static ScreenWindow* WindowOf(const Screen& screen);
  static std::string DemoFile(const std::string& name);

 private:
  void Plug(virtual_module::Options options);
  void Finish();

  VirtualClock clock_;
  FakeLine line_{clock_};
  QtMessageBoxes boxes_;
  DiskFiles files_;
  DiskDirectories directories_;
  NoPrograms programs_;
  std::unique_ptr<virtual_module::Module> module_;
  std::unique_ptr<ScreenWindow> main_;
};

}  // namespace bkconf
