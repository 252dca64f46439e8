// Under which light and at which hours something happens: the fields of these conditions and the
// cells behind them. The screens of the detectors and of the simulation hold one each.
#pragma once

#include <array>
#include <string>

#include "image/table.h"
#include "platform/field.h"
#include "text/text.h"

namespace bkconf {

/// Where the conditions lie: five cells for the light and the two periods, and one that joins light
/// and time.
struct ConditionCells {
  Table* table = nullptr;
  int light = 0;    ///< darker than a level of 1 to 50; 60 for no condition
  int joining = 0;  ///< 1 when both must hold, 0 when one is enough

  /// 0 to 23. Of a period that is none it is 0, and the next 25.
  Cell& From(int period) const { return (*table)[light + 1 + 2 * period]; }
  Cell& To(int period) const { return (*table)[light + 2 + 2 * period]; }  ///< 1 to 24
  Cell& Light() const { return (*table)[light]; }
  Cell& Joining() const { return (*table)[joining]; }
};

/// Hours of the day between which a condition holds.
struct PeriodFields {
  PeriodFields(Screen& screen, const std::string& name);

  LabelField label;
  CheckField none;
  LabelField fromLabel;
  ListField from;
  LabelField toLabel;
  ListField to;
};

class ConditionFields {
 public:
  explicit ConditionFields(Screen& screen);
  ConditionFields(const ConditionFields&) = delete;
  ConditionFields& operator=(const ConditionFields&) = delete;

  CheckField noCondition;
  GroupField lightGroup;
  CheckField noLight;
  LabelField levelLabel;
  ListField level;
  GroupField timeGroup;
  std::array<PeriodFields, 2> periods;
  OptionField both;  ///< light and time must hold
  OptionField either;

  /// Captions, lists and handlers, once at start-up. Every change of a cell gives the signal.
  void Load(TextId levelCaption);
  /// Shows what these cells hold, and works on them from here on.
  void Fill(const ConditionCells& cells);
  /// Nothing to set: all fields empty and disabled.
  void Close();

 private:
  void EnableFields();
  void ShowLight();
  void ShowPeriod(int period);
  void ShowJoining();
  bool HoldsNone() const;
  void ClearPeriod(int period);
  void ChangeNoCondition();
  void ChangeNoLight();
  void ChangeNoPeriod(int period);
  void PickLevel();
  void PickFrom(int period);
  void PickTo(int period);
  void Join(int joining);

  ConditionCells cells_;
  bool open_ = false;
};

}  // namespace bkconf
