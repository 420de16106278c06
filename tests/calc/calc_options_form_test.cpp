#include "calc/calc_options_form.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "made_network.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

using Fields = std::array<std::string, 4>;

// A head of 9 m2 at node 12 and node 20 without one, with the limits of a first start.
struct Options : TestSession {
  Options() {
    MadeNetwork network(project);
    network.Pipe(1, 20, 3, 10.0F);
    network.Head(network.Pipe(20, 12, 1, 5.0F), 80.0F, 9.0F, 5.0F, 0.35F);
    ItemText(project, Item::kDesignArea) = "9";
    ItemText(project, Item::kAreaReference) = "Most Unfavourable";
    project.TotalHeadArea = 9.0F;
    project.MinNode = 1;
    project.MaxNode = 20;
    project.maxVel = 6.0F;
    project.maxPD = 1.0F;
  }
};

TEST(CalcOptionsFormTest, OpensWithWhatIsInForce) {
  Options t;
  const CalcOptionsForm form(t.session);
  EXPECT_EQ(form.ComWaterSupply, "None");
  EXPECT_EQ(form.ComWaterSupplyList, Texts{"None"});
  EXPECT_EQ(form.ot, (Fields{"0.0", "6.0", "1.0", ""}));
  EXPECT_TRUE(form.chkFind_MRH);
  EXPECT_FALSE(form.NodeEnabled);
  EXPECT_EQ(form.lblDensity, "5.00 mm/min over 9.000 m2");
  EXPECT_EQ(form.lblDesignArea, "Most Unfavourable");
  EXPECT_FALSE(form.DesignAreaRed);
}

TEST(CalcOptionsFormTest, TellsWhenTheAreaDoesNotFit) {
  const struct {
    const char* specified;
    int mode, curve;
    const char* note;
  } cases[] = {{"9.5", 0, 0, "But 9.500 m2 specified"},
               {"8", 0, 0, ""},
               {"8", 0, 2, "Pump curve specified"},
               {"9", 0, 2, ""},
               {"8", 1, 2, "But 8.000 m2 specified"}};
  for (const auto& c : cases) {
    Options t;
    ItemText(t.project, Item::kDesignArea) = c.specified;
    t.project.SelectedHeadsMode = c.mode;
    t.project.SelectedArea = 4.5F;
    t.project.PumpCurveIndex = c.curve;
    const CalcOptionsForm form(t.session);
    EXPECT_EQ(form.lblAreaNote, c.note) << c.specified;
    EXPECT_EQ(form.DesignAreaRed, !form.lblAreaNote.empty()) << c.specified;
  }
}

TEST(CalcOptionsFormTest, KeepsWhatWasTypedAndCorrectsWhatCounts) {
  const struct {
    Fields typed;  // as the settings keep it, too
    float min_vel_used, max_vel_used, max_pd_used;
  } cases[] = {{{"0.5", "6", "1"}, 0.5F, 6.0F, 1.0F},     {{"6", "6", "0.1"}, 6.0F, 6.0F, 0.1F},
               {{"6.5", "6", "1"}, 0.0F, 6.0F, 1.0F},     {{"0", "119", "2"}, 0.0F, 119.0F, 2.0F},
               {{"0", "120", "2"}, 0.0F, 120.0F, 119.0F}, {{"0", "6", "0.05"}, 0.0F, 6.0F, 0.1F}};
  for (const auto& c : cases) {
    Options t;
    CalcOptionsForm form(t.session);
    form.ot = c.typed;
    form.OK_Click();
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(t.project.minVel, c.min_vel_used) << c.typed[0];
    EXPECT_EQ(t.project.maxVel, c.max_vel_used) << c.typed[1];
    EXPECT_EQ(t.project.maxPD, c.max_pd_used) << c.typed[2];
    Settings& settings = t.session.settings;
    EXPECT_EQ(settings.GetIniValue("CalcOptions", "minVel", ""), c.typed[0]);
    EXPECT_EQ(settings.GetIniValue("CalcOptions", "maxVel", ""), c.typed[1]);
    EXPECT_EQ(settings.GetIniValue("CalcOptions", "maxPD", ""), c.typed[2]);
  }
  EXPECT_EQ(CalcOptionsForm::ot_KeyPress(','), '.');
}

TEST(CalcOptionsFormTest, TakesAHeadsNodeOrNone) {
  const struct {
    const char* node;
    bool accepted;
    int head;
  } cases[] = {{"12", true, 1}, {" 12 ", true, 1},  {"", true, 0},    {"0", true, 0},
               {"21", true, 0}, {"40000", true, 0}, {"13", false, 0}, {"20", false, 0}};
  for (const auto& c : cases) {
    Options t;
    CalcOptionsForm form(t.session);
    form.ot[3] = c.node;
    form.OK_Click();
    EXPECT_EQ(form.Accepted(), c.accepted) << c.node;
    EXPECT_EQ(t.project.ChosenMrHead, c.head) << c.node;
    EXPECT_EQ(t.shell.closed_forms.size(), c.accepted ? 1U : 0U) << c.node;
    if (c.accepted) continue;
    EXPECT_EQ(form.ot[3], "") << c.node;
    ASSERT_EQ(t.dialogs.messages.size(), 1U) << c.node;
    EXPECT_EQ(t.dialogs.messages[0].title, "Incorrect most remotest head node number");
    EXPECT_EQ(t.dialogs.messages[0].text,
              "The node number " + std::string(c.node) + " has not been specified - please retype");
  }
}

TEST(CalcOptionsFormTest, ChoosesHowTheRemotestHeadIsFound) {
  Options t;
  CalcOptionsForm form(t.session);
  form.chkNo_MRH = true;
  form.chkNo_MRH_Click();
  EXPECT_EQ(form.ot[3], "0");
  EXPECT_FALSE(form.chkFind_MRH || form.NodeEnabled);
  form.chkNo_MRH = false;
  form.chkNo_MRH_Click();
  EXPECT_TRUE(form.NodeEnabled);
  form.chkFind_MRH = true;
  form.chkFind_MRH_Click();
  EXPECT_EQ(form.ot[3], "");

  t.project.MrNodeText = "12";
  EXPECT_EQ(CalcOptionsForm(t.session).ot[3], "12");
  t.project.MrNodeText = "13";  // of another project
  EXPECT_EQ(CalcOptionsForm(t.session).ot[3], "");
}

TEST(CalcOptionsFormTest, StoresTheTextsInTheProject) {
  Options t;
  CalcOptionsForm unchanged(t.session);
  unchanged.OK_Click();
  EXPECT_EQ(t.project.DataChanged, 0);
  CalcOptionsForm form(t.session);
  form.ComWaterSupply = "Pump";
  form.txtComment = "RF=0.7";
  form.chkPartSave = true;
  form.OK_Click();
  EXPECT_EQ(ItemText(t.project, Item::kSupply), "Pump");
  EXPECT_EQ(ItemText(t.project, Item::kComments), "RF=0.7");
  EXPECT_EQ(t.project.PartSave, 1);
  EXPECT_EQ(t.project.DataChanged, 1);
}

}  // namespace
}  // namespace zeb::test
