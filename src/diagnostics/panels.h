// The panels of the live tests, each in a source file of its own. The screen of the tests loads,
// opens and leaves them.
#pragma once

namespace bkconf {

/// Captions and handlers, once at start-up.
void LoadLineTest();
void LoadButtonTest();
void LoadDetectorTest();
void LoadLightTest();
void LoadClockTest();
void LoadOutputTest();

/// Makes the fields of a panel those of a test that has not been started.
void OpenLineTest();
void OpenButtonTest();
void OpenDetectorTest();
void OpenLightTest();
void OpenClockTest();
void OpenOutputTest();

/// Ends what the panel of the clocks still does.
void LeaveClockTest();

}  // namespace bkconf
