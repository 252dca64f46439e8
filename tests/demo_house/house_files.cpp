#include "demo_house/house_files.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>

namespace demo_house_test {
namespace {

int NumberIn(const ImageFile& file, std::size_t line) {
  const std::string& text = file.lines.at(line);
  int number = 0;
  const char* const begin = text.data() + (text.empty() ? 0 : 1);
  const auto [end, error] = std::from_chars(begin, text.data() + text.size(), number);
  if (error != std::errc()) {
    throw std::runtime_error(file.name + ", line " + std::to_string(line + 1) + ": \"" + text +
                             "\" is no number");
  }
  return number;
}

std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (std::size_t end = 0; (end = bytes.find("\r\n", begin)) != std::string::npos;) {
    lines.push_back(bytes.substr(begin, end - begin));
    begin = end + 2;
  }
  return lines;
}

}  // namespace

int ImageFile::Kind() const {
  return NumberIn(*this, 0);
}

int ImageFile::At(int cell) const {
  return NumberIn(*this, static_cast<std::size_t>(cell) + 1);
}

std::string ImageFile::TextAt(int cell, int width) const {
  std::string text;
  for (int i = 0; i < width; ++i) {
    text += static_cast<char>(At(cell + i));
  }
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

void PrintTo(const ImageFile& file, std::ostream* out) {
  *out << file.name;
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error(path.string() + ": cannot be read");
  }
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<ImageFile> FilesIn(const std::filesystem::path& directory) {
  std::vector<ImageFile> files;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    if (entry.path().extension() == ".BK1") {
      files.push_back({entry.path().filename().string(), LinesOf(BytesOf(entry.path()))});
    }
  }
  std::sort(files.begin(), files.end(),
            [](const ImageFile& a, const ImageFile& b) { return a.name < b.name; });
  return files;
}

const std::vector<ImageFile>& House() {
  static const std::vector<ImageFile> files = FilesIn(DEMO_HOUSE_FILES);
  return files;
}

const ImageFile& FileOfKind(int kind) {
  const ImageFile* found = nullptr;
  for (const ImageFile& file : House()) {
    if (file.Kind() != kind) {
      continue;
    }
    if (found != nullptr) {
      throw std::runtime_error("two files of kind " + std::to_string(kind));
    }
    found = &file;
  }
  if (found == nullptr) {
    throw std::runtime_error("no file of kind " + std::to_string(kind));
  }
  return *found;
}

int AddressCell(int kind) {
  const std::map<int, int> special = {{2, 0}, {3, 0}, {9, -1}};
  const auto row = special.find(kind);
  return row == special.end() ? 121 : row->second;
}

int VersionCell(int kind) {
  const std::map<int, int> cells = {{0, 163}, {1, 163}, {2, 3},   {3, 1},   {4, 163}, {5, 148},
                                    {6, 123}, {7, 124}, {8, 124}, {9, 163}, {11, 163}};
  return cells.at(kind);
}

}  // namespace demo_house_test
