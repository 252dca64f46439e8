#include "image/module_kinds.h"

#include <algorithm>

namespace bkconf {

const ModuleKind* FindKind(int code) {
  const auto kind = std::find_if(ModuleKinds.begin(), ModuleKinds.end(),
                                 [code](const ModuleKind& each) { return each.code == code; });
  return kind == ModuleKinds.end() ? nullptr : &*kind;
}

const Model* FindModel(std::string_view name) {
  const auto model = std::find_if(Models.begin(), Models.end(),
                                  [name](const Model& each) { return each.name == name; });
  return model == Models.end() ? nullptr : &*model;
}

int CodeOf(const Cell& type) {
  return type.IsNumber() && type.Number() == type.Whole() ? type.Whole() : NoModule;
}

std::string VersionText(const Cell& version) {
  const std::string digits = PlainText(version.Number());
  return {digits.front(), '.', digits.back()};
}

}  // namespace bkconf
