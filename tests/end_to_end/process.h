// A program that a test has started. Used by the desktop and by the tests themselves.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace end_to_end {

class Process {
 public:
  // Starts `words` with the environment of the test, and with nothing to read until it is told
  // something. What it prints on either stream is added to the file `output`. Throws
  // std::runtime_error when no process can be made; a program that is not there ends with status
  // 127.
  Process(const std::vector<std::string>& words, std::filesystem::path output);
  // One that is there already, a child of the test: see InheritOrphans.
  Process(pid_t inherited, std::filesystem::path output);
  // Ends it, kindly first.
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  bool Running();
  // Waits for the end and gives the exit status, 128 and the signal's number after a signal;
  // nothing when it still runs after the deadline.
  std::optional<int> AwaitEnd();
  // Asks it to end, and makes it when it does not.
  void End();

  // Gives it a line to read, to which the end is added. Throws std::runtime_error when it does not
  // take it.
  void Tell(const std::string& line);
  // What it has printed so far.
  std::string Output() const;

 private:
  void Look(int options);

  pid_t process_ = -1;
  int input_ = -1;  // the near end of its standard input; none of an inherited one
  std::optional<int> status_;
  std::filesystem::path output_;
};

// Runs a program to its end and gives its status; 127 also when it does not end in time.
int RunToEnd(const std::vector<std::string>& words, const std::filesystem::path& output);

// The whole content of a file, empty when there is none.
std::string ContentOf(const std::filesystem::path& path);

// Programs started by programs of this test are left to the test when those end. This makes it
// inherit them, and EndInherited ends them.
void InheritOrphans();
void EndInherited();
// The children of the test, inherited or not, that run this program.
std::vector<pid_t> Inherited(const std::filesystem::path& program);

}  // namespace end_to_end
