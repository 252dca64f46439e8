#include "virtual_module/program.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>
#include <iterator>
#include <utility>

namespace virtual_module {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds patience(20);
constexpr std::string_view noEnding = "\x01";  // the program never prints it

SteadyTime Deadline() {
  return std::chrono::steady_clock::now() + patience;
}

// Waits for something to read; says whether there is before the deadline.
bool WaitFor(int descriptor, SteadyTime deadline) {
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
      deadline - std::chrono::steady_clock::now());
  pollfd waiting{.fd = descriptor, .events = POLLIN, .revents = 0};
  return left.count() > 0 && poll(&waiting, 1, static_cast<int>(left.count())) > 0;
}

std::string TextOfFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

std::string ReadUntil(int descriptor, std::string_view ending) {
  const SteadyTime deadline = Deadline();
  std::string text;
  while (!text.ends_with(ending)) {
    char character = 0;
    if (!WaitFor(descriptor, deadline) || read(descriptor, &character, 1) != 1) {
      break;
    }
    text += character;
  }
  return text;
}

bool WaitForText(const fs::path& path, std::string_view text) {
  const SteadyTime deadline = Deadline();
  const int changes = inotify_init1(IN_CLOEXEC);
  inotify_add_watch(changes, path.c_str(), IN_MODIFY);
  bool found = TextOfFile(path).find(text) != std::string::npos;
  while (!found) {
    std::array<char, 4096> events{};
    if (!WaitFor(changes, deadline) || read(changes, events.data(), events.size()) <= 0) {
      break;
    }
    found = TextOfFile(path).find(text) != std::string::npos;
  }
  close(changes);
  return found;
}

Program::Program(const std::vector<std::string>& words, int input) {
  std::array<int, 2> typed{};
  std::array<int, 2> output{};
  std::array<int, 2> errors{};
  EXPECT_EQ(pipe2(typed.data(), O_CLOEXEC), 0);
  EXPECT_EQ(pipe2(output.data(), O_CLOEXEC), 0);
  EXPECT_EQ(pipe2(errors.data(), O_CLOEXEC), 0);
  std::vector<std::string> copies = {VIRTUAL_MODULE_PROGRAM};
  copies.insert(copies.end(), words.begin(), words.end());
  std::vector<char*> arguments;
  for (std::string& word : copies) {
    arguments.push_back(word.data());
  }
  arguments.push_back(nullptr);
  process_ = fork();
  if (process_ == 0) {
    dup2(input < 0 ? typed[0] : input, STDIN_FILENO);
    dup2(output[1], STDOUT_FILENO);
    dup2(errors[1], STDERR_FILENO);
    execv(arguments[0], arguments.data());
    _exit(127);
  }
  close(typed[0]);
  close(output[1]);
  close(errors[1]);
  input_ = typed[1];
  output_ = output[0];
  errors_ = errors[0];
}

Program::~Program() {
  if (process_ > 0) {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
  EndInput();
  close(output_);
  close(errors_);
}

void Program::Signal(int signal) const {
  kill(process_, signal);
}

void Program::Type(std::string_view text) const {
  EXPECT_EQ(write(input_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

void Program::EndInput() {
  if (input_ >= 0) {
    close(std::exchange(input_, -1));
  }
}

Outcome Program::End() {
  Outcome outcome;
  outcome.output = ReadUntil(output_, noEnding);
  outcome.errors = ReadUntil(errors_, noEnding);
  int status = 0;
  waitpid(std::exchange(process_, -1), &status, 0);
  outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return outcome;
}

Port::Port(const fs::path& path) : descriptor_(open(path.c_str(), O_RDWR | O_NOCTTY)) {
  termios modes{};
  tcgetattr(descriptor_, &modes);
  cfmakeraw(&modes);
  tcsetattr(descriptor_, TCSANOW, &modes);
  ioctl(descriptor_, TIOCEXCL);
}

Port::~Port() {
  close(descriptor_);
}

void Port::Write(std::string_view text) const {
  EXPECT_EQ(write(descriptor_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
}

std::string Port::Wake() const {
  tcflush(descriptor_, TCIFLUSH);
  Until("M");
  for (int i = 0; i < 22; ++i) {
    Write("D");
  }
  tcflush(descriptor_, TCIFLUSH);
  return Until("\r");
}

void ProgramTest::SetUp() {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  directory_ = fs::temp_directory_path() /
               (std::string("bkconf-") + test->test_suite_name() + "-" + test->name());
  fs::remove_all(directory_);
  fs::create_directories(directory_);
}

void ProgramTest::TearDown() {
  fs::remove_all(directory_);
}

std::string ProgramTest::TextOf(const char* name) const {
  return TextOfFile(directory_ / name);
}

}  // namespace virtual_module
