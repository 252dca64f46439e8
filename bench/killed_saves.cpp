// Kills a program that saves, at random moments, 200 times, and looks what stands on the disk then:
// each time it has to be one of the two files that were being saved, whole. Used by dev/bench.
// Argument: a directory to write in. Ends with 1 when a file is torn.
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <thread>

#include "image/configuration_file.h"
#include "platform/disk_files.h"

namespace bkconf {
namespace {

constexpr int Kills = 200;

/// A whole file of a master with the same number in every cell.
std::string FileOf(int number) {
  for (const FileBlock& block : MasterBlocks) {
    for (int index = 0; index <= block.last; ++index) (*block.table)[index] = number;
  }
  return PrintConfiguration(9);
}

/// Saves the two in turn until it is killed.
[[noreturn]] void SaveForEver(const std::string& path, const std::string& one,
                              const std::string& other) {
  DiskFiles files;
  for (;;) {
    files.Write(path, one);
    files.Write(path, other);
  }
}

struct Tally {
  int one = 0;
  int other = 0;
  int torn = 0;
};

void KillOnce(const std::string& path, const std::string& one, const std::string& other,
              std::chrono::microseconds moment, Tally& tally) {
  const pid_t saver = fork();
  if (saver == 0) SaveForEver(path, one, other);
  std::this_thread::sleep_for(moment);
  kill(saver, SIGKILL);
  int status = 0;
  waitpid(saver, &status, 0);
  if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL) {
    std::fprintf(stderr, "killed_saves: nothing was saved\n");
    std::exit(1);
  }
  const std::string found = DiskFiles().Load(path);
  ++(found == one ? tally.one : found == other ? tally.other : tally.torn);
}

int Run(const std::string& directory) {
  const std::string path = directory + "/killed.BK1";
  const std::string one = FileOf(1);
  const std::string other = FileOf(222);
  DiskFiles().Write(path, one);
  std::mt19937 random(std::random_device{}());
  std::uniform_int_distribution<int> moment(100, 20'000);
  Tally tally;
  for (int i = 0; i < Kills; ++i) {
    KillOnce(path, one, other, std::chrono::microseconds(moment(random)), tally);
  }
  std::printf("killed saves      %d: %d left the one file, %d the other, %d a torn one\n", Kills,
              tally.one, tally.other, tally.torn);
  return tally.torn == 0 ? 0 : 1;
}

}  // namespace
}  // namespace bkconf

int main(int count, char** words) {
  if (count != 2) {
    std::fprintf(stderr, "usage: killed_saves DIRECTORY\n");
    return 2;
  }
  return bkconf::Run(words[1]);
}
