// The calculate command's own side: its questions, boxes, ends and failures.
#include "calc/calculation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <utility>

#include "calc/calc_options_form.h"
#include "calc/progress_form.h"
#include "made_network.h"
#include "services/text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// A feed and a range of twelve heads, whose options the user accepts.
struct Command : TestSession {
  Command() {
    project.LineCount = kItemCount;
    shell.OnForm<CalcOptionsForm>("frmCalc", [](CalcOptionsForm& form) { form.OK_Click(); });
    network.Pipe(1, 2, 5, 10.0F, 3.0F);
    for (int node = 2; node <= 13; ++node) {
      network.Head(network.Pipe(node, node + 1, 4, 3.0F), 80.0F, 12.0F, 5.0F, 0.5F);
    }
  }

  bool Calculate() { return Calculation(session, CalculationMode::kInteractive); }

  // Whether a box of this title and text was shown, each from its start.
  [[nodiscard]] bool Showed(const std::string& title, const std::string& text) const {
    return std::ranges::any_of(dialogs.messages, [&](const Message& m) {
      return m.title.starts_with(title) && m.text.starts_with(text);
    });
  }

  void ExpectNoResult() {
    EXPECT_EQ(project.SourceFlow, 0.0F);
    EXPECT_EQ(project.SourcePressure, 0.0F);
    EXPECT_EQ(project.ModelState, 1);
    EXPECT_EQ(commands.view_resets, 1);
    EXPECT_EQ(shell.redraws, 0);
    EXPECT_FALSE(shell.busy_pointer);
  }

  MadeNetwork network{project};
};

struct CalculationCommand : testing::Test, Command {};

TEST_F(CalculationCommand, EndsWithResultsOnTheScreen) {
  shell.on_yield = [&] { clock.seconds += 0.25; };
  ASSERT_TRUE(Calculate());
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(project.ModelState, 3);
  EXPECT_EQ(project.ResultLine.substr(0, 13), "Source Duty =");
  EXPECT_EQ(shell.panels[Panel::kHint], project.ResultLine + " calculated");
  EXPECT_EQ(project.UndoNames[1].substr(0, 10), "Calculated");
  for (const Feature feature : {Feature::kDisplayMenu, Feature::kPrintMenu, Feature::kReport}) {
    EXPECT_TRUE(shell.features[feature]);
  }
  EXPECT_EQ(commands.view_resets, 1);
  EXPECT_EQ(shell.redraws, 1);
  EXPECT_EQ(shell.open_forms, Texts{"frmCalcProgress"});
  EXPECT_EQ(std::ranges::count(shell.closed_forms, "frmCalcProgress"), 1);
  EXPECT_FALSE(shell.refreshed_forms.empty());
  EXPECT_EQ(project.RemotestNode, 14);
  EXPECT_GT(project.CalculationTime, 1.0F);
  EXPECT_NEAR(project.PipeEndPressure[13], 0.5625F, 0.001F);

  project.IterationCount = 0;
  EXPECT_TRUE(Calculate());
  EXPECT_EQ(project.IterationCount, 0) << "a calculated system is not calculated again";
}

TEST(CalculationTest, TellsWhatIsInItsWay) {
  const std::pair<void (*)(Project&), std::string> cases[] = {
      {[](Project& p) { p.PipeCount = 1; }, "Cannot calculate!"},
      {[](Project& p) { p.SelectedHeadsMode = 1; }, "Cannot calculate!"},
      {[](Project& p) { p.HeadCount = 0, p.HydrantCount = 1; },
       "You must specify a pump curve if you have hydrant(s) and no heads"}};
  for (const auto& [change, title] : cases) {
    Command run;
    change(run.project);
    EXPECT_FALSE(run.Calculate());
    EXPECT_EQ(run.dialogs.Titles(), Texts{title});
    EXPECT_TRUE(run.shell.modal_forms.empty());
  }
}

TEST(CalculationTest, WarnsOfWhatLooksWrong) {
  const std::tuple<void (*)(Command&), std::string, std::string> cases[] = {
      {[](Command& c) {
         c.network.Supply({12.0F, 8.0F, 3000.0F, 6.0F});
       },
       "Perhaps incorrect pump curve",
       "Your first flow value is 12 l/min and should be zero so you may not get the right answers "
       "for this system"},
      {[](Command& c) { c.project.MaxHeadHeight = 100.5F; },
       "Highest head is 100.5 m above the source node!",
       "Are you sure you have the right pipe slopes or Up/Down directions?"},
      {[](Command& c) { ItemText(c.project, Item::kDensity) = "101"; },
       "Is density of coverage right?",
       "Density specified = 101 mm/min means that your source flow and pressure will be quite "
       "high."},
      {[](Command& c) {
         c.network.Supply({0.0F, 3.0F, 300.0F, 0.25F});
       },
       "Calculation Error - 1", "ZEB has not been able to hydraulic balancing this project"},
      {[](Command& c) {
         c.network.Supply({0.0F, 3.0F, 300.0F, 2.5F});
       },
       "Source flow = ",
       "Your specified water supply / pump curve only goes up to 300 L/min at 2.5 bars so this "
       "value has been taken as the source pressure"},
      {[](Command& c) { c.project.PipePressDrop[2] = 300.0F; }, "Source duty = ",
       "These seem a bit high!\r\nPerhaps wrong density or head 'k' factors or some pipes are far "
       "too small."},
      // 25 m up and down again before the heads.
      {[](Command& c) { c.project.PipeRise[1] = 25.0F, c.project.PipeRise[2] = -22.0F; },
       "Source duty is not high enough", "There are 1 pipes with end pressures less than 0.1 bar"}};
  for (const auto& [change, title, text] : cases) {
    Command run;
    change(run);
    EXPECT_TRUE(run.Calculate()) << title;
    EXPECT_TRUE(run.Showed(title, text)) << title;
    EXPECT_EQ(run.project.ModelState, 3) << title;
  }
  Command limits;  // just not wrong
  limits.network.Supply({10.0F, 8.0F, 3000.0F, 6.0F});
  limits.project.MaxHeadHeight = 100.0F;
  limits.project.MinHeadHeight = -500.0F;
  ItemText(limits.project, Item::kDensity) = "100";
  EXPECT_TRUE(limits.Calculate());
  EXPECT_TRUE(limits.dialogs.messages.empty());
}

TEST(CalculationTest, CancelsWithoutAResult) {
  Command options;
  options.shell.OnForm<CalcOptionsForm>("frmCalc", [](CalcOptionsForm& f) { f.Cancel_Click(); });
  EXPECT_FALSE(options.Calculate());
  EXPECT_TRUE(options.shell.open_forms.empty());
  options.ExpectNoResult();

  Command stop;
  stop.shell.OnForm<ProgressForm>("frmCalcProgress", [&](ProgressForm& form) {
    EXPECT_EQ(form.Message(), "Balancing flows in loops");
    stop.shell.on_yield = [&] {
      if (stop.project.Iteration == 3) form.cmdStop_Click();
    };
  });
  EXPECT_FALSE(stop.Calculate());
  EXPECT_EQ(stop.project.Iteration, 3);
  EXPECT_EQ(stop.shell.closed_forms.back(), "frmCalcProgress");
  stop.ExpectNoResult();
}

// Arithmetic that fails and tables that lead nowhere end the calculation with a box, unless it is
// silent, and with an entry in the log that names the stage.
TEST(CalculationTest, FailsWithoutAResult) {
  constexpr CalculationMode kAsk = CalculationMode::kInteractive;
  const std::tuple<void (*)(Project&), CalculationMode, std::string> cases[] = {
      {[](Project& p) { ItemText(p, Item::kFluid) = "SG=0"; }, kAsk, "flow totals"},
      {[](Project& p) { p.PipeBores[4][1] = 0.0F; }, CalculationMode::kSilent, "Sizing/eq.lens"},
      {[](Project& p) { p.HeadK[3] = 3e38F, p.HeadMinPress[3] = 3e38F; }, kAsk, "flow totals"},
      {[](Project& p) { p.PipeValve[3] = 21; }, kAsk, "Sizing/eq.lens"},
      {[](Project& p) {
         p.SupplyNames[1] = "Main", p.SupplyTable[1] = {9e3F, 5, 9e3F, 4};
       },
       kAsk, "head balance"}};
  for (const auto& [change, mode, stage] : cases) {
    Command run;
    change(run.project);
    EXPECT_FALSE(Calculation(run.session, mode)) << stage;
    EXPECT_EQ(run.Showed("Calculation Error",
                         "ZEB has not been able to complete the calculation please try selecting a "
                         "new set of heads / nozzles"),
              mode == kAsk);
    const std::string log = run.files.Bytes("/prog/ZEB_error.log");
    EXPECT_TRUE(Contains(log, "Calc Mod line: ")) << log;
    EXPECT_TRUE(Contains(log, stage)) << log;
    run.ExpectNoResult();
  }
}

TEST_F(CalculationCommand, UnderNfpaRulesTheControlHeadIsTheFirstOfTheFour) {
  project.RuleType = 2;
  EXPECT_TRUE(Calculate());
  EXPECT_EQ(project.MrHead1, 12);
  EXPECT_EQ(project.RemotestHead, 12);
}

}  // namespace
}  // namespace zeb::test
