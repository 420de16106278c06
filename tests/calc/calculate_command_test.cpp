// What the user picks before a calculation, and its options.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "calc/calc_options_form.h"
#include "calc/calculate_command.h"
#include "calc/part_save.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// Three heads of 9 m2 at nodes 11 to 13, which stand at (100, 100), (200, 100) and (300, 100) in
// the picture. The options dialog of a calculation notes what it finds and gives up.
struct CalculateCommand : testing::Test, TestSession {
  CalculateCommand() {
    MadeNetwork network(project);
    for (int head = 1; head <= 3; ++head) {
      const int pipe = network.Pipe(head == 1 ? 1 : 9 + head, 10 + head, 3, 3.0F);
      network.Head(pipe, 80.0F, 9.0F, 5.0F, 0.35F);
      project.PipeScreenX2[pipe] = 100.0F * static_cast<float>(head);
      project.PipeScreenY2[pipe] = 100.0F;
    }
    shell.OnForm<CalcOptionsForm>("frmCalc", [this](CalcOptionsForm& form) {
      seen = Picked();
      seen_supply = ItemText(project, Item::kSupply);
      seen_demand = project.DemandFlow;
      form.Cancel_Click();
    });
  }

  // The heads that are on, such as "1 3 ".
  [[nodiscard]] std::string Picked() const {
    std::string heads;
    for (int head = 1; head <= 3; ++head) {
      if (project.HeadOn[head] != 0) heads += std::to_string(head) + " ";
    }
    return heads;
  }

  std::string& prompt = shell.panels[Panel::kHint];
  std::string seen, seen_supply;
  float seen_demand = -1.0F;
};

TEST_F(CalculateCommand, PicksHeadsOneByOne) {
  project.ModelState = 3;
  project.HeadOn[2] = 1;
  project.MrHead2 = 2;
  Cind(session);
  EXPECT_EQ(Picked(), "");
  EXPECT_EQ(project.SelectedHeadsMode, 1);
  EXPECT_EQ(project.ModelState, 1);
  EXPECT_EQ(project.MrHead2, 0);
  EXPECT_EQ(project.CommandMode, 17);
  EXPECT_FALSE(shell.features.at(Feature::kDisplayMenu));
  EXPECT_FALSE(shell.features.at(Feature::kPrintMenu));
  EXPECT_EQ(prompt, "0 heads = 0.0 m2: Select heads - press F12 to calculate");
  for (const int head : {1, 3, 1}) ToggleHead(session, head);
  EXPECT_EQ(Picked(), "3 ");
  EXPECT_EQ(prompt, "1 heads = 9.0 m2: Select heads - press F12 to calculate");
}

TEST_F(CalculateCommand, TogglesTheHeadsInABox) {
  Cboxes(session);
  EXPECT_EQ(project.CommandMode, 18);
  EXPECT_EQ(prompt, "Select head group - press F12 to calculate");
  ToggleHeadsInBox(session, 250.0F, 150.0F, 100.0F, 100.0F);  // on two edges, from the right
  EXPECT_EQ(Picked(), "1 2 ");
  ToggleHeadsInBox(session, 150.0F, 50.0F, 350.0F, 150.0F);
  EXPECT_EQ(Picked(), "1 3 ");
  EXPECT_EQ(prompt, "2 heads = 18.0 m2 - draw another zoom box or press F12 to calculate");
}

TEST_F(CalculateCommand, GoesOnWithAPick) {
  Ccurr(session);
  EXPECT_EQ(dialogs.Titles(), Texts{"No heads selected yet"});
  EXPECT_EQ(project.SelectedHeadsMode, 0);
  EXPECT_EQ(PickHeadsByNodes(session, {13, 99, 11}), std::vector{99});
  Ccurr(session);
  EXPECT_EQ(Picked(), "1 3 ");
  EXPECT_EQ(prompt, "2 heads = 18.0 m2 - click to turn on/off head and thne F12 to calculate");
}

TEST_F(CalculateCommand, UsesAllHeadsUnlessSomeArePicked) {
  project.DemandFlow = 7.0F;
  EXPECT_FALSE(Ccall(session));
  EXPECT_EQ(seen, "1 2 3 ");
  EXPECT_EQ(seen_demand, 0.0F);
  PickHeadsByNodes(session, {12});
  Ccall(session);
  EXPECT_EQ(seen, "2 ");
  EXPECT_TRUE(commands.checks.empty());
  project.PipeSizeCount = 0;  // as other pipe data were chosen
  Ccall(session);
  EXPECT_EQ(commands.checks, std::vector{CheckMode::kKeepLines});
  Cind(session);  // nothing picked is as good as all
  Ccall(session);
  EXPECT_EQ(seen, "1 2 3 ");
  EXPECT_EQ(project.SelectedHeadsMode, 0);
}

TEST_F(CalculateCommand, AsksForTheDemandBeforeTheSupply) {
  MadeNetwork(project).Supply({0, 5, 5000, 4});
  Ccall(session);
  EXPECT_EQ(seen_supply, "Pump");
  EXPECT_GE(seen_demand, 135.0F);  // 5 mm/min on 27 m2, and a little more near the source
  EXPECT_LT(seen_demand, 160.0F);
  EXPECT_GT(project.DemandPressure, 0.0F);
}

struct PartSaveTest : CalculateCommand {
  PartSaveTest() {
    PickHeadsByNodes(session, {11, 13});
    project.PartSave = 1;
    files.Put("/docs/Old.ZEB", "old");
    dialogs.answers = {Answer::kYes, Answer::kNo};
  }
};

TEST_F(PartSaveTest, SavesTheOperatingHeads) {
  std::string saved_as;
  commands.on_compose = [&](int) { saved_as = project.SavedCopyPath; };
  dialogs.save_answers = {"/docs/Part.ZEB"};
  OfferPartSave(session);
  EXPECT_EQ(dialogs.Titles(), Texts{"Save the operating heads"});
  EXPECT_EQ(dialogs.saves[0].title, "New ZEB Project file name");
  EXPECT_EQ(saved_as, "/docs/Part.ZEB");
  EXPECT_TRUE(files.Has("/docs/Part.ZEB"));
  EXPECT_EQ(project.SavedCopyPath, "");
  EXPECT_EQ(prompt, "File Part.ZEB saved with 2 heads");
}

TEST_F(PartSaveTest, AsksOnlyWithAPickThatStandsAndBeforeOverwriting) {
  project.HeadDensityEdited = 1;
  OfferPartSave(session);
  project.HeadDensityEdited = 0;
  project.SelectedHeadsMode = 0;
  OfferPartSave(session);
  EXPECT_TRUE(dialogs.messages.empty());
  project.SelectedHeadsMode = 1;
  dialogs.save_answers = {"/docs/Old.ZEB"};
  OfferPartSave(session);
  EXPECT_EQ(dialogs.messages.back().title, "Existing File Name");
  EXPECT_EQ(files.Bytes("/docs/Old.ZEB"), "old");
}

using Fields = std::array<std::string, 4>;

// A head of 9 m2 at node 12 and node 20 without one, with the limits of a first start.
struct CalcOptions : testing::Test, TestSession {
  CalcOptions() {
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

TEST_F(CalcOptions, OpensWithWhatIsInForce) {
  const CalcOptionsForm form(session);
  EXPECT_EQ(form.ComWaterSupply, "None");
  EXPECT_EQ(form.ComWaterSupplyList, Texts{"None"});
  EXPECT_EQ(form.ot, (Fields{"0.0", "6.0", "1.0", ""}));
  EXPECT_TRUE(form.chkFind_MRH);
  EXPECT_FALSE(form.NodeEnabled);
  EXPECT_EQ(form.lblDensity, "5.00 mm/min over 9.000 m2");
  EXPECT_EQ(form.lblDesignArea, "Most Unfavourable");
  EXPECT_FALSE(form.DesignAreaRed);
}

TEST_F(CalcOptions, TellsWhenTheAreaDoesNotFit) {
  const std::tuple<const char*, int, int, const char*> cases[] = {
      {"9.5", 0, 0, "But 9.500 m2 specified"},
      {"8", 0, 0, ""},
      {"8", 0, 2, "Pump curve specified"},
      {"9", 0, 2, ""},
      {"8", 1, 2, "But 8.000 m2 specified"}};
  for (const auto& [specified, mode, curve, note] : cases) {
    ItemText(project, Item::kDesignArea) = specified;
    project.SelectedHeadsMode = mode;
    project.SelectedArea = 4.5F;
    project.PumpCurveIndex = curve;
    const CalcOptionsForm form(session);
    EXPECT_EQ(form.lblAreaNote, note) << specified;
    EXPECT_EQ(form.DesignAreaRed, !form.lblAreaNote.empty()) << specified;
  }
}

TEST_F(CalcOptions, KeepsWhatWasTypedAndCorrectsWhatCounts) {
  // The limits as typed, which the settings keep, and those in force.
  const std::tuple<Fields, float, float, float> cases[] = {
      {{"0.5", "6", "1"}, 0.5F, 6.0F, 1.0F},     {{"6", "6", "0.1"}, 6.0F, 6.0F, 0.1F},
      {{"6.5", "6", "1"}, 0.0F, 6.0F, 1.0F},     {{"0", "119", "2"}, 0.0F, 119.0F, 2.0F},
      {{"0", "120", "2"}, 0.0F, 120.0F, 119.0F}, {{"0", "6", "0.05"}, 0.0F, 6.0F, 0.1F}};
  for (const auto& [typed, min_vel, max_vel, max_pd] : cases) {
    CalcOptionsForm form(session);
    form.ot = typed;
    form.OK_Click();
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(project.minVel, min_vel) << typed[0];
    EXPECT_EQ(project.maxVel, max_vel) << typed[1];
    EXPECT_EQ(project.maxPD, max_pd) << typed[2];
    EXPECT_EQ(session.settings.GetIniValue("CalcOptions", "minVel", ""), typed[0]);
    EXPECT_EQ(session.settings.GetIniValue("CalcOptions", "maxVel", ""), typed[1]);
    EXPECT_EQ(session.settings.GetIniValue("CalcOptions", "maxPD", ""), typed[2]);
  }
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(CalcOptionsForm::ot_KeyPress(','), '.');
}

TEST_F(CalcOptions, TakesAHeadsNodeOrNone) {
  const std::tuple<std::string, bool, int> cases[] = {
      {"12", true, 1}, {" 12 ", true, 1},  {"", true, 0},    {"0", true, 0},
      {"21", true, 0}, {"40000", true, 0}, {"13", false, 0}, {"20", false, 0}};
  for (const auto& [node, accepted, head] : cases) {
    SCOPED_TRACE(node);
    shell.closed_forms.clear();
    CalcOptionsForm form(session);
    form.ot[3] = node;
    form.OK_Click();
    EXPECT_EQ(form.Accepted(), accepted);
    EXPECT_EQ(project.ChosenMrHead, head);
    EXPECT_EQ(shell.closed_forms.size(), accepted ? 1U : 0U);
    if (accepted) continue;
    EXPECT_EQ(form.ot[3], "");
    EXPECT_EQ(dialogs.Shown().back(),
              ShownBox("Incorrect most remotest head node number",
                       "The node number " + node + " has not been specified - please retype"));
  }
}

TEST_F(CalcOptions, ChoosesHowTheRemotestHeadIsFound) {
  CalcOptionsForm form(session);
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

  project.MrNodeText = "12";
  EXPECT_EQ(CalcOptionsForm(session).ot[3], "12");
  project.MrNodeText = "13";  // of another project
  EXPECT_EQ(CalcOptionsForm(session).ot[3], "");
}

TEST_F(CalcOptions, StoresTheTextsInTheProject) {
  CalcOptionsForm unchanged(session);
  unchanged.OK_Click();
  EXPECT_EQ(project.DataChanged, 0);
  CalcOptionsForm form(session);
  form.ComWaterSupply = "Pump";
  form.txtComment = "RF=0.7";
  form.chkPartSave = true;
  form.OK_Click();
  EXPECT_EQ(ItemText(project, Item::kSupply), "Pump");
  EXPECT_EQ(ItemText(project, Item::kComments), "RF=0.7");
  EXPECT_EQ(project.PartSave, 1);
  EXPECT_EQ(project.DataChanged, 1);
}

}  // namespace
}  // namespace zeb::test
