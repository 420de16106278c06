#include "calc/pipe_sizing.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "calc/fluid.h"
#include "calc/sizing_form.h"
#include "calc/unsized_pipes.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// An unsized pipe of 10 m with 100 L/min: 2.85 m/s and 43.8 mbar/m in DN 25, 1.21 m/s and
// 5.4 mbar/m in DN 40.
struct OneUnsizedPipe : TestSession {
  OneUnsizedPipe() {
    MadeNetwork(project).Pipe(1, 2, 0, 10.0F);
    project.PipeUnsized[1] = 1;
    project.PipeFlow[1] = 100.0F;
    project.SizingMethod = kSizeByVelocity;
    project.maxVel = 6.0F;
    project.SizingPdPerM = project.SizingLimit = 50.0F;
    project.SizingMinNominal = 25.0F;
  }
};

void SizeByGradient(Project& p, float limit) {
  p.SizingMethod = kSizeByGradient;
  p.SizingPdPerM = limit;
}

TEST(PipeSizingTest, TakesTheFirstSizeWellWithinTheLimit) {
  const std::tuple<const char*, void (*)(Project&), int> cases[] = {
      {"velocity", [](Project&) {}, 25},
      {"four fifths of the velocity", [](Project& p) { p.maxVel = 3.5F; }, 40},
      {"backward flow", [](Project& p) { p.maxVel = 3.5F, p.PipeFlow[1] = -100.0F; }, 40},
      {"no flow", [](Project& p) { p.maxVel = 0.5F, p.PipeFlow[1] = 0.0F; }, 25},
      {"smallest size wanted", [](Project& p) { p.SizingMinNominal = 41.0F; }, 50},
      {"smallest size beyond all", [](Project& p) { p.SizingMinNominal = 351.0F; }, 350},
      {"nothing passes", [](Project& p) { p.maxVel = 0.001F; }, 350},
      {"a size not made", [](Project& p) { p.PipeBores[1][1] = 1.0F; }, 40},
      {"gradient", [](Project& p) { SizeByGradient(p, 60.0F); }, 25},
      {"four fifths of the gradient", [](Project& p) { SizeByGradient(p, 50.0F); }, 40},
      {"total", [](Project& p) { p.SizingMethod = kSizeByTotalDrop, p.SizingLimit = 6.9F; }, 40},
      {"a fixed drop in every size",
       [](Project& p) { SizeByGradient(p, 50.0F), p.PipePressDrop[1] = 1.0F; }, 350},
      {"Darcy-Weisbach, 36.8 mbar/m in DN 25",
       [](Project& p) {
         SizeByGradient(p, 50.0F);
         ItemText(p, Item::kFluid) = "DWF";
         ReadFluidSettings(p);
       },
       25}};
  for (const auto& [what, change, nominal] : cases) {
    OneUnsizedPipe t;
    change(t.project);
    ChoosePipeSize(t.session, 1);
    EXPECT_EQ(t.project.PipeSize[1], nominal) << what;
    EXPECT_EQ(t.project.NominalSize(1, t.project.PipeSizeIndex[1]), nominal) << what;
    EXPECT_EQ(t.project.SizedCount, 1) << what;
  }
}

struct PipeSizing : testing::Test, OneUnsizedPipe {};

TEST_F(PipeSizing, NeverGoesDownAndCountsAPipeOnce) {
  project.PipeElbows[1] = 1;
  project.WeldSize = 50;
  for (const float flow : {150.0F, 200.0F, 100.0F}) {  // 2.42 m/s in DN 40 at 200 L/min
    project.PipeFlow[1] = flow;
    project.maxVel = 2.5F;
    ChoosePipeSize(session, 1);
  }
  EXPECT_EQ(project.PipeSize[1], 50);
  EXPECT_EQ(project.SizedCount, 1);
  EXPECT_FLOAT_EQ(project.PipeEqLength[1], 10.5F);  // with the welded elbow of this size

  // A trial of a smaller size leaves its loss behind when the size stays.
  SizeByGradient(project, 50.0F);
  ChoosePipeSize(session, 1);
  EXPECT_EQ(project.PipeSize[1], 50);
  EXPECT_NEAR(project.PipeStartPressure[1], LossOf(1.0, 41.9, 11.0), 1E-10);
}

// Heads 12 m and 30 m from the source, and the second one's pipe unsized.
struct UnsizedPipes : PipeSizing {
  UnsizedPipes() {
    MadeNetwork network(project);
    project.PipeUnsized[1] = project.PipeCount = 0;
    network.Pipe(1, 2, 1, 10.0F);
    network.Head(network.Pipe(2, 3, 1, 2.0F), 80, 9, 5, 0.35F);
    network.Head(network.Pipe(2, 4, 0, 20.0F), 80, 9, 5, 0.35F);
    project.PipeUnsized[3] = project.UnsizedCount = 1;
    project.SizingTotalDrop = 5.0F;
    project.MaxHeadHeight = 4.5F;
  }
};

TEST_F(UnsizedPipes, ShowsTheSystem) {
  const SizingForm form(session);
  EXPECT_EQ(form.lblUnsized, "Number of unsized pipes   = 1");
  EXPECT_EQ(form.lblSized, "   Number of sized pipes   = 2");
  EXPECT_EQ(form.lblFurthest, "Furthest head node = 4 = 30.000 m");
  EXPECT_EQ(form.lblNearest, "  Nearest head node = 3 = 12.000 m");
  EXPECT_EQ(form.lblHighest, "Highest head above source = 4.500 m");
  EXPECT_EQ(form.ot, (std::array<std::string, 4>{"6", "50", "5", "25"}));
  EXPECT_EQ(form.otEnabled, (std::array{true, false, false, true}));
}

TEST_F(UnsizedPipes, KeepsWhatIsEnteredWithinBounds) {
  const struct {
    int method;
    const char *limit, *nominal;
    float limit_kept, nominal_kept;
  } cases[] = {
      {1, "0.4", "0.9", 0.5F, 0.0F}, {1, "51", "301", 50.0F, 300.0F},   {1, "3.5", "1", 3.5F, 1.0F},
      {2, "0", "-5", 1.0F, 0.0F},    {2, "1001", "65", 1000.0F, 65.0F}, {2, "x", "x", 1.0F, 0.0F},
      {3, "0.1", "25", 0.5F, 25.0F}, {3, "60", "25", 50.0F, 25.0F},
  };
  for (const auto& c : cases) {
    commands.checks.clear();
    SizingForm form(session);
    if (c.method == 2) form.Option2_Click();
    if (c.method == 3) form.Option3_Click();
    form.ot.at(static_cast<std::size_t>(c.method) - 1) = c.limit;
    form.ot[3] = c.nominal;
    form.OK_Click();
    const std::array kept{project.maxVel, project.SizingPdPerM, project.SizingTotalDrop};
    EXPECT_EQ(project.SizingMethod, c.method);
    EXPECT_EQ(kept.at(static_cast<std::size_t>(c.method) - 1), c.limit_kept) << c.limit;
    EXPECT_EQ(project.SizingMinNominal, c.nominal_kept) << c.nominal;
    if (c.method == 3) {
      EXPECT_FLOAT_EQ(project.SizingLimit, c.limit_kept * 1000.0F / 30.0F);
    }
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(commands.checks, std::vector{CheckMode::kKeepLines});
  }
}

TEST_F(UnsizedPipes, ZeroesAllSizesOnOk) {
  commands.on_compose = [&](int pipe) { EXPECT_EQ(project.PipeSize[pipe], 0); };
  dialogs.answers = {Answer::kCancel, Answer::kOk, Answer::kOk};
  SizingForm form(session);
  form.cmdZeroPipes_Click();
  EXPECT_TRUE(commands.composed.empty());
  form.cmdZeroPipes_Click();
  EXPECT_EQ(commands.composed, (std::vector{1, 2, 3}));
  EXPECT_EQ(shell.panels[Panel::kHint], "All pipe size set to 0 mm");
  EXPECT_EQ(form.lblUnsized, "Number of unsized pipes   = 3");
  EXPECT_TRUE(commands.checks.empty());

  mnuCalcZeroPipe_Click(session);
  EXPECT_EQ(shell.panels[Panel::kHint], "All pipes set to 0 mm");
  EXPECT_EQ(commands.checks.size(), 1U);
  EXPECT_GT(project.DataChanged, 0);
}

TEST_F(UnsizedPipes, CapturesTheChosenSizesOnYes) {
  dialogs.answers = {Answer::kNo, Answer::kYes};
  mnuCalcSetPipe_Click(session);
  EXPECT_TRUE(commands.composed.empty());
  mnuCalcSetPipe_Click(session);
  EXPECT_EQ(commands.composed, std::vector{3});
  EXPECT_EQ(shell.panels[Panel::kHint], "Auto Pipe Size - Unsized pipes captured");
  project.UnsizedCount = 0;
  mnuCalcSetPipe_Click(session);
  EXPECT_EQ(dialogs.messages.back().text, "You do not have any unsized pipes in this project");
}

}  // namespace
}  // namespace zeb::test
