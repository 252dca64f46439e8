#include "session/language.h"

#include <gtest/gtest.h>

#include "support/session_test.h"

namespace bkconf {
namespace {

class LanguageTest : public SessionTest {
 protected:
  /// What stands in a caption after a text was put there.
  static std::string Shown(TextId id) {
    std::string caption = "before";
    Show(caption, id);
    return caption;
  }
};

TEST_F(LanguageTest, OneIsDutch) {
  Language = 1;
  EXPECT_EQ(Text(TextId::Connect), "Verbinden");
  EXPECT_EQ(Shown(TextId::Connect), "Verbinden");
}

TEST_F(LanguageTest, TwoIsFrench) {
  Language = 2;
  EXPECT_EQ(Text(TextId::Connect), "Connecter");
  EXPECT_EQ(Shown(TextId::Connect), "Connecter");
}

TEST_F(LanguageTest, TheLanguageIsChosenAtTheMomentATextIsShown) {
  Language = 1;
  std::string caption;
  Show(caption, TextId::Send);
  EXPECT_EQ(caption, "Versturen");
  Language = 2;
  EXPECT_EQ(caption, "Versturen");
  Show(caption, TextId::Send);
  EXPECT_EQ(caption, "Envoyer");
}

TEST_F(LanguageTest, ADigitTextCountsAsItsNumber) {
  Language = "2";
  EXPECT_EQ(Text(TextId::Connect), "Connecter");
}

TEST_F(LanguageTest, AnyOtherLanguageHasNoTextAndSetsNoCaption) {
  for (const Cell& language : {Cell(), Cell(0), Cell(3), Cell(-1), Cell(1.5), Cell("x")}) {
    Language = language;
    EXPECT_EQ(Text(TextId::Connect), "") << language.Text();
    EXPECT_EQ(Shown(TextId::Connect), "before") << language.Text();
  }
}

TEST_F(LanguageTest, ATextThatIsTheSameInBothNeedsNoLanguage) {
  for (const int language : {0, 1, 2, 3}) {
    Language = language;
    EXPECT_EQ(Shown(TextId::EditMode), "Edit mode") << language;
    EXPECT_EQ(Shown(TextId::WindowTitle), "TREVAN BK-CONF") << language;
  }
}

}  // namespace
}  // namespace bkconf
