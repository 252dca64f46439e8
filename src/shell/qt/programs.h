// Other programs, and the end of this one. The program puts it behind `OtherPrograms`.
#pragma once

#include "platform/machine.h"

namespace bkconf {

class QtPrograms : public Programs {
 public:
  bool Start(const std::string& fileName) override;
  /// The copy gets the settings directory of this process.
  bool StartThisProgram() override;
  void ShowWebPage(const std::string& address) override;
  void End() override;
};

}  // namespace bkconf
