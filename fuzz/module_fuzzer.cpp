// Feeds the virtual module of any kind, whole or with a fault, with characters that no tool would
// send. Whatever comes, its memory keeps its shape, its cells stay within what a frame can carry,
// and time goes on. Built with libFuzzer by dev/fuzz. The first two bytes of an input choose kind
// and fault. Of the rest a byte below 128 is a character, and another one a wait.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>

#include "virtual_module/module.h"

namespace virtual_module {
namespace {

constexpr int highestCell = 999;          // three digits
constexpr std::int64_t character = 1042;  // us on the line
constexpr std::uint8_t firstWait = 128;
constexpr std::int64_t waitStep = 400;  // us; the longest of its squares is 6.5 s

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

const Memory& StartOf(int kind) {
  static std::map<int, Memory> memories;
  const auto known = memories.find(kind);
  if (known != memories.end()) return known->second;
  return memories.emplace(kind, DefaultMemory(kind, 1)).first->second;
}

void RequireShape(const Module& module, const Memory& before) {
  const auto& tables = module.memory().tables();
  Require(tables.size() == before.tables().size(), "the tables stay");
  for (std::size_t i = 0; i < tables.size(); ++i) {
    Require(tables[i].cells.size() == before.tables()[i].cells.size(), "their sizes stay");
    for (const int cell : tables[i].cells) {
      Require(cell >= 0 && cell <= highestCell, "a cell holds what a frame can carry");
    }
  }
}

void Talk(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return;
  const auto kinds = Kinds();
  const int kind = kinds[data[0] % kinds.size()].kind;
  const auto faults = Faults();
  const std::size_t fault = data[1] % (faults.size() + 1);
  const Memory& before = StartOf(kind);
  Module module(
      {.kind = kind,
       .memory = before,
       .fault = fault < faults.size() ? std::optional(faults[fault].fault) : std::nullopt});
  std::int64_t now = 0;
  for (std::size_t i = 2; i < size; ++i) {
    if (data[i] < firstWait) {
      now += character;
      module.Receive(data[i], now);
    } else {
      const std::int64_t steps = data[i] - firstWait;
      now += waitStep * steps * steps;
    }
    module.Run(now);
    const auto due = module.NextDue();
    Require(!due || *due >= now, "what was due has been done");
  }
  RequireShape(module, before);
}

}  // namespace
}  // namespace virtual_module

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  virtual_module::Talk(data, size);
  return 0;
}
