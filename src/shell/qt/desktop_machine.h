// All of the machine that the logic asks for, as the desktop has it. The programs with a window put
// it behind the logic's names.
#pragma once

#include "platform/disk_directories.h"
#include "platform/disk_files.h"
#include "platform/machine.h"
#include "platform/tick.h"
#include "shell/qt/message_boxes.h"
#include "shell/qt/programs.h"
#include "shell/qt/timer_driver.h"

namespace bkconf {

/// Stands behind the names from its making on, and has to live as long as they are used.
struct DesktopMachine {
  explicit DesktopMachine(SerialPort& port) {
    Port = &port;
    Messages = &boxes;
    FileSystem = &files;
    DirectorySystem = &directories;
    OtherPrograms = &programs;
    ActiveTickDriver = &driver;
  }
  DesktopMachine(const DesktopMachine&) = delete;
  DesktopMachine& operator=(const DesktopMachine&) = delete;

  QtMessageBoxes boxes;
  DiskFiles files;
  DiskDirectories directories;
  QtPrograms programs;
  TimerDriver driver;
};

}  // namespace bkconf
