#include "special/menu_category.h"

#include <algorithm>

namespace bkconf {
namespace {

template <typename Test>
const MenuCategory* Find(Test test) {
  const auto category = std::find_if(MenuCategories.begin(), MenuCategories.end(), test);
  return category == MenuCategories.end() ? nullptr : &*category;
}

}  // namespace

const MenuCategory* CategoryOfCode(const Cell& code) {
  return Find([&code](const MenuCategory& each) { return code.Number() == each.code; });
}

const MenuCategory* CategoryNamed(std::string_view name) {
  return Find([name](const MenuCategory& each) {
    return name == TextOf(each.name).dutch || name == TextOf(each.name).french;
  });
}

}  // namespace bkconf
