// The codes of the module kinds, and sets of them for the rows of the data tables.
#pragma once

#include <initializer_list>

namespace bkconf {

/// What the tool calls a kind where it asks for just that one.
inline constexpr int RelayKind = 0;
inline constexpr int DimKind = 1;
inline constexpr int TemperatureKind = 2;
inline constexpr int DisplayKind = 3;
inline constexpr int RelayDcKind = 4;
inline constexpr int AlarmKind = 5;
inline constexpr int AudioKind = 6;
inline constexpr int SimulationKind = 7;
inline constexpr int IrKind = 8;
inline constexpr int MasterKind = 9;
inline constexpr int LumenzaKind = 11;

/// Kinds are the codes 0 to 9 and 11; any other number is in no set.
class KindSet {
 public:
  constexpr KindSet() = default;
  constexpr KindSet(std::initializer_list<int> kinds) {
    for (const int kind : kinds) bits_ |= 1U << kind;
  }
  constexpr bool Contains(int kind) const {
    return kind >= 0 && kind < 16 && (bits_ >> kind & 1U) != 0;
  }

 private:
  unsigned bits_ = 0;
};

inline constexpr KindSet EveryKind{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11};
/// The relay and dimmer modules.
inline constexpr KindSet OutputKinds{RelayKind, DimKind, RelayDcKind, LumenzaKind};
/// The modules that know live tests.
inline constexpr KindSet TestedKinds{RelayKind, DimKind,    RelayDcKind,
                                     AlarmKind, MasterKind, LumenzaKind};

}  // namespace bkconf
