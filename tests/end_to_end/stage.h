// The tool with its settings directory on a desktop, and a virtual module at its serial port 1.
// The base of all end-to-end tests.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

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

  // The directory laid out by the setup program, in Dutch, with port 1.
  std::filesystem::path directory() const { return scratch_ / "settings"; }
  std::filesystem::path scratch() const { return scratch_; }
  std::filesystem::path savedImage() const { return scratch_ / "saved.BK1"; }
  void LayOutDirectory();

  // Each is up when it returns.
  void StartModule(int kind, const std::vector<std::string>& options = {});
  void StartTool();
  // The tool without a wait for its window.
  void LaunchTool();

  Desktop& desktop() { return *desktop_; }
  Process& tool() { return *tool_; }

  // Waits until the widget is there and, if so wanted, enabled. Throws std::runtime_error, which
  // ends the test, when it never is or the tool has ended.
  Widget Await(std::string_view role, std::string_view name, bool enabled = true);
  void ClickOn(std::string_view role, std::string_view name) { desktop().Click(Await(role, name)); }
  // Waits for a text in a label of the window.
  void AwaitText(std::string_view text) { Await("label", text); }
  bool IsEnabled(std::string_view role, std::string_view name);

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
  std::unique_ptr<Desktop> desktop_;
  std::unique_ptr<Process> module_;
  std::unique_ptr<Process> tool_;
};

}  // namespace end_to_end
