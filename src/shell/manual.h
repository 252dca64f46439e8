// The manuals: a document over the whole window, in the language of the session. The main window's
// info buttons open them.
#pragma once

namespace bkconf {

/// Gives the info buttons and the close button something to do, once at start-up.
void LoadManuals();
/// Shows the manual of the model in the selection list; `number` counts the model's manuals from 0.
/// A file that is missing shows nothing.
void ShowManual(int number);
/// What the button "Sluiten" / "Fermer" does: shows again what the manual had hidden. Does nothing
/// while no manual is shown.
void CloseManual();

}  // namespace bkconf
