// Message boxes on the desktop. The program puts them behind `Messages`; the event guard shows
// errors with them.
#pragma once

#include <QMessageBox>

#include "platform/machine.h"

namespace bkconf {

/// Shows a box with one button, modal to the program, and returns at once; no loop of its own runs.
/// The box deletes itself when it is closed.
QMessageBox* ShowBox(QMessageBox::Icon icon, const QString& text, const QString& details = {});

class QtMessageBoxes : public MessageBoxes {
 public:
  void Tell(const std::string& text) override;
  void Ask(const std::string& title, const std::string& text,
           std::function<void(bool)> answer) override;
};

}  // namespace bkconf
