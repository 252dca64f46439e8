// The screen of the time programmes of a master: what it does by itself at which hour, on a day of
// the week, every day or on a date.
#pragma once

#include "master/program_screen.h"

namespace bkconf {

class TimeProgramScreenFields : public ProgramScreen {
 public:
  TimeProgramScreenFields();

  LabelField timeLabel;
  ListField time;  ///< every five minutes, up to 23:50
  LabelField dayLabel;
  ListField day;
  CalendarField calendar;  ///< for a programme on a date

  /// Captions and handlers, once at start-up.
  void Load();

 protected:
  void ClearMoment() override;
  void ShowMoment(bool visible) override;
  bool IsMomentComplete() const override;
  void StoreMoment(int cell) override;
  void DrawMoment(int row, int cell, Drawing drawing) override;

 private:
  void PickDay();
  void PickDate();
  void AskDate(bool asks);
};

inline TimeProgramScreenFields TimeProgramScreen;

void LoadTimeProgramScreen();
void OpenTimeProgramScreen();

}  // namespace bkconf
