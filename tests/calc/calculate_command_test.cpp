#include "calc/calculate_command.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calc/calc_options_form.h"
#include "calc/part_save.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb {
namespace {

using test::MadeNetwork;
using test::TestSession;

// Three heads of 9 m2 at nodes 11 to 13, on pipes that end at (100, 100), (200, 100) and (300, 100)
// of the picture.
struct ThreeHeads : TestSession {
  ThreeHeads() {
    MadeNetwork network(project);
    int start = 1;
    for (int head = 1; head <= 3; ++head) {
      const int pipe = network.Pipe(start, 10 + head, 3, 3.0F);
      network.Head(pipe, 80.0F, 9.0F, 5.0F, 0.35F);
      project.PipeScreenX2[pipe] = 100.0F * static_cast<float>(head);
      project.PipeScreenY2[pipe] = 100.0F;
      start = 10 + head;
    }
    project.TotalHeadArea = 27.0F;
    project.ProductName = "ZEB";
  }

  [[nodiscard]] std::vector<int> Picked() const {
    std::vector<int> heads;
    for (int head = 1; head <= 3; ++head) {
      if (project.HeadOn[head] != 0) heads.push_back(head);
    }
    return heads;
  }

  [[nodiscard]] std::string Prompt() { return shell.panels[Panel::kHint]; }

  Project& project = session.project;
};

TEST(OperatingHeadsTest, PicksHeadsOneByOne) {
  ThreeHeads t;
  t.project.ModelState = 3;
  t.project.HeadOn[2] = 1;
  t.project.MrHead2 = 2;
  Cind(t.session);
  EXPECT_TRUE(t.Picked().empty());
  EXPECT_EQ(t.project.SelectedHeadsMode, 1);
  EXPECT_EQ(t.project.ModelState, 1);
  EXPECT_EQ(t.project.MrHead2, 0);
  EXPECT_EQ(t.project.CommandMode, 17);
  EXPECT_FALSE(t.shell.features.at(Feature::kDisplayMenu));
  EXPECT_FALSE(t.shell.features.at(Feature::kPrintMenu));
  EXPECT_EQ(t.shell.panels[Panel::kMode], "OPERATING HEADS");
  EXPECT_EQ(t.Prompt(), "0 heads = 0.0 m2: Select heads - press F12 to calculate");
  EXPECT_TRUE(t.commands.checks.empty());

  ToggleHead(t.session, 1);
  ToggleHead(t.session, 3);
  EXPECT_EQ(t.Prompt(), "2 heads = 18.0 m2: Select heads - press F12 to calculate");
  ToggleHead(t.session, 1);
  EXPECT_EQ(t.Picked(), std::vector{3});
  EXPECT_EQ(t.project.SelectedHeadCount, 1);
  EXPECT_FLOAT_EQ(t.project.SelectedArea, 9.0F);
  EXPECT_EQ(t.shell.redraws, 4);
}

TEST(OperatingHeadsTest, TogglesTheHeadsInABox) {
  ThreeHeads t;
  Cboxes(t.session);
  EXPECT_EQ(t.project.CommandMode, 18);
  EXPECT_EQ(t.project.HeadBoxState, 1);
  EXPECT_EQ(t.Prompt(), "Select head group - press F12 to calculate");
  ToggleHeadsInBox(t.session, 250.0F, 150.0F, 100.0F, 100.0F);  // on two edges, from the right
  EXPECT_EQ(t.Picked(), (std::vector{1, 2}));
  EXPECT_EQ(t.Prompt(), "2 heads = 18.0 m2 - draw another zoom box or press F12 to calculate");
  ToggleHeadsInBox(t.session, 150.0F, 50.0F, 350.0F, 150.0F);
  EXPECT_EQ(t.Picked(), (std::vector{1, 3}));
  EXPECT_EQ(t.project.SelectedHeadCount, 2);
}

TEST(OperatingHeadsTest, GoesOnWithAPick) {
  ThreeHeads t;
  Ccurr(t.session);
  ASSERT_EQ(t.dialogs.messages.size(), 1U);
  EXPECT_EQ(t.dialogs.messages[0].title, "No heads selected yet");
  EXPECT_EQ(t.dialogs.messages[0].text, "Use other 'Calculate' option first");
  EXPECT_EQ(t.project.SelectedHeadsMode, 0);

  EXPECT_EQ(PickHeadsByNodes(t.session, {13, 99, 11}), std::vector{99});
  Ccurr(t.session);
  EXPECT_EQ(t.Picked(), (std::vector{1, 3}));
  EXPECT_EQ(t.project.CommandMode, 17);
  EXPECT_EQ(t.Prompt(), "2 heads = 18.0 m2 - click to turn on/off head and thne F12 to calculate");
}

TEST(OperatingHeadsTest, ReadsTheProjectWhenNoSizesAreLoaded) {
  ThreeHeads t;
  t.project.PipeSizeCount = 0;
  t.commands.on_check = [&](CheckMode) { t.project.PipeSizeCount = 6; };
  Cind(t.session);
  EXPECT_EQ(t.commands.checks, std::vector{CheckMode::kKeepLines});
}

// What the options dialog of a calculation finds; the calculation is then given up.
struct SeenByDialog {
  std::vector<int> picked;
  int mode = -1;
  std::string supply;
  float demand_flow = -1.0F;
};

struct CalculateCommand : ThreeHeads {
  CalculateCommand() {
    shell.OnForm<CalcOptionsForm>("frmCalc", [this](CalcOptionsForm& form) {
      seen = {Picked(), project.SelectedHeadsMode, ItemText(project, Item::kSupply),
              project.DemandFlow};
      form.Cancel_Click();
    });
  }

  SeenByDialog seen;
};

TEST(CalculateCommandTest, UsesAllHeadsUnlessSomeArePicked) {
  CalculateCommand all;
  all.project.DemandFlow = 7.0F;
  all.project.HeadDensityEdited = 1;
  EXPECT_FALSE(Ccall(all.session));
  EXPECT_EQ(all.seen.picked, (std::vector{1, 2, 3}));
  EXPECT_EQ(all.seen.mode, 0);
  EXPECT_EQ(all.seen.demand_flow, 0.0F);
  EXPECT_EQ(all.project.CalcSource, 1);
  EXPECT_EQ(all.project.HeadDensityEdited, 0);

  CalculateCommand picked;
  PickHeadsByNodes(picked.session, {12});
  Ccall(picked.session);
  EXPECT_EQ(picked.seen.picked, std::vector{2});
  EXPECT_EQ(picked.seen.mode, 1);
  EXPECT_EQ(picked.shell.panels[Panel::kMode], "CALCULATE");

  CalculateCommand empty_pick;
  Cind(empty_pick.session);
  Ccall(empty_pick.session);
  EXPECT_EQ(empty_pick.seen.picked, (std::vector{1, 2, 3}));
  EXPECT_EQ(empty_pick.seen.mode, 0);
}

// Each head needs at least 5 mm/min on 9 m2.
TEST(CalculateCommandTest, AsksForTheDemandBeforeTheSupply) {
  CalculateCommand t;
  MadeNetwork(t.project).Supply({0, 5, 5000, 4});
  Ccall(t.session);
  EXPECT_EQ(t.seen.supply, "Pump");
  EXPECT_GE(t.seen.demand_flow, 135.0F);
  EXPECT_LT(t.seen.demand_flow, 160.0F);
  EXPECT_EQ(ItemText(t.project, Item::kSupply), "Pump");
  EXPECT_GT(t.project.DemandPressure, 0.0F);
}

struct PartSaveTest : testing::Test, ThreeHeads {
  PartSaveTest() {
    PickHeadsByNodes(session, {11, 13});
    project.PartSave = 1;
  }
};

TEST_F(PartSaveTest, SavesTheOperatingHeads) {
  std::string saved_as;
  commands.on_compose = [&](int) { saved_as = project.SavedCopyPath; };
  dialogs.answers = {Answer::kYes};
  dialogs.save_answers = {"/docs/Part.ZEB"};
  OfferPartSave(session);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].title, "Save the operating heads");
  EXPECT_EQ(dialogs.messages[0].text,
            "Do you wish to save the operating heads in to a new ZEB Project file?");
  EXPECT_EQ(dialogs.saves[0].title, "New ZEB Project file name");
  EXPECT_EQ(dialogs.saves[0].filter, "ZEB Files|*.ZEB");
  EXPECT_EQ(saved_as, "/docs/Part.ZEB");
  EXPECT_TRUE(files.Has("/docs/Part.ZEB"));
  EXPECT_EQ(project.SavedCopyPath, "");
  EXPECT_EQ(Prompt(), "File Part.ZEB saved with 2 heads");
}

TEST_F(PartSaveTest, AsksOnlyWithAPickThatStands) {
  project.PartSave = 0;
  OfferPartSave(session);
  project.PartSave = 1;
  project.HeadDensityEdited = 1;
  OfferPartSave(session);
  project.HeadDensityEdited = 0;
  project.SelectedHeadsMode = 0;
  OfferPartSave(session);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(PartSaveTest, SavesNothingWithoutConsent) {
  files.Put("/docs/Old.ZEB", "old");
  dialogs.answers = {Answer::kNo, Answer::kYes, Answer::kYes, Answer::kNo};
  dialogs.save_answers = {"", "/docs/Old.ZEB"};
  SavePartProject(session);
  EXPECT_TRUE(dialogs.saves.empty());
  SavePartProject(session);
  SavePartProject(session);
  EXPECT_EQ(dialogs.messages.back().text, "This file name already exists shall I overwrite?");
  EXPECT_EQ(files.Bytes("/docs/Old.ZEB"), "old");
}

}  // namespace
}  // namespace zeb
