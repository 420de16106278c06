#include "services/design_authorities.h"

#include <gtest/gtest.h>

#include <string>

#include "archive_passwords.h"
#include "services/authority_form.h"
#include "support/failure_of.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

TEST(DesignAuthoritiesTest, AnswersForTheRuleTypeAndTheStaticValue) {
  TestSession test;
  DesignAuthorities& authorities = test.session.authorities;
  authorities.Parse(
      "General,10P2,1,1,0\r\n\r\nNFPA,9P7,1,0,1\r\nFM,10P3,0,0,2\r\nOdd,10P31,x,,7\r\nShort\r\n"
      "Not counted,10P2,1,0,0");
  EXPECT_EQ(authorities.DesignAuthNumber(), 5);
  const struct {
    const char* name;
    int type;
    float value;
    bool box;
  } cases[] = {
      {"General", 1, 10.2F, false}, {"NFPA", 2, 9.7F, false},      {"FM", 3, 10.3F, false},
      {"Odd", 1, 10.0F, true},      {"Short", 1, 10.0F, true},     {"Not counted", 2, 10.0F, false},
      {"general", 2, 10.0F, false}, {" General", 2, 10.0F, false},
  };
  for (const auto& c : cases) {
    test.dialogs.messages.clear();
    EXPECT_EQ(authorities.RuleType(c.name), c.type) << c.name;
    EXPECT_EQ(authorities.StaticValue(c.name), c.value) << c.name;
    EXPECT_EQ(test.dialogs.messages.size(), c.box ? 1U : 0U) << c.name;
  }
  EXPECT_TRUE(authorities.HaveDesignAuthInList(" General "));
  EXPECT_FALSE(authorities.HaveDesignAuthInList("Not counted"));
}

TEST(DesignAuthoritiesTest, OffersShownRowsAndTheProjectsOwn) {
  TestSession test;
  DesignAuthorities& authorities = test.session.authorities;
  authorities.Parse("A,10P2,1,0,0\r\nB,10P2,0,0,0\r\n");
  EXPECT_TRUE(authorities.DesignAuthInList("A", ""));
  EXPECT_FALSE(authorities.DesignAuthInList("B", "A"));
  EXPECT_TRUE(authorities.DesignAuthInList("B", "B"));
  EXPECT_FALSE(authorities.DesignAuthInList("C", "C"));
}

TEST(DesignAuthoritiesTest, AsksForADefaultWhenNoneIsSet) {
  TestSession test;
  EXPECT_EQ(test.session.authorities.DefaultDesignAuth(), "EN 12845 Rules");
  test.session.authorities.Parse("A,10P2,1,0,0\r\n");
  EXPECT_EQ(test.session.authorities.DefaultDesignAuth(), "");
  ASSERT_EQ(test.dialogs.messages.size(), 1U);
  EXPECT_EQ(test.dialogs.messages[0].title, "Error - Default Design Authority");
  EXPECT_EQ(test.dialogs.messages[0].text,
            "Please set the default design authority\r\n"
            "ZEB MENU : Tools -> Options ->  Design Authority");
}

TEST(DesignAuthoritiesTest, ComesOutOfTheArchive) {
  TestSession test;
  EXPECT_FALSE(test.session.authorities.ReadArchive("/prog"));
  EXPECT_EQ(test.dialogs.messages.at(0).title, "Missing File Error");

  const std::string path = "/prog/DesignAuth_V2.dat";
  test.archive.Write(path, {{"DESIGNAUTH.CSV", "A,10P1,1,1,2\r\n"}}, design_auth_password);
  EXPECT_TRUE(test.session.authorities.ReadArchive("/prog"));
  EXPECT_EQ(test.session.authorities.StaticValue("A"), 10.1F);

  test.archive.Write(path, {{"other.csv", ""}}, design_auth_password);
  EXPECT_EQ(FailureOf([&] { test.session.authorities.ReadArchive("/prog"); }), 53);
}

TEST(AuthFormTest, KeepsTheUsersChoiceForLaterRuns) {
  TestSession test;
  const std::string table = "A,10P2,1,1,0\r\nB,10P2,0,0,0\r\nC,10P2,1,0,0\r\n";
  test.session.authorities.Parse(table);
  Auth form(test.session);
  EXPECT_EQ(form.Rows()[1], (std::array<std::string, 3>{"B", "", ""}));
  form.MSFlexGrid1_Click(2);
  EXPECT_EQ(form.Rows()[2][1], "");
  test.dialogs.answers = {Answer::kNo, Answer::kYes};
  form.MSFlexGrid1_DblClick(1);
  EXPECT_EQ(form.Rows()[0][2], "Yes") << "not without consent";
  form.MSFlexGrid1_DblClick(1);
  EXPECT_EQ(form.Rows()[0][2], "");
  EXPECT_EQ(form.Rows()[1], (std::array<std::string, 3>{"B", "Yes", "Yes"}));
  EXPECT_EQ(test.dialogs.Titles()[0], "Design Authority - Default Valve");

  test.session.authorities.Parse(table);
  EXPECT_EQ(test.session.authorities.DefaultDesignAuth(), "B");
  EXPECT_TRUE(test.session.authorities.DesignAuthInList("B", ""));
  EXPECT_FALSE(test.session.authorities.DesignAuthInList("C", ""));
}

TEST(AuthFormTest, TellsAClickBesideTheRows) {
  TestSession test;
  Auth form(test.session);
  form.MSFlexGrid1_Click(-1);
  ASSERT_EQ(test.dialogs.messages.size(), 1U);
  EXPECT_EQ(test.dialogs.messages[0].text,
            "Subscript out of range\r\nin ZEB.Auth.MSFlexGrid1_Click at line 10");
}

}  // namespace
}  // namespace zeb::test
