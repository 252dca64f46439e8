// A module of the demo house at the tool's port, and the screen of the live tests. The base of its
// tests.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "end_to_end/button_stage.h"
#include "end_to_end/diagnostics_captions.h"
#include "end_to_end/stage.h"

namespace end_to_end {

// The kinds whose tests are done in both languages.
inline constexpr ButtonModule alarmInFrench = {&french, 5, "AlarmInFrench", "Alarm G.BK1",
                                               "Module alarme KR7160 <adresse = G>"};
inline constexpr ButtonModule masterInFrench = {&french, 9, "MasterInFrench", "Master.BK1",
                                                "Module master KR7110"};

class DiagnosticsStage : public virtual Stage {
 protected:
  // Starts the module with its file of the demo house, other numbers in some cells, and the tool;
  // reads the module and opens the screen.
  void OpenDiagnostics(const ButtonModule& module, const std::map<int, int>& cells = {},
                       const std::vector<std::string>& options = {});
  // The same in pieces: which module it is, and the screen alone.
  void UseModule(const ButtonModule& module) { module_ = &module; }
  void OpenTests();
  const DiagnosticsCaptions& texts() const;
  std::string title() const { return module_->screen; }

  // The same as in Stage, of a widget in the frame with that caption.
  Widget AwaitIn(std::string_view group, std::string_view role, std::string_view name,
                 bool enabled = true);
  void ClickIn(std::string_view group, std::string_view role, std::string_view name);
  // All of that role in the frame, from top to bottom.
  std::vector<Widget> AllIn(std::string_view group, std::string_view role) const;

  static std::string Panel(const char* choice) { return std::string(choice) + ":"; }
  // Shows the panel of a choice.
  void Choose(const char* choice);
  void AwaitStatus(std::string_view text) { AwaitIn(title(), "label", text); }
  // Starts the test of the panel that is shown, with everything that comes after it to be asked for
  // by Heard. One that is to be stopped runs when `AwaitRunning` has come back.
  void Start(const char* choice);
  void AwaitRunning(const char* choice, std::string_view status);
  // Presses Stop, and waits until that frame has come so many times, behind what `Heard` told of
  // the tool so far, and until the screen can be used again.
  void Stop(const char* choice, const std::string& frame, int count);
  // The same for all tests but that of the outputs.
  void Stop(const char* choice) { Stop(choice, stopFrame, stopFrames); }
  void ExpectReady(const char* choice);

  // From here on; the conversation that a start begins is told from behind its command.
  void Mark() { mark_ = Log().size(); }
  // What one side has said from the mark on, but for finding each other and for the command.
  std::vector<LogUnit> Units(bool fromTool) const;
  std::vector<std::string> Heard(bool fromTool) const;
  // Waits until one side has said just that.
  void ExpectHeard(bool fromTool, const std::vector<std::string>& wanted);
  // Waits for the whole answer of a test that ends by itself, and gives it without the first line
  // and the last.
  std::vector<std::string> AwaitAnswer(std::size_t lines);

  static constexpr const char* stopFrame = "T99999\\n\\r";
  static constexpr int stopFrames = 50;

 private:
  const ButtonModule* module_ = nullptr;
  std::size_t mark_ = 0;
};

}  // namespace end_to_end
