#include "end_to_end/process.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "end_to_end/deadline.h"

namespace end_to_end {
namespace {

namespace fs = std::filesystem;

constexpr int notThere = 127;

std::vector<char*> Pointers(std::vector<std::string>& words) {
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::vector<pid_t> Children() {
  std::vector<pid_t> children;
  std::ifstream list("/proc/self/task/" + std::to_string(getpid()) + "/children");
  for (pid_t child = 0; list >> child;) children.push_back(child);
  return children;
}

}  // namespace

Process::Process(const std::vector<std::string>& words, fs::path output)
    : output_(std::move(output)) {
  std::vector<std::string> copies = words;
  const std::vector<char*> arguments = Pointers(copies);
  // No pipe: writing to one whose reader has ended would end the test.
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
    throw std::runtime_error("nothing to read for " + words.front());
  }
  input_ = ends[0];
  // A test starts hundreds of small programs, and a copy of its own memory would cost more than
  // they do, above all with sanitizers. The child does nothing but calls of the system.
  process_ = vfork();
  if (process_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);  // a test that crashes leaves nothing behind
    dup2(ends[1], STDIN_FILENO);
    const int file = open(output_.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
    dup2(file, STDOUT_FILENO);
    dup2(file, STDERR_FILENO);
    execvp(arguments[0], arguments.data());
    _exit(notThere);
  }
  close(ends[1]);
  if (process_ >= 0) return;
  close(input_);
  throw std::runtime_error("no process for " + words.front());
}

Process::Process(pid_t inherited, fs::path output)
    : process_(inherited), output_(std::move(output)) {}

Process::~Process() {
  End();
  if (input_ >= 0) close(input_);
}

void Process::Look(int options) {
  int status = 0;
  if (status_ || waitpid(process_, &status, options) != process_) return;
  status_ = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

bool Process::Running() {
  Look(WNOHANG);
  return !status_;
}

std::optional<int> Process::AwaitEnd() {
  WaitFor([this] { return !Running(); });
  return status_;
}

void Process::End() {
  if (!Running()) return;
  kill(process_, SIGTERM);
  if (WaitFor([this] { return !Running(); }, std::chrono::seconds(5))) return;
  kill(process_, SIGKILL);
  Look(0);
}

void Process::Tell(const std::string& line) {
  const std::string told = line + "\n";
  const ssize_t sent = send(input_, told.data(), told.size(), MSG_NOSIGNAL);
  if (sent != static_cast<ssize_t>(told.size())) throw std::runtime_error("nobody reads " + line);
}

std::string Process::Output() const {
  return ContentOf(output_);
}

int RunToEnd(const std::vector<std::string>& words, const fs::path& output) {
  return Process(words, output).AwaitEnd().value_or(notThere);
}

std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void InheritOrphans() {
  prctl(PR_SET_CHILD_SUBREAPER, 1UL);
}

void EndInherited() {
  // An ended process may leave further ones, until there are none.
  WaitFor([] {
    for (const pid_t child : Children()) kill(child, SIGKILL);
    while (waitpid(-1, nullptr, WNOHANG) > 0) {
    }
    return waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD;
  });
}

std::vector<pid_t> Inherited(const fs::path& program) {
  std::vector<pid_t> found;
  for (const pid_t child : Children()) {
    std::error_code gone;
    if (fs::equivalent("/proc/" + std::to_string(child) + "/exe", program, gone)) {
      found.push_back(child);
    }
  }
  return found;
}

}  // namespace end_to_end
