// What opening and saving a configuration file costs: processor time of a whole open and save, and
// the speed of reader and writer beside a plain copy of the same bytes. Used by dev/bench.
// Argument: a directory to write in.
#include <sys/resource.h>

#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "image/configuration_file.h"
#include "platform/disk_files.h"

namespace bkconf {
namespace {

/// Of this process, on all its threads, in seconds.
double ProcessorTime() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Processor time of one run in seconds, over enough runs that the clock can tell.
double TimeOf(const std::function<void()>& work) {
  constexpr double enough = 0.5;
  work();
  int runs = 0;
  const double start = ProcessorTime();
  while (ProcessorTime() - start < enough) {
    for (int i = 0; i < 20; ++i) work();
    runs += 20;
  }
  return (ProcessorTime() - start) / runs;
}

void FillTables() {
  for (const FileBlock& block : MasterBlocks) {
    for (int index = 0; index <= block.last; ++index) (*block.table)[index] = (index * 7) % 256;
  }
}

void PrintSpeed(const char* what, std::size_t bytes, double seconds) {
  std::printf("%-18s%8.0f MB/s of processor time\n", what,
              static_cast<double>(bytes) / seconds / 1e6);
}

void Run(const std::string& directory) {
  FillTables();
  const std::string path = directory + "/bench.BK1";
  DiskFiles files;
  const std::string content = PrintConfiguration(MasterKind);
  const double save = TimeOf([&] { files.Write(path, PrintConfiguration(MasterKind)); });
  const double open = TimeOf([&] { ReadConfiguration(files.Load(path)); });
  std::printf("save, master      %8.3f ms of processor time, %zu bytes\n", save * 1e3,
              content.size());
  std::printf("open, master      %8.3f ms of processor time\n", open * 1e3);
  PrintSpeed("writer", content.size(), TimeOf([] { PrintConfiguration(MasterKind); }));
  PrintSpeed("reader", content.size(), TimeOf([&] { ReadConfiguration(content); }));
  std::vector<char> copy(content.size());
  volatile char seen = 0;
  PrintSpeed("plain copy", content.size(), TimeOf([&] {
               std::memcpy(copy.data(), content.data(), content.size());
               seen = copy[copy.size() / 2];
             }));
}

}  // namespace
}  // namespace bkconf

int main(int count, char** words) {
  if (count != 2) {
    std::fprintf(stderr, "usage: file_bench DIRECTORY\n");
    return 2;
  }
  bkconf::Run(words[1]);
}
