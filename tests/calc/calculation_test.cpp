// The calculate command's own side: its questions, boxes, ends and failures.
#include "calc/calculation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "calc/calc_options_form.h"
#include "calc/progress_form.h"
#include "made_network.h"
#include "services/number_text.h"
#include "support/test_session.h"

namespace zeb {
namespace {

using test::MadeNetwork;

// A feed and a range of twelve heads, whose options the user accepts.
struct Command : test::TestSession {
  Command() {
    project.ProjectPath = "/JOBS/A.ZEB";
    shell.OnForm<CalcOptionsForm>("frmCalc", [](CalcOptionsForm& form) { form.OK_Click(); });
    network.Pipe(1, 2, 5, 10.0F, 3.0F);
    for (int node = 2; node <= 13; ++node) {
      network.Head(network.Pipe(node, node + 1, 4, 3.0F), 80.0F, 12.0F, 5.0F, 0.5F);
    }
    project.LineCount = kItemCount;
  }

  bool Calculate() { return Calculation(session, CalculationMode::kInteractive); }

  [[nodiscard]] bool Showed(const std::string& title, const std::string& text) const {
    for (const Message& message : dialogs.messages) {
      if (message.title == title && message.text == text) return true;
    }
    return false;
  }

  Project& project = session.project;
  MadeNetwork network{project};
};

TEST(CalculationTest, EndsWithResultsOnTheScreen) {
  Command run;
  run.clock.seconds = 100.0;
  run.shell.on_yield = [&] { run.clock.seconds += 0.25; };
  ASSERT_TRUE(run.Calculate());
  const Project& project = run.project;
  EXPECT_EQ(project.ModelState, 3);
  EXPECT_EQ(run.shell.panels[Panel::kHint], project.ResultLine + " calculated");
  EXPECT_EQ(project.ResultLine.substr(0, 13), "Source Duty =");
  EXPECT_EQ(project.UndoNames[1].substr(0, 10), "Calculated");
  EXPECT_TRUE(run.shell.features[Feature::kDisplayMenu]);
  EXPECT_TRUE(run.shell.features[Feature::kPrintMenu]);
  EXPECT_TRUE(run.shell.features[Feature::kReport]);
  EXPECT_EQ(run.commands.view_resets, 1);
  EXPECT_EQ(run.shell.redraws, 1);
  EXPECT_EQ(run.shell.open_forms, std::vector<std::string>{"frmCalcProgress"});
  EXPECT_EQ(run.shell.closed_forms.back(), "frmCalcProgress");
  EXPECT_GE(run.shell.refreshed_forms.size(), 1U);
  EXPECT_EQ(project.RemotestNode, 14);
  EXPECT_GT(project.CalculationTime, 1.0F);
  EXPECT_NEAR(project.PipeEndPressure[13], 0.5625F, 0.001F);
  EXPECT_EQ(project.PipeStartPressure[1], project.SourcePressure);

  // A calculated system is not calculated again.
  const int iterations = project.IterationCount;
  run.project.IterationCount = 0;
  EXPECT_TRUE(run.Calculate());
  EXPECT_EQ(run.project.IterationCount, 0);
  EXPECT_GT(iterations, 0);
}

TEST(CalculationTest, TellsWhatIsInItsWay) {
  const std::string curve_wanted =
      "You must specify a pump curve if you have hydrant(s) and no heads";
  struct Case {
    std::function<void(Project&)> set;
    std::string title;
  };
  const Case cases[] = {
      {[](Project& p) { p.PipeCount = 1; }, "Cannot calculate!"},
      {[](Project& p) { p.HeadCount = 0; }, "Cannot calculate!"},
      {[](Project& p) { p.SelectedHeadsMode = 1; }, "Cannot calculate!"},
      {[](Project& p) { p.HeadCount = 0, p.HydrantCount = 1; }, curve_wanted},
  };
  for (const Case& c : cases) {
    Command run;
    c.set(run.project);
    EXPECT_FALSE(run.Calculate());
    EXPECT_EQ(run.dialogs.Titles(), std::vector{c.title});
    EXPECT_TRUE(run.shell.modal_forms.empty());
  }
}

TEST(CalculationTest, WarnsOfUnlikelyInput) {
  Command run;
  run.network.Supply({12.0F, 8.0F, 3000.0F, 6.0F});
  run.project.MaxHeadHeight = 100.5F;
  run.project.MinHeadHeight = -500.0F;
  ItemText(run.project, Item::kDensity) = "101";
  EXPECT_TRUE(run.Calculate());
  EXPECT_TRUE(run.Showed("Perhaps incorrect pump curve",
                         "Your first flow value is 12 l/min and should be zero so you may not get "
                         "the right answers for this system"));
  EXPECT_TRUE(run.Showed("Highest head is 100.5 m above the source node!",
                         "Are you sure you have the right pipe slopes or Up/Down directions?"));
  EXPECT_TRUE(run.Showed("Is density of coverage right?",
                         "Density specified = 101 mm/min means that your source flow and pressure "
                         "will be quite high."));

  Command quiet;
  quiet.network.Supply({10.0F, 8.0F, 3000.0F, 6.0F});
  quiet.project.MaxHeadHeight = 100.0F;
  quiet.project.MinHeadHeight = -500.0F;
  ItemText(quiet.project, Item::kDensity) = "100";
  EXPECT_TRUE(quiet.Calculate());
  EXPECT_TRUE(quiet.dialogs.messages.empty());
}

TEST(CalculationTest, WarnsOfUnlikelyResults) {
  Command weak;  // swings between too much and nothing
  weak.network.Supply({0.0F, 3.0F, 300.0F, 0.25F});
  EXPECT_TRUE(weak.Calculate());
  EXPECT_TRUE(weak.Showed("Calculation Error - 1",
                          "ZEB has not been able to hydraulic balancing this project"));
  EXPECT_EQ(weak.project.ResultLine, "Calculation Incomplete");
  EXPECT_EQ(weak.project.ModelState, 3);

  Command beyond;  // all the flow there is comes at the last point's pressure
  beyond.network.Supply({0.0F, 3.0F, 300.0F, 2.5F});
  EXPECT_TRUE(beyond.Calculate());
  ASSERT_EQ(beyond.dialogs.messages.size(), 1U);
  EXPECT_EQ(beyond.dialogs.messages[0].title,
            "Source flow =" + SignedText(beyond.project.SourceFlow) + " L/min is off pump curve");
  EXPECT_EQ(
      beyond.dialogs.messages[0].text,
      "Your specified water supply / pump curve only goes up to 300 L/min at 2.5 bars so this "
      "value has been taken as the source pressure");

  Command hill;  // 25 m up and down again before the heads
  hill.project.PipeRise[1] = 25.0F;
  hill.project.PipeRise[2] = -22.0F;
  EXPECT_TRUE(hill.Calculate());
  EXPECT_TRUE(hill.Showed("Source duty is not high enough",
                          "There are 1 pipes with end pressures less than 0.1 bar"));

  Command high;
  high.project.PipeSizeIndex[2] = 1;  // 720 L/min through DN 25
  high.project.PipeLength[2] = 100.0F;
  high.project.PipePressDrop[2] = 300.0F;
  EXPECT_TRUE(high.Calculate());
  ASSERT_FALSE(high.dialogs.messages.empty());
  EXPECT_EQ(high.dialogs.messages[0].title.substr(0, 15), "Source duty = 7");
  EXPECT_EQ(high.dialogs.messages[0].text,
            "These seem a bit high!\r\nPerhaps wrong density or head 'k' factors or some pipes are "
            "far too small.");
}

TEST(CalculationTest, TakesPartInWhatIsEnteredLast) {
  Command run;
  run.project.PipeVJ[1] = 1;
  run.shell.OnForm<CalcOptionsForm>("frmCalc", [&](CalcOptionsForm& form) {
    form.txtComment = "VJ=7";
    form.OK_Click();
    ItemText(run.project, Item::kComments) = "VJ=7";
  });
  EXPECT_TRUE(run.Calculate());
  EXPECT_EQ(run.project.PipeEqLength[1], 17.0F);
}

TEST(CalculationTest, CancelsWithoutAResult) {
  Command options;
  options.shell.OnForm<CalcOptionsForm>("frmCalc", [](CalcOptionsForm& f) { f.Cancel_Click(); });
  Command stop;
  stop.shell.OnForm<ProgressForm>("frmCalcProgress", [](ProgressForm& f) {
    EXPECT_EQ(f.Message(), "Balancing flows in loops");
    f.cmdStop_Click();
  });
  for (Command* run : {&options, &stop}) {
    run->project.SourceFlow = 5.0F;
    EXPECT_FALSE(run->Calculate());
    EXPECT_EQ(run->project.SourceFlow, 0.0F);
    EXPECT_EQ(run->project.ModelState, 1);
    EXPECT_EQ(run->commands.view_resets, 1);
    EXPECT_EQ(run->shell.redraws, 0);
    EXPECT_FALSE(run->shell.busy_pointer);
  }
  EXPECT_TRUE(options.shell.open_forms.empty());
  EXPECT_EQ(stop.shell.closed_forms.back(), "frmCalcProgress");
}

// Arithmetic that fails and tables that lead nowhere end the calculation with a box and an entry in
// the log, which names the stage.
TEST(CalculationTest, FailsWithoutAResult) {
  struct Case {
    const char* what;
    std::function<void(Project&)> set;
    std::string stage;
  };
  const Case cases[] = {
      {"no weight", [](Project& p) { ItemText(p, Item::kFluid) = "SG=0"; }, "flow totals"},
      {"no bore", [](Project& p) { p.PipeBores[4][1] = 0.0F; }, "Sizing/eq.lens"},
      {"too large", [](Project& p) { p.HeadK[3] = 3e38F, p.HeadMinPress[3] = 3e38F; },
       "flow totals"},
      {"a valve that is none", [](Project& p) { p.PipeValve[3] = 21; }, "Sizing/eq.lens"},
      {"equal flows on the curve",
       [](Project& p) {
         p.SupplyNames[1] = "Main";
         p.SupplyTable[1] = {5000.0F, 5.0F, 5000.0F, 4.0F};
       },
       "head balance"},
  };
  for (const Case& c : cases) {
    for (const CalculationMode mode : {CalculationMode::kInteractive, CalculationMode::kSilent}) {
      Command run;
      c.set(run.project);
      EXPECT_FALSE(Calculation(run.session, mode)) << c.what;
      const bool told = run.Showed("Calculation Error",
                                   "ZEB has not been able to complete the calculation please try "
                                   "selecting a new set of heads / nozzles");
      EXPECT_EQ(told, mode == CalculationMode::kInteractive) << c.what;
      const std::string log = run.files.Bytes("/prog/ZEB_error.log");
      EXPECT_NE(log.find("Calc Mod line: "), std::string::npos) << c.what;
      EXPECT_NE(log.find(c.stage), std::string::npos) << c.what << log;
      EXPECT_EQ(run.project.SourcePressure, 0.0F) << c.what;
      EXPECT_EQ(run.project.ModelState, 1) << c.what;
      EXPECT_FALSE(run.shell.busy_pointer) << c.what;
    }
  }
}

TEST(CalculationTest, UnderNfpaRulesTheControlHeadIsTheFirstOfTheFour) {
  Command run;
  run.project.RuleType = 2;
  EXPECT_TRUE(run.Calculate());
  EXPECT_EQ(run.project.MrHead1, 12);
  EXPECT_EQ(run.project.RemotestHead, 12);
}

}  // namespace
}  // namespace zeb
