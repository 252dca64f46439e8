#include "virtual_module/line_log.h"

#include <stdexcept>

namespace virtual_module {

std::string EscapedText(std::string_view text) {
  constexpr std::string_view hex = "0123456789ABCDEF";
  std::string escaped;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (character == '\r') {
      escaped += "\\r";
    } else if (character == '\n') {
      escaped += "\\n";
    } else if (character == '\\') {
      escaped += "\\\\";
    } else if (byte < 32 || byte > 126) {
      escaped += {'\\', 'x', hex[byte / 16U], hex[byte % 16U]};
    } else {
      escaped += character;
    }
  }
  return escaped;
}

std::string LogLine(const FrameRecord& record) {
  const bool fromModule = record.kind == UnitKind::Polls || record.kind == UnitKind::Line;
  std::string line = std::to_string(record.firstByte) + " " + std::to_string(record.lastByte) +
                     (fromModule ? " module " : " tool ") + EscapedText(record.text);
  if (record.kind == UnitKind::Polls) {
    line += " x " + std::to_string(record.count);
  }
  if (!record.meaning.empty()) {
    line += " = " + record.meaning;
  }
  return line;
}

LineLog::LineLog(const std::filesystem::path& path) : file_(path, std::ios::trunc) {
  if (!file_) {
    throw std::runtime_error(path.string() + ": cannot be written");
  }
}

void LineLog::Write(const Module& module) {
  const auto& received = module.received();
  const auto& sent = module.sent();
  while (received_ < received.size() || sent_ < sent.size()) {
    const bool takeSent =
        received_ == received.size() ||
        (sent_ < sent.size() && sent[sent_].lastByte <= received[received_].lastByte);
    WriteRecord(takeSent ? sent[sent_++] : received[received_++]);
  }
}

void LineLog::WriteOpenPolls(const Module& module) {
  if (module.openPolls()) {
    WriteRecord(*module.openPolls());
  }
}

void LineLog::WriteRecord(const FrameRecord& record) {
  file_ << LogLine(record) << std::endl;
}

}  // namespace virtual_module
