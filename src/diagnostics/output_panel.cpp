// Switching the outputs of a module by hand. The module switches; nothing comes back.
#include <string>

#include "actions/action_code.h"
#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "diagnostics/panels.h"
#include "image/commands.h"
#include "link/bus_link.h"
#include "link/frames.h"
#include "platform/machine.h"
#include "session/language.h"

namespace bkconf {
namespace {

constexpr int StopFrames = 20;

void EnableOutputs(bool enabled) {
  for (const auto& output : DiagnosticsScreen.outputs.outputs) output->enabled = enabled;
}

/// A frame of this test has a pause after every character but those that end a switching.
void SwitchOutput(int output) {
  const std::string digits = Padded(output);
  SendPaced("T" + digits.substr(0, 1));
  Port->Write(digits.substr(1) + std::string(FrameEnd));
}

void SendOutputsStop() {
  const std::string frame = "T99" + std::string(FrameEnd);
  for (int i = 0; i < StopFrames; ++i) SendPaced(frame);
}

const LiveTest Test{.command = Test3,
                    .running = TextId::TestingOutputs,
                    .steps = 0,
                    .stop = &DiagnosticsScreen.outputs.stop,
                    .takeLine = [] {},
                    .accepted = [] { EnableOutputs(true); },
                    .sendStop = SendOutputsStop,
                    .ended = [] { EnableOutputs(false); }};

}  // namespace

void LoadOutputTest() {
  OutputPanel& panel = DiagnosticsScreen.outputs;
  Show(panel.group.caption, TextId::OutputsPanel);
  Show(panel.help.caption, TextId::OutputsHelp);
  panel.start.onClick = [] { StartTest(Test); };
  for (std::size_t i = 0; i < panel.outputs.size(); ++i) {
    const int output = static_cast<int>(i);
    panel.outputs[i]->caption = Padded(output + 1);
    panel.outputs[i]->onClick = [output] { SwitchOutput(output); };
  }
}

void OpenOutputTest() {
  EnableOutputs(false);
}

}  // namespace bkconf
