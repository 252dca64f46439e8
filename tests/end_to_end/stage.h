// The tool with its settings directory on a desktop, and a virtual module at its serial port 1.
// The base of all end-to-end tests.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
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
  std::string text;     // CR is \r, LF is \n
  std::string meaning;  // what the module did on a frame of a live test, such as "output 3 on"
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
  // The tool without a wait for its window, with words behind those of every test.
  void LaunchTool(const std::vector<std::string>& words = {});
  // Waits until the tool has ended well and left a copy of itself, which is the tool from then on.
  void FollowTool();

  Desktop& desktop() const { return *desktop_; }
  Process& tool() { return *tool_; }
  Process& module() { return *module_; }

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
  // Waits for a message box with that text, and presses its button until it is gone.
  void DismissMessage(std::string_view text);
  void OpenMenu(std::string_view menu);
  // Opens a menu of the bar and picks an entry of it.
  void ClickOnEntry(std::string_view menu, std::string_view entry);
  // Opens a menu of the bar, looks, and closes it again.
  bool IsEntryEnabled(std::string_view menu, std::string_view entry);
  // Closes an opened screen by Escape, which is lost while the window manager moves the focus.
  void LeaveScreen(std::string_view title);
  // Closes an editor by the button that all of them have, and waits for the main window.
  void LeaveByButton(std::string_view title, std::string_view mainTitle = "TREVAN BK-CONF");
  // Opens the list behind that label and presses keys in it until it shows `item`.
  void PickInList(const ListPlace& place, const std::vector<std::string>& keys,
                  std::string_view item);
  void PickInList(std::string_view label, const std::vector<std::string>& keys,
                  std::string_view item) {
    PickInList(ListPlace{label}, keys, item);
  }
  // Picks the item at that place, counted from 0, and expects that it is `item`.
  void PickItem(const ListPlace& place, int index, std::string_view item);
  // Waits until the list shows that text, an item or not.
  void AwaitListText(const ListPlace& place, std::string_view text);

  // The cell of the table in the row that begins with `row`, below the caption `column`, once it
  // stands still with that text.
  Widget AwaitCell(std::string_view row, std::string_view column, std::string_view text);
  // The same in a table without captions, by the place among what is in sight of it.
  Widget AwaitPlace(std::size_t row, std::size_t column, std::string_view text);
  // Waits until the rows of the table that are in sight begin with these, the texts of a row behind
  // each other with bars between them.
  void AwaitRows(const std::vector<std::string>& rows);

  // Presses Tab until the keyboard is in the widget.
  void TabTo(const std::function<bool(const Widget&)>& isWidget);
  void TabTo(std::string_view role, std::string_view name) {
    TabTo([=](const Widget& each) { return each.role == role && each.name == name; });
  }
  // Presses a button, or takes a choice, with the keyboard alone.
  void PressOn(std::string_view role, std::string_view name);
  void PressButton(std::string_view name) { PressOn("push button", name); }
  // Tab to a list, and there to an item while the list stays closed.
  void TabToList(const ListPlace& place);
  void StepInList(const ListPlace& place, int index, std::string_view item);
  // Waits for a text in a label of a window.
  void AwaitText(std::string_view text) { Await("label", text); }
  bool IsEnabled(std::string_view role, std::string_view name);
  // All that the windows show, without places, a line for each widget.
  std::vector<std::string> Shown() const;
  // Waits until they show just that.
  void AwaitShown(const std::vector<std::string>& widgets);
  // Presses Connect and waits until the module is read.
  void ConnectAndRead();
  // The same when Connect is pressed already.
  void AwaitRead();
  // Presses Send, waits until the module has stored the file of the demo house with nothing but
  // these cells changed, and then until the tool is ready for more.
  void SendAndExpect(const std::string& demoFile, const std::map<int, int>& cells);
  // The same when Send is pressed already.
  void ExpectSent(const std::string& demoFile, const std::map<int, int>& cells);

  // A configuration file of the house that comes with the tool.
  static std::filesystem::path DemoFile(const std::string& name);

  // The complete lines of the log so far, without the module's polls.
  std::vector<LogUnit> Log() const;
  // How often the tool, or the module, has put `text` on the line so far.
  std::size_t TimesOnLine(bool fromTool, std::string_view text) const;
  // Waits until the tool, or the module, has put `text` on the line.
  void AwaitOnLine(bool fromTool, std::string_view text);

  // Closes the window in the way of the window manager and expects that the tool ends well, which
  // it does only if it still answers and its sanitizers have nothing to say.
  void CloseTool();

 private:
  void KeepTraces();
  // Gives whether its items come, or go, soon.
  bool AwaitOpen(const Widget& list, bool open, std::chrono::milliseconds limit);

  std::filesystem::path scratch_;
  const Captions* captions_ = &dutch;
  std::unique_ptr<Desktop> desktop_;
  std::unique_ptr<Process> module_;
  std::unique_ptr<Process> tool_;
};

}  // namespace end_to_end
