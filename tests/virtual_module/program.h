// The program virtual_module as a child, and the serial port that it makes. Used by the tests of
// the program. Every wait has a deadline of 20 s.
#pragma once

#include <gtest/gtest.h>
#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace virtual_module {

using SteadyTime = std::chrono::steady_clock::time_point;

// Reads one character at a time until the text ends in `ending`, the other end is gone or the
// deadline has passed.
std::string ReadUntil(int descriptor, std::string_view ending);

// Waits until a file that is being written holds the text.
bool WaitForText(const std::filesystem::path& path, std::string_view text);

struct Outcome {
  int status = -1;  // of the exit
  std::string output;
  std::string errors;
};

class Program {
 public:
  // `input` becomes its standard input; -1 gives it a pipe that Type writes to.
  explicit Program(const std::vector<std::string>& words, int input = -1);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  std::string Line() const { return ReadUntil(output_, "\n"); }
  std::string ErrorLine() const { return ReadUntil(errors_, "\n"); }
  void Signal(int signal) const;
  void Type(std::string_view text) const;
  void EndInput();

  // Waits for the end; its output closes then.
  Outcome End();

 private:
  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  int errors_ = -1;
};

// The serial port as a tool opens it: raw, for itself alone.
class Port {
 public:
  explicit Port(const std::filesystem::path& path);
  ~Port();
  Port(const Port&) = delete;
  Port& operator=(const Port&) = delete;

  bool IsOpen() const { return descriptor_ >= 0; }
  void Write(std::string_view text) const;
  std::string Until(std::string_view ending) const { return ReadUntil(descriptor_, ending); }

  // Waits for a poll, sends the burst of 22 and gives what comes up to a CR: the identity.
  std::string Wake() const;

 private:
  int descriptor_;
};

// Has a directory of its own while a test runs.
class ProgramTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  std::string Path(const char* name) const { return (directory_ / name).string(); }
  std::string TextOf(const char* name) const;

  std::filesystem::path directory_;
};

}  // namespace virtual_module
