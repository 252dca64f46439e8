#include "end_to_end/table_stage.h"

#include <algorithm>

#include "end_to_end/deadline.h"
#include "end_to_end/image_lines.h"

namespace end_to_end {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

// Numbers and texts of numbers alike; a line with nothing in it is 0.
std::vector<int> CellsIn(const std::string& content) {
  std::vector<int> cells;
  for (const std::string& line : LinesOf(content)) {
    const bool empty = line.find_first_of("0123456789") == std::string::npos;
    cells.push_back(empty ? 0 : std::stoi(line));
  }
  if (!cells.empty()) cells.erase(cells.begin());  // the kind
  return cells;
}

const std::vector<std::string> nothing;

bool IsCommand(const LogUnit& unit) {
  return unit.fromTool && unit.text.size() == 8 && unit.text.ends_with("000\\r");
}

std::string FrameOf(int number, int value, int digits) {
  std::string text = std::to_string(value);
  if (static_cast<int>(text.size()) < digits) {
    text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
  }
  return "T" + std::to_string(1000 + number).substr(1) + text + "\\n\\r";
}

// At least.
milliseconds DurationOf(const Writing& writing) {
  milliseconds duration = static_cast<int>(writing.runs.size()) * writing.pause;
  for (const CellRun& run : writing.runs) duration += (run.last - run.first) * writing.tick;
  return duration;
}

milliseconds Between(const LogUnit& one, const LogUnit& next) {
  return std::chrono::duration_cast<milliseconds>(microseconds(next.firstByte - one.lastByte));
}

}  // namespace

void TableStage::StartWithDemo(int kind, const std::string& demoFile, const Captions& language) {
  LayOutDirectory(language);
  cells_ = CellsIn(ContentOf(DemoFile(demoFile)));
  StartModule(kind, {"--image", DemoFile(demoFile).string(), "--save", savedImage().string()});
  StartTool();
}

void TableStage::PutCells(int first, const std::vector<int>& numbers) {
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    cells_.at(static_cast<std::size_t>(first) + i) = numbers[i];
  }
}

void TableStage::PutText(int first, std::string_view text) {
  PutCells(first, std::vector<int>(text.begin(), text.end()));
}

void TableStage::OpenTable(std::string_view button, std::string_view title) {
  const auto corner = desktop().ActiveCorner();
  ClickOn("push button", button);
  // Both windows have the title; the screen's is not the one that was there before.
  const auto stands = [&] {
    if (desktop().ActiveWindow() != title) return false;
    const auto front = desktop().ActiveCorner();
    const std::vector<Widget> widgets = desktop().Widgets();
    return front != corner && std::any_of(widgets.begin(), widgets.end(), [&](const Widget& each) {
             return each.role == "frame" && each.name == title &&
                    front == std::pair(each.x, each.y);
           });
  };
  EXPECT_TRUE(WaitFor([&] { return stands() || !tool().Running(); }))
      << "the screen \"" << title << "\" never comes to the front";
}

void TableStage::OpenAndRead(std::string_view button, std::string_view title,
                             const std::string& command) {
  OpenTable(button, title);
  const bool usable = Await("push button", captions().leave, false).enabled;
  // The line is looked at behind the button: what has not come now had not come then.
  const std::size_t come = AnswersTo(command).size();
  Await("push button", captions().leave);
  std::vector<std::string> answers;
  EXPECT_TRUE(WaitFor([&] {
    answers = AnswersTo(command);
    return !answers.empty() && answers.back() == "STOP\\r";
  })) << command;
  // The last cell frees the screen, before the end is told.
  constexpr std::size_t behindLastCell = 1;
  if (come + behindLastCell < answers.size()) {
    EXPECT_FALSE(usable) << title << " can be left before its last cell has come";
  }
}

std::vector<std::string> TableStage::AnswersTo(const std::string& command) const {
  const std::vector<LogUnit> log = Log();
  std::vector<std::string> answers;
  auto unit = std::find_if(log.begin(), log.end(), [&](const LogUnit& each) {
    return each.fromTool && each.text == command + "\\r";
  });
  for (; unit != log.end() && (answers.empty() || answers.back() != "STOP\\r"); ++unit) {
    if (!unit->fromTool) answers.push_back(unit->text);
  }
  return answers;
}

Widget TableStage::AwaitField(std::string_view role, std::string_view label, int number) {
  std::optional<Widget> field;
  const bool stands = WaitFor([&] {
    const std::optional<Widget> before = field;
    field.reset();
    int left = number;
    for (const Widget& each : desktop().Widgets()) {
      if (each.role == role && each.name == label && --left == 0) field = each;
    }
    return field && field->enabled && before && before->x == field->x && before->y == field->y;
  });
  EXPECT_TRUE(stands) << "there is no " << role << " \"" << label << "\" to be used";
  return field.value_or(Widget());
}

void TableStage::AwaitContent(std::string_view label, std::string_view content, int number) {
  std::string shown;
  EXPECT_TRUE(WaitFor([&] {
    shown = AwaitField("text", label, number).content;
    return shown == content;
  })) << "the field \""
      << label << "\" shows \"" << shown << "\" in place of \"" << content << "\"";
}

void TableStage::TypeInto(std::string_view label, const std::string& text, int number) {
  const auto shows = [&] { return AwaitField("text", label, number).content == text; };
  // Keys that come while the window manager moves the focus are lost.
  EXPECT_TRUE(WaitFor([&] {
    desktop().Click(AwaitField("text", label, number));
    desktop().Press({"ctrl+a"});
    desktop().Type(text);
    return WaitFor(shows, nextTry);
  })) << "the field \""
      << label << "\" does not take " << text;
}

void TableStage::AwaitChecked(std::string_view role, std::string_view name, bool checked) {
  EXPECT_TRUE(WaitFor([&] { return Await(role, name, false).checked == checked; })) << name;
}

std::vector<Conversation> TableStage::Conversations() const {
  std::vector<Conversation> conversations;
  bool inside = false;
  for (const LogUnit& unit : Log()) {
    if (!unit.fromTool) continue;
    if (IsCommand(unit)) {
      conversations.push_back({unit.text.substr(0, 6), {}});
      inside = true;
    } else if (unit.text.starts_with('D')) {
      inside = false;  // the burst that wakes the module for the next one
    } else if (inside) {
      conversations.back().frames.push_back(unit);
    }
  }
  return conversations;
}

void TableStage::SendAndExpectWritten(const std::vector<Writing>& writings) {
  const std::size_t before = Conversations().size();
  ClickOn("push button", captions().send);
  milliseconds limit = patience;
  for (const Writing& writing : writings) limit += DurationOf(writing);
  std::vector<int> saved;
  WaitFor(
      [&] {
        saved = CellsIn(ContentOf(savedImage()));
        return saved == cells_ && Conversations().size() == before + writings.size();
      },
      limit);
  EXPECT_EQ(Differences(saved, cells_), nothing);
  AwaitText("Ready");
  Await("push button", captions().send);
  const std::vector<Conversation> after = Conversations();
  ASSERT_EQ(after.size(), before + writings.size());
  for (std::size_t i = 0; i < writings.size(); ++i) ExpectWritten(after[before + i], writings[i]);
}

void TableStage::ExpectWritten(const Conversation& conversation, const Writing& writing) {
  EXPECT_EQ(conversation.command, writing.command);
  std::vector<std::string> wanted;
  std::vector<std::size_t> starts;  // of the runs
  for (const CellRun& run : writing.runs) {
    starts.push_back(wanted.size());
    for (int cell = run.first; cell <= run.last; ++cell) {
      const int value = cells_.at(static_cast<std::size_t>(cell));
      wanted.push_back(FrameOf(cell - run.first, value, run.digits));
    }
  }
  std::vector<std::string> sent;
  for (const LogUnit& frame : conversation.frames) sent.push_back(frame.text);
  ASSERT_EQ(Differences(sent, wanted), nothing) << writing.command;
  // The log may see a pause shorter, when the module was late to take the frame before it on a busy
  // machine, but a long one never nearly so short as a tick. Over all frames lateness counts for
  // little, and a short pause can only be seen there.
  const bool isLong = writing.pause > 10 * writing.tick;
  for (std::size_t run = 1; isLong && run < starts.size(); ++run) {
    const std::size_t first = starts[run];
    EXPECT_GE(Between(conversation.frames[first - 1], conversation.frames[first]),
              writing.pause / 2)
        << writing.command << ", before frame " << first;
  }
  constexpr milliseconds lateness(250);  // of the first frame
  const auto ticks = static_cast<int>(sent.size()) - 1;
  EXPECT_GE(Between(conversation.frames.front(), conversation.frames.back()),
            ticks * writing.tick * 9 / 10 - lateness);
}

void TableStage::ExpectFrames(const std::string& command,
                              const std::map<std::size_t, std::string>& frames) {
  const std::vector<Conversation> all = Conversations();
  const auto last = std::find_if(all.rbegin(), all.rend(),
                                 [&](const Conversation& each) { return each.command == command; });
  ASSERT_NE(last, all.rend()) << command;
  for (const auto& [place, text] : frames) {
    ASSERT_LT(place, last->frames.size()) << command;
    EXPECT_EQ(last->frames[place].text, text + "\\n\\r") << command << ", frame " << place;
  }
}

void TableStage::ExpectFile(const std::filesystem::path& file) {
  EXPECT_EQ(Differences(CellsIn(ContentOf(file)), cells_), nothing) << file;
}

void TableStage::ExpectNotSaved() {
  ClickOnEntry(captions().fileMenu, captions().saveAsEntry);
  DismissMessage(captions().incomplete);
  AwaitWindow(programName);
  EXPECT_FALSE(desktop().Find("frame", captions().saveTitle));
}

}  // namespace end_to_end
