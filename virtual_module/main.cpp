// The program virtual_module: a module of any kind on a pseudo-terminal, for demonstrations and for
// tests that run the whole tool.
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <iostream>
#include <optional>
#include <stdexcept>

#include "virtual_module/arguments.h"
#include "virtual_module/console.h"
#include "virtual_module/line_log.h"
#include "virtual_module/memory.h"
#include "virtual_module/module.h"
#include "virtual_module/pseudo_terminal.h"

namespace virtual_module {
namespace {

constexpr std::size_t unreadPolls = 64;      // as many as may wait while nobody reads
constexpr std::int64_t longestWait = 20000;  // us; then a tool's exclusive use is taken back

volatile std::sig_atomic_t ended = 0;

void End(int) {
  ended = 1;
}

// Lets the signals that end the program through only while it waits, so that none is missed.
// Gives the mask to wait with.
sigset_t CatchSignals() {
  struct sigaction action {};
  action.sa_handler = End;
  sigset_t ending;
  sigemptyset(&ending);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    sigaddset(&ending, signal);
    sigaction(signal, &action, nullptr);
  }
  sigset_t before;
  sigprocmask(SIG_BLOCK, &ending, &before);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    sigdelset(&before, signal);
  }
  return before;
}

class Clock {
 public:
  std::int64_t Now() const {
    const auto passed = std::chrono::steady_clock::now() - start_;
    return std::chrono::duration_cast<std::chrono::microseconds>(passed).count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

Memory StartMemory(const Arguments& arguments) {
  if (!arguments.image) {
    return DefaultMemory(arguments.kind, arguments.seed);
  }
  Memory memory = LoadImage(*arguments.image);
  if (memory.kind() != arguments.kind) {
    throw ArgumentError("--image: " + arguments.image->string() + " is of kind " +
                        std::to_string(memory.kind()) + ", not of kind " +
                        std::to_string(arguments.kind));
  }
  return memory;
}

// A module and its line until a signal ends them.
class Session {
 public:
  explicit Session(const Arguments& arguments)
      : arguments_(arguments),
        module_({.kind = arguments.kind,
                 .memory = StartMemory(arguments),
                 .fault = arguments.fault,
                 .seed = arguments.seed,
                 .clock = arguments.clock,
                 .pressEvery = arguments.pressEvery}),
        signals_(CatchSignals()),
        terminal_(arguments.link) {
    if (arguments.log) {
      log_.emplace(*arguments.log);
    }
  }

  void RunUntilSignal() {
    const Clock clock;
    while (!ended && !module_.vanished()) {
      const std::optional<std::int64_t> due = module_.NextDue();
      const std::int64_t wait = due ? *due - clock.Now() : longestWait;
      if (terminal_.Wait(std::clamp<std::int64_t>(wait, 0, longestWait), signals_,
                         console_.descriptor())) {
        for (const char character : terminal_.Receive()) {
          module_.Receive(static_cast<unsigned char>(character), clock.Now());
        }
      }
      const std::string leaving = module_.Run(clock.Now());
      // Who sees a line at the other end finds it in the log.
      Record();
      Send(leaving);
      ObeyConsole();
      terminal_.AllowOthers();
    }
    terminal_.Close();
    while (!ended) {
      sigsuspend(&signals_);
    }
  }

  // The last lines of the log and the last image.
  void Finish() {
    if (log_) {
      log_->WriteOpenPolls(module_);
    }
    if (arguments_.save) {
      SaveImage(module_.memory(), *arguments_.save);
    }
  }

 private:
  // Polls that nobody reads are lost: a tool that opens the port later must not find old ones.
  void Send(const std::string& characters) {
    const bool onlyPolls =
        module_.polling() && characters.find_first_not_of('M') == std::string::npos;
    if (onlyPolls && terminal_.Unread() >= unreadPolls) {
      return;
    }
    terminal_.Send(characters);
  }

  void ObeyConsole() {
    for (const std::string& line : console_.Lines()) {
      try {
        const std::string answer = Obey(module_, line);
        if (!answer.empty()) {
          std::cout << answer << std::endl;
        }
      } catch (const ConsoleError& error) {
        std::cerr << "virtual_module: " << error.what() << std::endl;
      }
    }
  }

  void Record() {
    if (log_) {
      log_->Write(module_);
    }
    if (arguments_.save && module_.completedWrites() > savedWrites_) {
      savedWrites_ = module_.completedWrites();
      SaveImage(module_.memory(), *arguments_.save);
    }
  }

  Arguments arguments_;
  Module module_;
  sigset_t signals_;
  PseudoTerminal terminal_;
  Console console_{STDIN_FILENO};
  std::optional<LineLog> log_;
  int savedWrites_ = 0;
};

int RunProgram(const std::vector<std::string>& words) {
  const Arguments arguments = ParseArguments(words);
  if (arguments.help) {
    std::cout << HelpText();
    return 0;
  }
  prctl(PR_SET_TIMERSLACK, 1UL);  // the characters of a line are a millisecond apart
  std::optional<Session> session;
  try {
    session.emplace(arguments);
  } catch (const std::exception& error) {
    throw ArgumentError(error.what());  // nothing has begun: it is what was asked for
  }
  std::cout << "ready " << arguments.link.string() << std::endl;
  session->RunUntilSignal();
  session->Finish();
  return 0;
}

}  // namespace
}  // namespace virtual_module

int main(int argc, char** argv) {
  try {
    return virtual_module::RunProgram({argv + 1, argv + argc});
  } catch (const virtual_module::ArgumentError& error) {
    std::cerr << "virtual_module: " << error.what() << "\n";
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "virtual_module: " << error.what() << "\n";
    return 1;
  }
}
