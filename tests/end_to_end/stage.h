// The tool with its settings directory on a desktop, and a virtual module at its serial port 1.
// The base of all end-to-end tests.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "end_to_end/captions.h"
#include "end_to_end/desktop.h"
#include "end_to_end/process.h"

namespace end_to_end {

// One unit of the log of the line.
struct LogUnit {
  long firstByte = 0;  // us
  long lastByte = 0;
  bool fromTool = false;
  std::string text;  // CR is \r, LF is \n
};

class Stage : public ::testing::Test {
 protected:
  Stage();
  // Leaves a screenshot, the log and what the programs printed when the test has failed.
  ~Stage() override;

  // The directory laid out by the setup program with port 1, in Dutch unless told otherwise.
  std::filesystem::path directory() const { return scratch_ / "settings"; }
  std::filesystem::path scratch() const { return scratch_; }
  std::filesystem::path savedImage() const { return scratch_ / "saved.BK1"; }
  void LayOutDirectory(const Captions& captions = dutch);
  const Captions& captions() const { return *captions_; }

  // Each is up when it returns.
  void StartModule(int kind, const std::vector<std::string>& options = {});
  void StartTool();
  // The tool without a wait for its window.
  void LaunchTool();
  // Waits until the tool has ended well and left a copy of itself, which is the tool from then on.
  void FollowTool();

  Desktop& desktop() { return *desktop_; }
  Process& tool() { return *tool_; }

  // Waits until the widget is there and, if so wanted, enabled. Throws std::runtime_error, which
  // ends the test, when it never is or the tool has ended.
  Widget Await(std::string_view role, std::string_view name, bool enabled = true);
  // The same once it stands still: a box that was just opened is placed by the window manager after
  // the tool has made it.
  Widget AwaitStill(std::string_view role, std::string_view name);
  void AwaitGone(std::string_view role, std::string_view name);
  // Waits until the window with that title is in front, and where it says that it is.
  void AwaitWindow(std::string_view title);
  void ClickOn(std::string_view role, std::string_view name) {
    desktop().Click(AwaitStill(role, name));
  }
  void DoubleClickOn(std::string_view role, std::string_view name) {
    desktop().DoubleClick(AwaitStill(role, name));
  }
  // Opens a menu of the bar and picks an entry of it.
  void ClickOnEntry(std::string_view menu, std::string_view entry);
  // Opens a menu of the bar, looks, and closes it again.
  bool IsEntryEnabled(std::string_view menu, std::string_view entry);
  // Closes an opened screen by Escape, which is lost while the window manager moves the focus.
  void LeaveScreen(std::string_view title);
  // Opens the list behind that label and presses keys in it until it shows `item`.
  void PickInList(std::string_view label, const std::vector<std::string>& keys,
                  std::string_view item);
  // Waits for a text in a label of a window.
  void AwaitText(std::string_view text) { Await("label", text); }
  bool IsEnabled(std::string_view role, std::string_view name);
  // All that the windows show, without places, a line for each widget.
  std::vector<std::string> Shown() const;
  // Waits until they show just that.
  void AwaitShown(const std::vector<std::string>& widgets);
  // Presses Connect and waits until the module is read.
  void ConnectAndRead();

  // A configuration file of the house that comes with the tool.
  static std::filesystem::path DemoFile(const std::string& name);

  // The complete lines of the log so far, without the module's polls.
  std::vector<LogUnit> Log() const;
  // Waits until the tool, or the module, has put `text` on the line.
  void AwaitOnLine(bool fromTool, std::string_view text);

  // Closes the window in the way of the window manager and expects that the tool ends well, which
  // it does only if it still answers and its sanitizers have nothing to say.
  void CloseTool();

 private:
  void KeepTraces();

  std::filesystem::path scratch_;
  const Captions* captions_ = &dutch;
  std::unique_ptr<Desktop> desktop_;
  std::unique_ptr<Process> module_;
  std::unique_ptr<Process> tool_;
};

}  // namespace end_to_end
