// The detectors of an alarm module: their contacts, what they measure, and the levels and codes
// they are compared with. Used by the module model and by tests that look at what a module took
// over.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "virtual_module/chance.h"

namespace virtual_module {

inline constexpr int detectorCount = 12;

// The reference of a detector is its level, times ten times the tens of the code where those are
// not 0. The ones of the code say which side of it is the alarm: 0 below, else above.
struct Detector {
  bool open = false;  // the contact: open is the alarm
  int level = 0;      // 0..999, as on the line
  int code = 0;       // 0..99
  friend bool operator==(const Detector&, const Detector&) = default;
};

class Detectors {
 public:
  // Contacts closed, levels and codes out of `chance`.
  explicit Detectors(Chance& chance);

  const std::array<Detector, detectorCount>& all() const { return detectors_; }

  // `index` is 0..11 in all of these; anything else throws std::out_of_range.
  void SetContact(int index, bool open);
  void SetReference(int index, int level, int code);

  // What a line says of a detector, from its index on.
  std::string ShortText(int index) const;
  std::string LongText(int index, Chance& chance) const;

 private:
  int Measure(const Detector& detector, Chance& chance) const;

  std::array<Detector, detectorCount> detectors_;
};

}  // namespace virtual_module
