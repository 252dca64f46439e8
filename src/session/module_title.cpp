#include "session/module_title.h"

#include "session/language.h"

namespace bkconf {
std::string ModuleTitle() {
  const ModuleKind* kind = ActiveKind();
  if (kind == nullptr) return {};
  std::string title = Say(kind->title);
  if (kind->address.table != nullptr) title += OwnLetter() + ">";
  return title;
}

}  // namespace bkconf
