#include "special/menu_category.h"

#include <gtest/gtest.h>

#include <string>

namespace bkconf {
namespace {

struct Expected {
  int code;
  std::string dutch, french;
  char first, last;
  int highest;
  std::string keyADutch, keyAFrench, keyBDutch, keyBFrench;
};

const Expected Rows[] = {
    {2, "Verlichting DIM", "Eclairage DIM", 'A', 'R', 4, "+10", "+10", "-10", "-10"},
    {3, "Verlichting AAN/UIT", "Eclairage ON/OFF", 'A', 'R', 12, "AAN", "ON", "UIT", "OFF"},
    {4, "Verbruikers", "Prises", 'A', 'R', 12, "AAN", "ON", "UIT", "OFF"},
    {5, "Automatisaties", "Automatisation", 'A', 'R', 12, "OP", "HAUT", "NEER", "BAS"},
    {6, "Verwarming", "Chauffage", 'A', 'R', 8, "+1", "+1", "-1", "-1"},
    {7, "Sferen", "Contexte", 'S', 'S', 50, "Act", "Act", "  ", "  "},
};

TEST(MenuCategoryTest, TheSixCategoriesInTheirOrder) {
  ASSERT_EQ(MenuCategories.size(), std::size(Rows));
  for (std::size_t i = 0; i < std::size(Rows); ++i) {
    const MenuCategory& category = MenuCategories[i];
    const Expected& row = Rows[i];
    EXPECT_EQ(category.code, row.code);
    EXPECT_EQ(TextOf(category.name).dutch, row.dutch);
    EXPECT_EQ(TextOf(category.name).french, row.french);
    EXPECT_EQ(category.firstLetter, row.first) << row.dutch;
    EXPECT_EQ(category.lastLetter, row.last) << row.dutch;
    EXPECT_EQ(category.highestOutput, row.highest) << row.dutch;
    EXPECT_EQ(TextOf(category.keyA).dutch, row.keyADutch);
    EXPECT_EQ(TextOf(category.keyA).french, row.keyAFrench);
    EXPECT_EQ(TextOf(category.keyB).dutch, row.keyBDutch);
    EXPECT_EQ(TextOf(category.keyB).french, row.keyBFrench);
  }
  EXPECT_EQ(AutomationCode, 5);
}

TEST(MenuCategoryTest, ACodeOrATextOfEitherLanguageFindsItsCategory) {
  for (std::size_t i = 0; i < std::size(Rows); ++i) {
    EXPECT_EQ(CategoryOfCode(Rows[i].code), &MenuCategories[i]);
    EXPECT_EQ(CategoryOfCode(std::to_string(Rows[i].code)), &MenuCategories[i]);
    EXPECT_EQ(CategoryNamed(Rows[i].dutch), &MenuCategories[i]);
    EXPECT_EQ(CategoryNamed(Rows[i].french), &MenuCategories[i]);
  }
}

TEST(MenuCategoryTest, WhatIsNoCategoryFindsNone) {
  for (const Cell& code : {Cell(), Cell(0), Cell(1), Cell(8), Cell(255), Cell(-2), Cell(2.5),
                           Cell("word"), Cell("Sferen")}) {
    EXPECT_EQ(CategoryOfCode(code), nullptr) << code.Text();
  }
  for (const char* name : {"", " ", "sferen", "Sferen ", "Verlichting", "7"}) {
    EXPECT_EQ(CategoryNamed(name), nullptr) << name;
  }
}

}  // namespace
}  // namespace bkconf
