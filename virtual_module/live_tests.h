// What a module does in its live tests, and what it remembers of them: outputs, detectors, clock.
// Takes the tool's frames as whole lines and gives out lines at their times; the module model,
// which alone uses it, does the rest.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "virtual_module/chance.h"
#include "virtual_module/detectors.h"
#include "virtual_module/fault.h"
#include "virtual_module/frame_record.h"
#include "virtual_module/live_frame.h"
#include "virtual_module/memory.h"
#include "virtual_module/module_clock.h"
#include "virtual_module/read_script.h"
#include "virtual_module/transmitter.h"

namespace virtual_module {

inline constexpr int outputCount = 12;
inline constexpr int buttonCount = 100;  // the line has two digits for one

struct LiveOptions {
  std::optional<Fault> fault;
  std::uint32_t seed = 1;
  ClockTime clock;
  std::int64_t pressEvery = 0;  // us between presses of the module itself; 0: none
};

// Lines to send now, each with its CR. With an end they are the last ones of the test.
struct LiveLines {
  std::vector<std::string> lines;
  std::optional<ScriptEnd> end;
};

enum class LiveTaken {
  Nothing,  // it is no frame of a live test
  Frame,
  Stop,  // the test has ended, or had before
};

class LiveTests {
 public:
  // `memory`, which must outlive this, tells kind, version and the number of detectors.
  LiveTests(const Memory& memory, const LiveOptions& options);

  void SwitchOn(Thirds now) { clock_.SwitchOn(now); }

  bool Knows(std::string_view command) const { return TestOf(command).has_value(); }
  // Begins the test of a command that it knows.
  void Start(std::string_view command, Thirds now);
  // The tool has begun anew: what was going on is over.
  void Forget();

  // The test that is going on; none before the first, and after its last line or a stop.
  std::optional<LiveTest> running() const;

  // When Next has something to do.
  std::optional<Thirds> due() const { return due_; }
  LiveLines Next(Thirds now);
  // A push-button 0..99; gives nothing unless its test is going on.
  LiveLines Press(int index);

  // Does what a frame says, and fills in what it means or why it was not due. `deaf` only looks at
  // its form. With Nothing the record is not touched either.
  LiveTaken Take(FrameRecord& record, Thirds now, bool deaf);

  const std::array<bool, outputCount>& outputs() const { return outputs_; }
  Detectors& detectors() { return detectors_; }
  const Detectors& detectors() const { return detectors_; }
  const ModuleClock& clock() const { return clock_; }

 private:
  std::optional<LiveTest> TestOf(std::string_view command) const;
  bool EndsByItself() const;
  Thirds Period() const;
  void Schedule(Thirds now);
  int LinesBeforeStop() const;
  int LinesBeforeFault() const;
  std::string NextText();
  std::string ClockText() const;
  std::string DetectorText();
  int DetectorsInUse() const;
  LiveLines Emit(std::string text);
  void Bend(std::string& text) const;
  void End();

  std::string Obey(const LiveFrame& frame, std::string& error, Thirds now);
  std::string TakeStop(bool ofOutputs, std::string& error);
  std::string SwitchOutput(int index, std::string& error);
  std::string SetClock(const LiveFrame& frame, std::string& error, Thirds now);
  std::string AnnounceUpdate(std::string& error, Thirds now);
  std::string TakeReference(const LiveFrame& frame, std::string& error, Thirds now);

  const Memory& memory_;
  LiveOptions options_;
  Chance chance_;
  Detectors detectors_;
  ModuleClock clock_;
  std::array<bool, outputCount> outputs_ = {};
  int lineLevel_;   // about which the samples of the input line lie
  int lightLevel_;  // the same for the light sensor

  std::string command_;  // of the last test since the wake-up
  std::optional<LiveTest> test_;
  bool running_ = false;
  bool updating_ = false;  // references are coming
  int sent_ = 0;           // lines of the test so far
  int detector_ = 0;       // whose line is next
  ClockTime asked_;        // when the test of the clock began
  std::optional<Thirds> due_;
};

}  // namespace virtual_module
