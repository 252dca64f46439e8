// A module of several tables: each is read when its screen is opened for the first time, and
// written by a command of its own. What is known of the tables here comes from the lines of a file,
// nothing of the tool takes part in it. The base of the tests of such modules.
#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "end_to_end/file_stage.h"

namespace end_to_end {

// Cells of a file that go out behind each other. Their frames are numbered from 0.
struct CellRun {
  int first;
  int last;
  int digits;  // of a value; 0 as many as it takes
};

// A command that writes, and what goes out behind it.
struct Writing {
  std::string command;
  std::vector<CellRun> runs;
  std::chrono::milliseconds tick;   // from one frame to the next
  std::chrono::milliseconds pause;  // from one run to the next
};

// What the tool has put on the line behind a command.
struct Conversation {
  std::string command;
  std::vector<LogUnit> frames;
};

class TableStage : public virtual FileStage {
 protected:
  // A module with a file of the demo house, and the tool, both of which are up then.
  void StartWithDemo(int kind, const std::string& demoFile, const Captions& language);

  // What the tool is to hold, cell by cell of the file: the demo house until a test changes it.
  std::vector<int>& cells() { return cells_; }
  void PutCells(int first, const std::vector<int>& numbers);
  void PutText(int first, std::string_view text);

  // Opens a screen, whose title the main window takes over for the time being, and waits until the
  // screen is in front.
  void OpenTable(std::string_view button, std::string_view title);
  // The same for one that is read now. It is there before its last cell, and of no use until then.
  void OpenAndRead(std::string_view button, std::string_view title, const std::string& command);

  // A field by its label, by number among those with that label.
  Widget AwaitField(std::string_view role, std::string_view label, int number = 1);
  void AwaitContent(std::string_view label, std::string_view content, int number = 1);
  // In place of what the field holds.
  void TypeInto(std::string_view label, const std::string& text, int number = 1);
  void AwaitChecked(std::string_view role, std::string_view name, bool checked = true);

  std::vector<Conversation> Conversations() const;
  // Presses Send, and waits until the module holds what the tool is to hold and the tool is ready
  // for more. The conversations that came are these, with all of their frames and pauses.
  void SendAndExpectWritten(const std::vector<Writing>& writings);
  // Frames of the last conversation with that command, by their place in it from 0 on.
  void ExpectFrames(const std::string& command, const std::map<std::size_t, std::string>& frames);

  void ExpectFile(const std::filesystem::path& file);
  // Asks for a file while a table was not read yet: there is none.
  void ExpectNotSaved();

 private:
  void ExpectWritten(const Conversation& conversation, const Writing& writing);
  // What the module has said since, up to the end of the read.
  std::vector<std::string> AnswersTo(const std::string& command) const;

  std::vector<int> cells_;
};

}  // namespace end_to_end
