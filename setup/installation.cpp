#include "setup/installation.h"

#include <chrono>
#include <random>
#include <string>

#include "image/cell.h"
#include "platform/disk_files.h"
#include "setup/busy_loop_speed.h"

namespace setup {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view LineEnd = "\r\n";
constexpr auto CharacterPause = std::chrono::milliseconds(2);

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

void WriteMissing(const fs::path& file, const std::string& value) {
  if (fs::exists(fs::symlink_status(file))) return;
  bkconf::DiskFiles().Write(Utf8(file), value + std::string(LineEnd));
}

/// `place` is where the files go now, `directory` where they will lie.
void Fill(const fs::path& place, const fs::path& directory, const Installation& installation) {
  for (const fs::path& folder : installation.folders) {
    if (!fs::is_directory(folder)) continue;
    for (const auto& file : fs::directory_iterator(folder)) {
      if (file.is_regular_file()) {
        fs::copy_file(file, place / file.path().filename(), fs::copy_options::skip_existing);
      }
    }
  }
  // The settings come last: a session waits for them.
  if (!fs::exists(place / "pc.vdm")) {
    WriteMissing(place / "pc.vdm", std::to_string(TurnsOf(CharacterPause)));
  }
  WriteMissing(place / "port.vdm", std::to_string(installation.port));
  WriteMissing(place / "directory.vdm", Utf8(directory));
  WriteMissing(place / "country.vdm", bkconf::Cell(installation.language).PrintForm());
}

/// A name that no other run uses, beside the directory, so that it can be renamed to it.
fs::path Beside(const fs::path& directory) {
  fs::path name = directory;
  name += ".new-" + std::to_string(std::random_device()());
  return name;
}

}  // namespace

void LayOut(const fs::path& directory, const Installation& installation) {
  const fs::path place = fs::absolute(directory).lexically_normal();
  const fs::path target = place.has_filename() ? place : place.parent_path();
  if (fs::exists(target)) {
    Fill(target, target, installation);
    return;
  }
  fs::create_directories(target.parent_path());
  const fs::path beside = Beside(target);
  try {
    fs::create_directory(beside);
    Fill(beside, target, installation);
    fs::rename(beside, target);
  } catch (...) {
    std::error_code ignored;
    fs::remove_all(beside, ignored);
    throw;
  }
}

}  // namespace setup
