#include "services/design_authorities.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "archive_passwords.h"
#include "services/authority_form.h"
#include "support/failure_of.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct Authorities : testing::Test, TestSession {
  DesignAuthorities& authorities = session.authorities;
};

TEST_F(Authorities, AnswersForTheRuleTypeAndTheStaticValue) {
  authorities.Parse(
      "General,10P2,1,1,0\r\n\r\nNFPA,9P7,1,0,1\r\nFM,10P3,0,0,2\r\nOdd,10P31,x,,7\r\nShort\r\n"
      "Not counted,10P2,1,0,0");
  EXPECT_EQ(authorities.DesignAuthNumber(), 5);
  const std::tuple<const char*, int, float, bool> cases[] = {
      {"General", 1, 10.2F, false}, {"NFPA", 2, 9.7F, false},     {"FM", 3, 10.3F, false},
      {"Odd", 1, 10.0F, true},      {"Short", 1, 10.0F, true},    {"Not counted", 2, 10.0F, false},
      {"general", 2, 10.0F, false}, {" General", 2, 10.0F, false}};
  for (const auto& [name, type, value, tells] : cases) {
    dialogs.messages.clear();
    EXPECT_EQ(authorities.RuleType(name), type) << name;
    EXPECT_EQ(authorities.StaticValue(name), value) << name;
    EXPECT_EQ(dialogs.messages.size(), tells ? 1U : 0U) << name;
  }
  EXPECT_TRUE(authorities.HaveDesignAuthInList(" General "));
  EXPECT_FALSE(authorities.HaveDesignAuthInList("Not counted"));
}

TEST_F(Authorities, OffersShownRowsAndTheProjectsOwn) {
  authorities.Parse("A,10P2,1,0,0\r\nB,10P2,0,0,0\r\n");
  EXPECT_TRUE(authorities.DesignAuthInList("A", ""));
  EXPECT_FALSE(authorities.DesignAuthInList("B", "A"));
  EXPECT_TRUE(authorities.DesignAuthInList("B", "B"));
  EXPECT_FALSE(authorities.DesignAuthInList("C", "C"));
}

TEST_F(Authorities, AsksForADefaultWhenNoneIsSet) {
  EXPECT_EQ(authorities.DefaultDesignAuth(), "EN 12845 Rules");
  authorities.Parse("A,10P2,1,0,0\r\n");
  EXPECT_EQ(authorities.DefaultDesignAuth(), "");
  EXPECT_EQ(dialogs.Shown(), (Boxes{{"Error - Default Design Authority",
                                     "Please set the default design authority\r\n"
                                     "ZEB MENU : Tools -> Options ->  Design Authority"}}));
}

TEST_F(Authorities, ComesOutOfTheArchive) {
  EXPECT_FALSE(authorities.ReadArchive("/prog"));
  EXPECT_EQ(dialogs.messages.at(0).title, "Missing File Error");

  const std::string path = "/prog/DesignAuth_V2.dat";
  archive.Write(path, {{"DESIGNAUTH.CSV", "A,10P1,1,1,2\r\n"}}, design_auth_password);
  EXPECT_TRUE(authorities.ReadArchive("/prog"));
  EXPECT_EQ(authorities.StaticValue("A"), 10.1F);

  archive.Write(path, {{"other.csv", ""}}, design_auth_password);
  EXPECT_EQ(FailureOf([&] { authorities.ReadArchive("/prog"); }), 53);
}

TEST_F(Authorities, KeepsTheUsersChoiceForLaterRuns) {
  const std::string table = "A,10P2,1,1,0\r\nB,10P2,0,0,0\r\nC,10P2,1,0,0\r\n";
  authorities.Parse(table);
  Auth form(session);
  EXPECT_EQ(form.Rows()[1], (std::array<std::string, 3>{"B", "", ""}));
  form.MSFlexGrid1_Click(2);
  EXPECT_EQ(form.Rows()[2][1], "");
  dialogs.answers = {Answer::kNo, Answer::kYes};
  form.MSFlexGrid1_DblClick(1);
  EXPECT_EQ(form.Rows()[0][2], "Yes") << "not without consent";
  form.MSFlexGrid1_DblClick(1);
  EXPECT_EQ(form.Rows()[0][2], "");
  EXPECT_EQ(form.Rows()[1], (std::array<std::string, 3>{"B", "Yes", "Yes"}));
  EXPECT_EQ(dialogs.Titles()[0], "Design Authority - Default Valve");

  authorities.Parse(table);
  EXPECT_EQ(authorities.DefaultDesignAuth(), "B");
  EXPECT_TRUE(authorities.DesignAuthInList("B", ""));
  EXPECT_FALSE(authorities.DesignAuthInList("C", ""));
}

TEST_F(Authorities, TellsAClickBesideTheRows) {
  Auth form(session);
  form.MSFlexGrid1_Click(-1);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text,
            "Subscript out of range\r\nin ZEB.Auth.MSFlexGrid1_Click at line 10");
}

}  // namespace
}  // namespace zeb::test
