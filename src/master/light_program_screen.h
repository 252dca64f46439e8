// The screen of the light programmes of a master: what it does by itself when the light outside
// falls below a level, or rises above it.
#pragma once

#include "master/program_screen.h"

namespace bkconf {

class LightProgramScreenFields : public ProgramScreen {
 public:
  LightProgramScreenFields();

  OptionField lightToDark;
  OptionField darkToLight;
  GroupField levelGroup;
  LabelField levelLabel;
  ListField level;  ///< "01" to "50"
  LabelField darkEnd;
  LabelField lightEnd;

  /// Captions and handlers, once at start-up.
  void Load();

 protected:
  void ClearMoment() override;
  void ShowMoment(bool visible) override;
  bool IsMomentComplete() const override;
  void StoreMoment(int cell) override;
  void DrawMoment(int row, int cell, Drawing drawing) override;
};

inline LightProgramScreenFields LightProgramScreen;

void LoadLightProgramScreen();
void OpenLightProgramScreen();

}  // namespace bkconf
