// A machine that notes what is asked of it, for the tests of the windows.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/machine.h"
#include "platform/runtime_error.h"
#include "shell/qt/message_boxes.h"
#include "shell/qt/timer_driver.h"

namespace bkconf {

class NotedPort : public SerialPort {
 public:
  void SetNumber(int chosen) override { number = chosen; }
  std::string DeviceOf(int port) const override { return port == 1 ? "tty1" : ""; }
  bool Open() override { return isOpen = opens; }
  void Close() override { isOpen = false; }
  bool IsOpen() const override { return isOpen; }
  int BytesWaiting() override { return 0; }
  void FlushInput() override {}
  std::optional<char> Read() override { return std::nullopt; }
  void Write(std::string_view) override {}

  int number = 0;
  bool opens = true;
  bool isOpen = false;
};

class NotedFiles : public Files {
 public:
  std::optional<std::string> Read(const std::string& path) const override {
    const auto file = contents.find(path);
    return file == contents.end() ? std::nullopt : std::optional(file->second);
  }
  std::string Load(const std::string& path) const override {
    const auto content = Read(path);
    if (!content) throw RuntimeError(ErrorKind::FileNotRead, path);
    return *content;
  }
  void Write(const std::string& path, std::string_view content) override {
    contents[path] = content;
  }

  std::map<std::string, std::string> contents;
};

/// Two drives with a few directories in the first.
class NotedDirectories : public Directories {
 public:
  std::vector<std::string> Drives() const override { return {"/", "/media/stick"}; }
  std::vector<std::string> FoldersIn(const std::string& path) const override {
    const auto found = folders.find(path);
    if (found == folders.end()) throw RuntimeError(ErrorKind::DirectoryNotRead, path);
    return found->second;
  }
  std::vector<std::string> FilesIn(const std::string& path, std::string_view) const override {
    const auto found = files.find(path);
    return found == files.end() ? std::vector<std::string>() : found->second;
  }
  bool Make(const std::string& path) override { return folders.try_emplace(path).second; }

  std::map<std::string, std::vector<std::string>> folders = {{"/", {"home", "media"}},
                                                             {"/home", {"jan", "mieke"}},
                                                             {"/home/jan", {}},
                                                             {"/media/stick", {}}};
  std::map<std::string, std::vector<std::string>> files;
};

class NotedPrograms : public Programs {
 public:
  bool Start(const std::string&) override { return false; }
  bool StartThisProgram() override { return true; }
  void ShowWebPage(const std::string&) override {}
  void End() override { ++ends; }

  int ends = 0;
};

/// All of the machine that the logic asks for, put behind the logic's own names.
struct StandIns {
  StandIns() {
    Port = &port;
    FileSystem = &files;
    DirectorySystem = &directories;
    OtherPrograms = &programs;
    Messages = &boxes;
    ActiveTickDriver = &driver;
  }

  NotedPort port;
  NotedFiles files;
  NotedDirectories directories;
  NotedPrograms programs;
  QtMessageBoxes boxes;
  TimerDriver driver;
};

}  // namespace bkconf
