#include "virtual_module/live_tests.h"

#include <algorithm>
#include <stdexcept>

#include "virtual_module/digits.h"

namespace virtual_module {
namespace {

constexpr Thirds samplePeriod = Milliseconds(100);
constexpr Thirds linePeriod = Milliseconds(50);
constexpr Thirds updatePatience = Milliseconds(2000);  // then the test goes on without the rest

constexpr int sampleCount = 10;
constexpr int clockLineCount = 2;
constexpr int zeroLevel = 10000;  // of the input line as it is sent
constexpr int highestLight = 50;
constexpr int likelyButtons = 20;  // that the module presses by itself
constexpr int overflowLines = 8;   // more than the bar of any test has to spare
constexpr int linesOfEndlessFault = 5;
constexpr int faultyLine = 10;  // every tenth is bent

// The first character has no meaning, so it varies.
std::string WithHead(const std::string& text, int lineNumber) {
  constexpr std::string_view heads = "MCKR";
  return heads[static_cast<std::size_t>(lineNumber) % heads.size()] + text;
}

std::string NotDue(std::string& error, std::string_view why) {
  error = why;
  return {};
}

}  // namespace

LiveTests::LiveTests(const Memory& memory, const LiveOptions& options)
    : memory_(memory),
      options_(options),
      chance_(options.seed),
      detectors_(chance_),
      clock_(options.clock),
      lineLevel_(chance_.In(20, 400)),
      lightLevel_(chance_.In(3, highestLight - 2)) {
  if (options.pressEvery < 0) {
    throw std::invalid_argument("presses at a negative interval");
  }
}

std::optional<LiveTest> LiveTests::running() const {
  return running_ ? test_ : std::nullopt;
}

std::optional<LiveTest> LiveTests::TestOf(std::string_view command) const {
  const FixedCell versionCell = VersionCellOf(memory_.kind());
  const int version =
      memory_.Cells(versionCell.table).at(static_cast<std::size_t>(versionCell.cell));
  for (const LiveRow& row : LiveRowsOf(memory_.kind())) {
    if (row.command == command && version >= row.firstVersion && version <= row.lastVersion) {
      return row.test;
    }
  }
  return std::nullopt;
}

void LiveTests::Start(std::string_view command, Thirds now) {
  command_ = command;
  test_ = TestOf(command);
  running_ = true;
  updating_ = false;
  sent_ = 0;
  detector_ = 0;
  asked_ = clock_.At(now);
  Schedule(now);
}

void LiveTests::Forget() {
  End();
  command_.clear();
  test_.reset();
}

void LiveTests::End() {
  running_ = false;
  updating_ = false;
  due_.reset();
}

// Between two lines that the module sends unasked; 0 when there are none.
Thirds LiveTests::Period() const {
  switch (*test_) {
    case LiveTest::Line:
    case LiveTest::Light:
      return samplePeriod;
    case LiveTest::Clock:
      return linePeriod;
    case LiveTest::ShortDetectors:
    case LiveTest::LongDetectors:
      return DetectorsInUse() > 0 ? linePeriod : 0;
    case LiveTest::Buttons:
      return options_.pressEvery * thirdsPerMicrosecond;
    case LiveTest::Outputs:
      return 0;
  }
  return 0;
}

bool LiveTests::EndsByItself() const {
  return test_ == LiveTest::Line || test_ == LiveTest::Light || test_ == LiveTest::Clock;
}

int LiveTests::LinesBeforeStop() const {
  const int lines = test_ == LiveTest::Clock ? clockLineCount : sampleCount;
  if (options_.fault == Fault::ShortStream) {
    return lines / 2;
  }
  return options_.fault == Fault::TooManyLines ? lines + overflowLines : lines;
}

// How many whole lines there are of a test in whose middle a fault strikes.
int LiveTests::LinesBeforeFault() const {
  return EndsByItself() ? LinesBeforeStop() / 2 : linesOfEndlessFault;
}

int LiveTests::DetectorsInUse() const {
  constexpr std::size_t inUse = 123;
  return std::clamp(memory_.Cells(TableName::AlarmImage).at(inUse), 0, detectorCount);
}

void LiveTests::Schedule(Thirds now) {
  const Thirds period = Period();
  due_ = period > 0 ? std::optional(now + period) : std::nullopt;
}

LiveLines LiveTests::Next(Thirds now) {
  Schedule(now);
  if (updating_) {
    updating_ = false;
    return {};
  }
  return Emit(NextText());
}

LiveLines LiveTests::Press(int index) {
  if (running() != LiveTest::Buttons) {
    return {};
  }
  return Emit(PaddedDigits(index, 2));
}

std::string LiveTests::NextText() {
  switch (*test_) {
    case LiveTest::Line:
      return PaddedDigits(zeroLevel + lineLevel_ + chance_.In(-3, 3), 5);
    case LiveTest::Light:
      return PaddedDigits(lightLevel_ + chance_.In(-1, 1), 2);
    case LiveTest::Clock:
      return ClockText();
    case LiveTest::ShortDetectors:
    case LiveTest::LongDetectors:
      return DetectorText();
    case LiveTest::Buttons:
      return PaddedDigits(chance_.In(0, likelyButtons - 1), 2);
    case LiveTest::Outputs:
      break;
  }
  return {};
}

// Both lines tell the moment at which the test began, so that no midnight comes between them.
std::string LiveTests::ClockText() const {
  if (sent_ == 0) {
    return PaddedDigits(asked_.hour, 2) + PaddedDigits(asked_.minute, 2);
  }
  return PaddedDigits(asked_.day, 2) + PaddedDigits(asked_.month, 2) +
         PaddedDigits(asked_.year % 100, 2) + "-" + std::to_string(asked_.weekday);
}

std::string LiveTests::DetectorText() {
  const int index = detector_;
  detector_ = (detector_ + 1) % std::max(1, DetectorsInUse());
  return test_ == LiveTest::LongDetectors ? detectors_.LongText(index, chance_)
                                          : detectors_.ShortText(index);
}

// The line of `text`, and what follows it when it is the last one, as the fault will have it.
LiveLines LiveTests::Emit(std::string text) {
  LiveLines lines;
  text = WithHead(text, sent_);
  Bend(text);
  const bool inMiddle = sent_ == LinesBeforeFault();
  ++sent_;
  if (inMiddle && options_.fault == Fault::StopsWithinLine) {
    lines.lines.push_back(text.substr(0, text.size() / 2 + 1));
    lines.end = ScriptEnd::FallSilent;
  } else {
    lines.lines.push_back(text + "\r");
    if (options_.fault == Fault::VanishInRead && sent_ == LinesBeforeFault()) {
      lines.end = ScriptEnd::Vanish;
    } else if (EndsByItself() && sent_ == LinesBeforeStop()) {
      const bool stops = options_.fault != Fault::NoStop;
      lines.end = stops ? ScriptEnd::Poll : ScriptEnd::FallSilent;
      if (stops) {
        lines.lines.push_back("STOP\r");
      }
    }
  }
  if (lines.end) {
    End();
  }
  return lines;
}

void LiveTests::Bend(std::string& text) const {
  if (sent_ % faultyLine != faultyLine - 1) {
    return;
  }
  const bool hasIndex = !EndsByItself();
  if (options_.fault == Fault::CorruptDigits) {
    text[text.size() / 2] = 'x';
  } else if (options_.fault == Fault::IndexBeyondTable && hasIndex) {
    text.replace(1, 2, "99");
  }
}

LiveTaken LiveTests::Take(FrameRecord& record, Thirds now, bool deaf) {
  const std::optional<LiveFrame> frame = LiveFrameOf(memory_.kind(), record.text);
  if (!frame) {
    return LiveTaken::Nothing;
  }
  record.kind = UnitKind::Frame;
  record.command = command_;
  if (deaf) {
    return LiveTaken::Frame;
  }
  record.meaning = Obey(*frame, record.error, now);
  const bool stop = frame->kind == LiveFrameKind::Stop || frame->kind == LiveFrameKind::StopOutputs;
  return stop && record.error.empty() ? LiveTaken::Stop : LiveTaken::Frame;
}

std::string LiveTests::Obey(const LiveFrame& frame, std::string& error, Thirds now) {
  switch (frame.kind) {
    case LiveFrameKind::Stop:
      return TakeStop(false, error);
    case LiveFrameKind::StopOutputs:
      return TakeStop(true, error);
    case LiveFrameKind::Output:
      return SwitchOutput(frame.numbers[0], error);
    case LiveFrameKind::Time:
    case LiveFrameKind::Date:
      return SetClock(frame, error, now);
    case LiveFrameKind::AnnounceUpdate:
      return AnnounceUpdate(error, now);
    case LiveFrameKind::Reference:
      return TakeReference(frame, error, now);
  }
  return {};
}

// The tool repeats a stop many times: what comes after the first one finds nothing to end.
std::string LiveTests::TakeStop(bool ofOutputs, std::string& error) {
  if (ofOutputs && test_ != LiveTest::Outputs) {
    return NotDue(error, "the end of a test of outputs that is not going on");
  }
  if (!running_) {
    return "nothing left to end";
  }
  End();
  return "the test ends";
}

std::string LiveTests::SwitchOutput(int index, std::string& error) {
  if (running() != LiveTest::Outputs) {
    return NotDue(error, "an output outside the test of outputs");
  }
  if (index >= outputCount) {
    return NotDue(error, "an output that the module does not have");
  }
  bool& output = outputs_.at(static_cast<std::size_t>(index));
  output = !output;
  return "output " + std::to_string(index + 1) + (output ? " on" : " off");
}

// The module listens for its clock from the test on, even while it polls again.
std::string LiveTests::SetClock(const LiveFrame& frame, std::string& error, Thirds now) {
  if (test_ != LiveTest::Clock) {
    return NotDue(error, "a clock that was not asked before");
  }
  const auto& [first, second, third] = frame.numbers;
  const bool isTime = frame.kind == LiveFrameKind::Time;
  if (isTime ? !clock_.SetTime(first, second, third, now)
             : !clock_.SetDate(first, second, third, now)) {
    return NotDue(error, isTime ? "not a time of a weekday" : "not a date");
  }
  const ClockTime set = clock_.At(now);
  return isTime ? "clock set to " + PaddedDigits(set.hour, 2) + ":" + PaddedDigits(set.minute, 2) +
                      ", weekday " + std::to_string(set.weekday)
                : "date set to " + std::to_string(set.year) + "-" + PaddedDigits(set.month, 2) +
                      "-" + PaddedDigits(set.day, 2);
}

// No line is sent until the references are in: an old one would be taken for what they have become.
std::string LiveTests::AnnounceUpdate(std::string& error, Thirds now) {
  if (running() != LiveTest::LongDetectors) {
    return NotDue(error, "an update outside the test of detectors");
  }
  updating_ = true;
  due_ = now + updatePatience;
  return "waits for references";
}

std::string LiveTests::TakeReference(const LiveFrame& frame, std::string& error, Thirds now) {
  if (!updating_) {
    return NotDue(error, "a reference that was not announced");
  }
  const auto& [index, level, code] = frame.numbers;
  if (index >= DetectorsInUse()) {
    return NotDue(error, "a detector that is not in use");
  }
  detectors_.SetReference(index, level, code);
  updating_ = index + 1 < DetectorsInUse();
  if (updating_) {
    due_ = now + updatePatience;
  } else {
    Schedule(now);
  }
  return "detector " + std::to_string(index + 1) + " level " + PaddedDigits(level, 3) + " code " +
         PaddedDigits(code, 2);
}

}  // namespace virtual_module
