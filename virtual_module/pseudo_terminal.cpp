#include "virtual_module/pseudo_terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace virtual_module {
namespace {

constexpr std::int64_t hangUpRest = 20000;  // us; a hang-up is reported at once, again and again

[[noreturn]] void Fail(const std::string& what) {
  throw std::runtime_error(what + ": " + std::strerror(errno));
}

timespec TimeOf(std::int64_t microseconds) {
  timespec time{};
  time.tv_sec = microseconds / 1000000;
  time.tv_nsec = (microseconds % 1000000) * 1000;
  return time;
}

void SetRawMode(int terminal) {
  termios modes{};
  if (tcgetattr(terminal, &modes) != 0) {
    Fail("the modes of the pseudo-terminal");
  }
  cfmakeraw(&modes);
  cfsetspeed(&modes, B9600);
  if (tcsetattr(terminal, TCSANOW, &modes) != 0) {
    Fail("the modes of the pseudo-terminal");
  }
}

// A link that stands there belongs to a module that is gone or is being replaced; anything else
// belongs to somebody.
void PlaceLink(const std::filesystem::path& device, const std::filesystem::path& link) {
  const std::filesystem::file_status status = std::filesystem::symlink_status(link);
  if (std::filesystem::exists(status) && !std::filesystem::is_symlink(status)) {
    throw std::runtime_error(link.string() + ": stands there already and is not a link");
  }
  const std::filesystem::path beside = link.string() + "." + std::to_string(getpid());
  std::error_code error;
  std::filesystem::create_symlink(device, beside, error);
  if (!error) {
    std::filesystem::rename(beside, link, error);
  }
  if (error) {
    throw std::runtime_error(link.string() + ": " + error.message());
  }
}

}  // namespace

PseudoTerminal::PseudoTerminal(std::filesystem::path link) : link_(std::move(link)) {
  near_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (near_ < 0 || grantpt(near_) != 0 || unlockpt(near_) != 0) {
    Fail("no pseudo-terminal");
  }
  std::array<char, 128> name{};
  if (ptsname_r(near_, name.data(), name.size()) != 0) {
    Fail("the name of the pseudo-terminal");
  }
  device_ = name.data();
  far_ = open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (far_ < 0) {
    Fail(device_.string());
  }
  SetRawMode(far_);
  if (fcntl(near_, F_SETFL, O_NONBLOCK) != 0) {
    Fail(device_.string());
  }
  PlaceLink(device_, link_);
}

PseudoTerminal::~PseudoTerminal() {
  Close();
}

bool PseudoTerminal::Wait(std::int64_t timeoutMicroseconds, const sigset_t& signals, int other) {
  std::array<pollfd, 2> waiting = {{{.fd = near_, .events = POLLIN, .revents = 0},
                                    {.fd = other, .events = POLLIN, .revents = 0}}};
  timespec limit = TimeOf(timeoutMicroseconds);
  const int count = ppoll(waiting.data(), waiting.size(), &limit, &signals);
  if (count <= 0) {
    return false;
  }
  const bool input = (waiting[0].revents & POLLIN) != 0;
  if (!input && waiting[0].revents != 0) {
    timespec rest = TimeOf(hangUpRest);
    ppoll(nullptr, 0, &rest, &signals);
  }
  return input;
}

std::string PseudoTerminal::Receive() {
  std::array<char, 512> buffer{};
  const ssize_t count = read(near_, buffer.data(), buffer.size());
  return count > 0 ? std::string(buffer.data(), static_cast<std::size_t>(count)) : std::string();
}

void PseudoTerminal::Send(std::string_view characters) {
  while (!characters.empty()) {
    const ssize_t count = write(near_, characters.data(), characters.size());
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count <= 0) {
      return;
    }
    characters.remove_prefix(static_cast<std::size_t>(count));
  }
}

std::size_t PseudoTerminal::Unread() const {
  int count = 0;
  return ioctl(far_, FIONREAD, &count) == 0 ? static_cast<std::size_t>(count) : 0;
}

void PseudoTerminal::AllowOthers() {
  ioctl(far_, TIOCNXCL);
}

void PseudoTerminal::Close() {
  if (near_ < 0) {
    return;
  }
  std::error_code error;
  if (!device_.empty() && std::filesystem::read_symlink(link_, error) == device_ && !error) {
    std::filesystem::remove(link_, error);
  }
  if (far_ >= 0) {
    close(far_);
  }
  close(near_);
  near_ = -1;
  far_ = -1;
}

}  // namespace virtual_module
