// One write command on its way into the memory: takes the tool's characters, cuts them into frames
// and fills block after block. Used by the module model only.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "virtual_module/frame_record.h"
#include "virtual_module/memory.h"

namespace virtual_module {

class WriteChain {
 public:
  // The kind must know `command` as a write. Frames are stored in `memory` and recorded in
  // `records`; both must outlive the chain.
  WriteChain(std::string_view command, Memory& memory, std::vector<FrameRecord>& records);

  void Receive(char character, std::int64_t now);

  // Records what stands of a frame that will not be completed.
  void BreakOff();

  // The last cell of the last block has been filled, or the list has ended before it.
  bool finished() const { return block_ == rows_.size(); }
  int frames() const { return frames_; }  // taken so far, with or without an error
  int frameCount() const;                 // of the whole chain, without an early end

 private:
  bool IsComplete() const;
  void Complete(std::string error);
  void Take(FrameRecord& record);
  void Store(FrameRecord& record);
  std::string FormError(std::string_view value, bool lineEnd) const;
  void Advance(int cell);

  std::string command_;
  Memory& memory_;
  std::vector<FrameRecord>& records_;
  std::span<const WriteRow> rows_;
  std::size_t block_ = 0;
  int due_ = 0;  // index of the next frame in its block
  int frames_ = 0;
  std::string text_;
  std::int64_t firstByte_ = 0;
  std::int64_t lastByte_ = 0;
};

}  // namespace virtual_module
