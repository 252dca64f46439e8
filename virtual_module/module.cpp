#include "virtual_module/module.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "virtual_module/read_script.h"

namespace virtual_module {
namespace {

constexpr Thirds Milliseconds(std::int64_t count) {
  return count * 1000 * thirdsPerMicrosecond;
}

constexpr Thirds pollPeriod = Milliseconds(50);
// The tool drops what has come in by the end of its burst, so the answer waits for a quiet line.
constexpr Thirds burstQuiet = Milliseconds(30);
constexpr Thirds commandPatience = Milliseconds(2000);
constexpr Thirds framePatience = Milliseconds(5000);

constexpr std::size_t commandLength = 6;
constexpr std::size_t longestLine = 64;
constexpr int vanishingFrames = 20;

}  // namespace

Module::Module(Options options)
    : options_(std::move(options)), pollForIdentity_(options_.fault == Fault::PollDuringIdentity) {
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
    case State::Reading:
    case State::Silent:
    case State::Vanished:
      deadline_.reset();
      break;
  }
}

// The last character of everything queued has just left, at the end of its line time.
void Module::OnAllSent() {
  if (state_ != State::Reading) {
    return;
  }
  ++completedReads_;
  const Thirds end = transmitter_.lastLeave();
  switch (afterRead_) {
    case State::Silent:
      state_ = State::Silent;
      break;
    case State::Vanished:
      Vanish();
      break;
    case State::Polling:
    case State::Burst:
    case State::AwaitingCommand:
    case State::Reading:
    case State::Writing:
      StartPolling(end + pollPeriod);
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
  const std::string command = record.text.substr(0, record.text.find('\r'));
  const bool shapedAsCommand = command.size() == commandLength && command.front() == 'T';
  const bool known =
      !ReadRowsOf(options_.kind, command).empty() || !WriteRowsOf(options_.kind, command).empty();
  const bool heard = state_ == State::AwaitingCommand || state_ == State::Silent;
  record.kind = shapedAsCommand ? UnitKind::Command : UnitKind::Noise;
  record.error = std::move(error);
  if (record.error.empty() && !shapedAsCommand) {
    record.error = "not a command";
  } else if (record.error.empty() && !known) {
    record.error = "a command that this kind does not know";
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
  } else if (!StartRead(command) && !StartWrite(command)) {
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
  switch (script.end) {
    case ScriptEnd::Poll:
      afterRead_ = State::Polling;
      break;
    case ScriptEnd::FallSilent:
      afterRead_ = State::Silent;
      break;
    case ScriptEnd::Vanish:
      afterRead_ = State::Vanished;
      break;
  }
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
