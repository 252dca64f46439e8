// A module of any kind at the far end of a serial line, as pure logic on explicit times. Used by
// the program virtual_module, which puts it on a pseudo-terminal, and by tests of the tool.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "virtual_module/fault.h"
#include "virtual_module/frame_record.h"
#include "virtual_module/live_tests.h"
#include "virtual_module/memory.h"
#include "virtual_module/transmitter.h"
#include "virtual_module/write_chain.h"

namespace virtual_module {

// `memory` must be of `kind`. The seed shuffles the lines of the fault "out-of-order", and chooses
// what live tests show that stands in no cell: levels, measured values, light.
struct Options {
  int kind;
  Memory memory;
  std::optional<Fault> fault = std::nullopt;
  std::uint32_t seed = 1;
  ClockTime clock = {};         // where the clock of a master stands when it is switched on
  std::int64_t pressEvery = 0;  // us between buttons that press themselves while tested; 0: none
};

// All times are in microseconds on one clock of the caller's choice that does not go back. The
// first call of Receive or Run is the moment at which the module is switched on.
class Module {
 public:
  // Throws std::invalid_argument when the kind is unknown or the memory is of another one, when the
  // clock is to stand at no moment of 2000 to 2099, or when the presses are less than 0 apart.
  explicit Module(Options options);
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  // One character from the tool, whose last bit has arrived at `now`.
  void Receive(unsigned char byte, std::int64_t now);

  // When Run has something to do next; none when only the tool can move things on.
  std::optional<std::int64_t> NextDue() const;

  // The characters whose last bit has left the module since the last call, at or before `now`.
  // They leave at 9600 baud, ten bits each.
  std::string Run(std::int64_t now);

  const Memory& memory() const { return options_.memory; }
  Memory& memory() { return options_.memory; }

  // Somebody presses push-button 0..99, at `now` or else at the time of the last call. Says whether
  // a line goes out: only while the buttons are tested. Throws std::out_of_range.
  bool PressButton(int index, std::optional<std::int64_t> now = std::nullopt);

  // Somebody opens or closes the contact of detector 0..11 of an alarm module; the next line of the
  // detector tells. Throws std::out_of_range for another index, or a kind that has no detectors.
  void SetContact(int detector, bool open);

  // The outputs that the tool has switched, 1 to 12 in the places 0 to 11; all off at first. Of
  // kinds whose outputs can be tested.
  const std::array<bool, outputCount>& Outputs() const { return live_.outputs(); }

  // The detectors of an alarm module, as they are now.
  const std::array<Detector, detectorCount>& DetectorsNow() const {
    return live_.detectors().all();
  }

  // Where the clock of a master stands at `now`, which is not before the last call.
  ClockTime ClockAt(std::int64_t now) const { return live_.clock().At(now * thirdsPerMicrosecond); }

  // The live test that is going on.
  std::optional<LiveTest> runningTest() const { return live_.running(); }

  // Completed units of both directions, oldest first. A run of polls stands in sent() once it is
  // over, and until then in openPolls().
  const std::vector<FrameRecord>& received() const { return received_; }
  const std::vector<FrameRecord>& sent() const { return transmitter_.sent(); }
  const std::optional<FrameRecord>& openPolls() const { return transmitter_.polls(); }

  int errors() const;                                       // received units with an error text
  int completedReads() const { return completedReads_; }    // sent up to the end of the answer
  int completedWrites() const { return completedWrites_; }  // last cell of the chain arrived
  int completedTests() const { return completedTests_; }    // sent up to "STOP", or stopped

  bool polling() const { return state_ == State::Polling; }
  // The fault says that the port is gone: nothing is received or sent any more.
  bool vanished() const { return state_ == State::Vanished; }

 private:
  enum class State {
    Polling,          // "M" every 50 ms
    Burst,            // "D" has come; waits until the line is quiet
    AwaitingCommand,  // the identity is on its way or has been sent
    Reading,          // acknowledgement, cells and end are on their way
    Writing,          // acknowledged; frames are coming
    Testing,          // acknowledged; a live test is going on
    Closing,          // the last lines of a live test are on their way
    Silent,           // by a fault, for good
    Vanished,         // by a fault, for good
  };

  void Advance(std::int64_t now);
  void OnDeadline();
  void OnAllSent();
  void EndAnswer();
  void StartPolling(Thirds firstPoll);
  void Poll();
  void TakeBurst(std::int64_t now);
  void AnswerBurst();
  std::string Identity() const;
  void CollectLine(char character, std::int64_t now);
  void CompleteLine(std::string error);
  void OnCommand(const std::string& command);
  bool StartRead(std::string_view command);
  bool StartWrite(std::string_view command);
  bool StartTest(std::string_view command);
  void SendLive(LiveLines lines, Thirds now);
  bool TakeLiveFrame(FrameRecord& record);
  void OnStop();
  void OnWriteCharacter(char character, std::int64_t now);
  void BreakOffReception();
  void Vanish();

  Options options_;
  bool switchedOn_ = false;
  State state_ = State::Polling;
  Thirds clock_ = 0;
  std::optional<Thirds> deadline_;  // what it means depends on the state, see OnDeadline
  Transmitter transmitter_;
  std::string left_;  // characters that have left since the last Run
  bool pollForIdentity_;

  std::vector<FrameRecord> received_;
  FrameRecord burst_;
  FrameRecord line_;  // a command or noise that is being collected
  std::optional<WriteChain> write_;
  LiveTests live_;
  ScriptEnd answerEnd_ = ScriptEnd::Poll;  // of a read or a test
  int completedReads_ = 0;
  int completedWrites_ = 0;
  int completedTests_ = 0;
};

}  // namespace virtual_module
