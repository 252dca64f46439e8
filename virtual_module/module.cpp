#include "virtual_module/module.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "virtual_module/read_script.h"

namespace virtual_module {
namespace {

constexpr Thirds pollPeriod = Milliseconds(50);
// The tool drops what has come in by the end of its burst, so the answer waits for a quiet line,
// for longer than a busy machine takes the processor from the tool in between.
constexpr Thirds burstQuiet = Milliseconds(150);
// A tool that has to make a window for the answer first is slow on such a machine.
constexpr Thirds commandPatience = Milliseconds(10'000);
constexpr Thirds framePatience = Milliseconds(5000);

constexpr std::size_t commandLength = 6;
constexpr std::size_t longestLine = 64;
constexpr int vanishingFrames = 20;

}  // namespace

Module::Module(Options options)
    : options_(std::move(options)),
      pollForIdentity_(options_.fault == Fault::PollDuringIdentity),
      live_(options_.memory, {.fault = options_.fault,
                              .seed = options_.seed,
                              .clock = options_.clock,
                              .pressEvery = options_.pressEvery}) {
  if (KindOf(options_.kind).kind != options_.memory.kind()) {
    throw std::invalid_argument("the memory is of another kind than the module");
  }
}

std::optional<std::int64_t> Module::NextDue() const {
  if (!switchedOn_) {
    return 0;
  }
  std::optional<Thirds> due = transmitter_.NextLeave();
  if (deadline_ && (!due || *deadline_ < *due)) {
    due = deadline_;
  }
  if (!due) {
    return std::nullopt;
  }
  return MicrosecondsOf(*due);
}

std::string Module::Run(std::int64_t now) {
  Advance(now);
  return std::exchange(left_, {});
}

bool Module::PressButton(int index, std::optional<std::int64_t> now) {
  if (index < 0 || index >= buttonCount) {
    throw std::out_of_range("no button has the index " + std::to_string(index));
  }
  if (now) {
    Advance(*now);
  }
  LiveLines lines = live_.Press(index);
  const bool goesOut = !lines.lines.empty();
  SendLive(std::move(lines), clock_);
  return goesOut;
}

void Module::SetContact(int detector, bool open) {
  if (!HasLiveTest(options_.kind, LiveTest::LongDetectors)) {
    throw std::out_of_range("a module of kind " + std::to_string(options_.kind) +
                            " has no detectors");
  }
  live_.detectors().SetContact(detector, open);
}

int Module::errors() const {
  return static_cast<int>(std::count_if(received_.begin(), received_.end(),
                                        [](const FrameRecord& r) { return !r.error.empty(); }));
}

void Module::Receive(unsigned char byte, std::int64_t now) {
  Advance(now);
  const char character = static_cast<char>(byte);
  switch (state_) {
    case State::Vanished:
      return;
    case State::Silent:
      CollectLine(character, now);
      return;
    case State::Writing:
      if (character != 'D') {
        OnWriteCharacter(character, now);
        return;
      }
      break;
    case State::Polling:
    case State::Burst:
    case State::AwaitingCommand:
    case State::Reading:
    case State::Testing:
    case State::Closing:
      if (character != 'D') {
        CollectLine(character, now);
        return;
      }
      break;
  }
  TakeBurst(now);
}

// Does everything that was to happen up to `now`, in its order.
void Module::Advance(std::int64_t now) {
  clock_ = std::max(clock_, now * thirdsPerMicrosecond);
  if (!switchedOn_) {
    switchedOn_ = true;
    live_.SwitchOn(clock_);
    if (options_.fault == Fault::Silent) {
      state_ = State::Silent;
    } else {
      StartPolling(clock_);
    }
  }
  while (true) {
    const std::optional<Thirds> leave = transmitter_.NextLeave();
    if (leave && *leave <= clock_ && (!deadline_ || *leave <= *deadline_)) {
      left_ += transmitter_.Leave();
      if (!transmitter_.NextLeave()) {
        OnAllSent();
      }
    } else if (deadline_ && *deadline_ <= clock_) {
      OnDeadline();
    } else {
      return;
    }
  }
}

void Module::OnDeadline() {
  switch (state_) {
    case State::Polling:
      Poll();
      break;
    case State::Burst:
      AnswerBurst();
      break;
    case State::AwaitingCommand:
    case State::Writing: {
      const Thirds gaveUp = *deadline_;
      BreakOffReception();
      StartPolling(gaveUp);
      break;
    }
    case State::Testing: {
      const Thirds now = *deadline_;
      SendLive(live_.Next(now), now);
      break;
    }
    case State::Reading:
    case State::Closing:
    case State::Silent:
    case State::Vanished:
      deadline_.reset();
      break;
  }
}

// The last character of everything queued has just left, at the end of its line time.
void Module::OnAllSent() {
  if (state_ == State::Reading) {
    ++completedReads_;
    EndAnswer();
  } else if (state_ == State::Closing) {
    completedTests_ += answerEnd_ == ScriptEnd::Poll ? 1 : 0;
    EndAnswer();
  }
}

void Module::EndAnswer() {
  switch (answerEnd_) {
    case ScriptEnd::Poll:
      StartPolling(transmitter_.lastLeave() + pollPeriod);
      break;
    case ScriptEnd::FallSilent:
      state_ = State::Silent;
      break;
    case ScriptEnd::Vanish:
      Vanish();
      break;
  }
}

void Module::StartPolling(Thirds firstPoll) {
  state_ = State::Polling;
  deadline_ = firstPoll;
}

void Module::Poll() {
  transmitter_.Queue(UnitKind::Polls, "M", *deadline_);
  *deadline_ += pollPeriod;
}

void Module::TakeBurst(std::int64_t now) {
  if (state_ != State::Burst) {
    BreakOffReception();
    live_.Forget();
    transmitter_.Drop();
    transmitter_.EndPolls();
    state_ = State::Burst;
    burst_ = {};
    burst_.kind = UnitKind::Burst;
    burst_.firstByte = now;
    burst_.count = 0;
  }
  burst_.text += 'D';
  burst_.lastByte = now;
  ++burst_.count;
  deadline_ = clock_ + burstQuiet;
}

void Module::AnswerBurst() {
  const Thirds now = *deadline_;
  received_.push_back(std::exchange(burst_, {}));
  if (std::exchange(pollForIdentity_, false)) {
    StartPolling(now);
    return;
  }
  transmitter_.Queue(UnitKind::Line, Identity() + "\r", now);
  if (options_.fault == Fault::SilentAfterIdentity) {
    state_ = State::Silent;
    deadline_.reset();
  } else {
    state_ = State::AwaitingCommand;
    deadline_ = now + commandPatience;
  }
}

std::string Module::Identity() const {
  if (options_.fault == Fault::UnknownIdentity) {
    return "DISPLX";
  }
  if (options_.fault != Fault::WrongIdentity) {
    return std::string(KindOf(options_.kind).identity);
  }
  const std::span<const KindRow> kinds = Kinds();
  const auto own = std::find_if(kinds.begin(), kinds.end(),
                                [this](const KindRow& row) { return row.kind == options_.kind; });
  const auto next = own + 1 == kinds.end() ? kinds.begin() : own + 1;
  return std::string(next->identity);
}

// Collects a command up to its CR. A "T" always begins one.
void Module::CollectLine(char character, std::int64_t now) {
  if (character == 'T' && !line_.text.empty()) {
    CompleteLine("cut off by the next command");
  }
  if (line_.text.empty()) {
    line_.firstByte = now;
  }
  line_.text += character;
  line_.lastByte = now;
  if (state_ == State::AwaitingCommand) {
    deadline_ = clock_ + commandPatience;
  }
  if (character == '\r') {
    CompleteLine({});
  } else if (line_.text.size() == longestLine) {
    CompleteLine("longer than a command");
  }
}

void Module::CompleteLine(std::string error) {
  FrameRecord record = std::exchange(line_, {});
  if (error.empty() && TakeLiveFrame(record)) {
    return;
  }
  const std::string command = record.text.substr(0, record.text.find('\r'));
  const bool shapedAsCommand = command.size() == commandLength && command.front() == 'T' &&
                               command.find('\n') == std::string::npos;
  const bool known = !ReadRowsOf(options_.kind, command).empty() ||
                     !WriteRowsOf(options_.kind, command).empty() || live_.Knows(command);
  const bool heard = state_ == State::AwaitingCommand || state_ == State::Silent;
  record.kind = shapedAsCommand ? UnitKind::Command : UnitKind::Noise;
  record.error = std::move(error);
  if (record.error.empty() && !shapedAsCommand) {
    record.error = "not a command";
  } else if (record.error.empty() && !known) {
    record.error = "a command that this module does not know";
  } else if (record.error.empty() && !heard) {
    record.error = "a command out of turn";
  }
  const bool lineEnded = record.text.ends_with('\r');
  received_.push_back(std::move(record));
  if (state_ == State::AwaitingCommand && lineEnded) {
    OnCommand(command);
  }
}

// Whatever kind of command is added gets its own starter here and its own state.
void Module::OnCommand(const std::string& command) {
  deadline_.reset();
  if (options_.fault == Fault::SilentAfterCommand) {
    state_ = State::Silent;
  } else if (!StartRead(command) && !StartWrite(command) && !StartTest(command)) {
    StartPolling(clock_ + pollPeriod);
  }
}

bool Module::StartRead(std::string_view command) {
  ReadScript script = ReadScriptOf(options_.memory, command, options_.fault, options_.seed);
  if (script.lines.empty()) {
    return false;
  }
  for (std::string& line : script.lines) {
    transmitter_.Queue(UnitKind::Line, std::move(line), clock_);
  }
  answerEnd_ = script.end;
  state_ = State::Reading;
  return true;
}

bool Module::StartWrite(std::string_view command) {
  if (WriteRowsOf(options_.kind, command).empty()) {
    return false;
  }
  write_.emplace(command, options_.memory, received_);
  transmitter_.Queue(UnitKind::Line, "M70000\r", clock_);
  state_ = State::Writing;
  deadline_ = clock_ + framePatience;
  return true;
}

bool Module::StartTest(std::string_view command) {
  if (!live_.Knows(command)) {
    return false;
  }
  live_.Start(command, clock_);
  transmitter_.Queue(UnitKind::Line, "M80000\r", clock_);
  state_ = State::Testing;
  deadline_ = live_.due();
  return true;
}

// Only while a test is going on; it may be over with these lines.
void Module::SendLive(LiveLines lines, Thirds now) {
  if (state_ != State::Testing) {
    return;
  }
  for (std::string& line : lines.lines) {
    transmitter_.Queue(UnitKind::Line, std::move(line), now);
  }
  if (lines.end) {
    answerEnd_ = *lines.end;
    state_ = State::Closing;
  }
  deadline_ = live_.due();
}

// A frame of a live test needs no wake-up: some come when the test is over and the module polls.
bool Module::TakeLiveFrame(FrameRecord& record) {
  const bool deaf = state_ == State::Silent;
  const bool listens =
      deaf || state_ == State::Testing || state_ == State::Closing || state_ == State::Polling;
  const LiveTaken taken = listens ? live_.Take(record, clock_, deaf) : LiveTaken::Nothing;
  if (taken == LiveTaken::Nothing) {
    return false;
  }
  received_.push_back(std::move(record));
  if (taken == LiveTaken::Stop) {
    OnStop();
  } else if (state_ == State::Testing) {
    deadline_ = live_.due();
  }
  return true;
}

// The line that is leaving is completed. Polls wait until no more stops come.
void Module::OnStop() {
  if (state_ == State::Testing) {
    transmitter_.DropWaiting();
    ++completedTests_;
  }
  if (state_ == State::Testing || state_ == State::Polling) {
    StartPolling(clock_ + pollPeriod);
  }
}

void Module::OnWriteCharacter(char character, std::int64_t now) {
  const int framesBefore = write_->frames();
  write_->Receive(character, now);
  deadline_ = clock_ + framePatience;
  const bool newFrame = write_->frames() > framesBefore;
  if (newFrame && options_.fault == Fault::VanishInWrite) {
    const int limit = std::clamp(write_->frameCount() / 2, 1, vanishingFrames);
    if (write_->finished() || write_->frames() >= limit) {
      Vanish();
      return;
    }
  }
  if (write_->finished()) {
    ++completedWrites_;
    write_.reset();
    StartPolling(clock_ + pollPeriod);
  }
}

// Whatever the tool had begun to say, it will not end it.
void Module::BreakOffReception() {
  if (write_) {
    write_->BreakOff();
    write_.reset();
  }
  if (!line_.text.empty()) {
    CompleteLine("broken off");
  }
}

void Module::Vanish() {
  state_ = State::Vanished;
  deadline_.reset();
  transmitter_.Drop();
  transmitter_.EndPolls();
}

}  // namespace virtual_module
