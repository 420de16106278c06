#include "calc/limit_lists.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "calc/limit_list_form.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// Two pipes and a head that keep all limits. A list is kept as its texts, one a line.
struct WithinLimits : TestSession {
  WithinLimits() {
    MadeNetwork network(project);
    network.Pipe(1, 2, 3, 4.0F);
    network.Pipe(2, 30, 1, 4.0F);
    for (int pipe = 1; pipe <= 2; ++pipe) {
      project.PipeFlow[pipe] = 60.0F;
      project.PipeVelocity[pipe] = 2.0F;
      project.PipeEqLength[pipe] = 4.25F;
      project.PipeDrop[pipe] = 0.5F;
    }
    network.Head(2, 60.0F, 12.0F, 5.0F, 0.5F);
    project.HeadFlow[1] = 60.0F;
    project.HeadPressure[1] = project.HeadStartPressure[1] = 1.0F;
    project.HeadOrifice[1] = 15.0F;
    project.SourceFlow = 60.0F;
    project.SourcePressure = 2.5F;
    project.minVel = 1.0F;
    project.maxVel = 6.0F;
    project.maxPD = 1.0F;
    shell.OnForm<LimitListForm>("frmLimitList", [this](const LimitListForm& form) {
      headers += form.Header;
      text = form.Caption + "\n" + form.Title + "\n" + form.Header + "\n" + form.Columns[0] + "\n" +
             form.Columns[1] + "\n" + form.Rows + form.Foot;
    });
  }

  std::string headers, text;
};

struct LimitLists : testing::Test, WithinLimits {};

TEST_F(LimitLists, ListsPipesAndMarksThem) {
  project.PipeVelocity[2] = 6.0F;
  ShowLimitLists(session);
  EXPECT_EQ(text,
            "List of pipes beyond specified limits\n"
            "Source duty = 60.0 L/min at 2.500 bars\n"
            "1 pipes with velocities over 6 m/s\n"
            " N o d e s   Size  F l o w   Vel   Eq.len  Pressure\n"
            "Start   End   mm    L/min    m/s      m    drop bars\n"
            "    2    30   25     60.0    6.00    4.25    0.500\r\n"
            "These pipes may be undersized - click on 'OK' to proceed");
  EXPECT_EQ(project.PipeError[1], 0);
  EXPECT_EQ(project.PipeError[2], 1);
}

TEST_F(LimitLists, ListsHeadsAndMarksThem) {
  project.HeadMinPress[1] = 1.5F;
  ShowLimitLists(session);
  EXPECT_EQ(text,
            "List of under performing heads\n"
            "Source duty = 60.0 L/min at 2.500 bars\n"
            "1 heads are under their minimum specified pressures\n"
            "Head  F l o w  Area  Density mm/min   Pressure bars\n"
            "node   L/min   sq.m  Reqd    Actual   Reqd   Actual\n"
            "  30    60.0 12.000   5.0      5.00   1.50    1.000\r\n"
            "Possible incorrect 'k' factors or areas - click on 'OK' to proceed");
  EXPECT_EQ(project.HeadOrifice[1], -15.0F);
  project.PumpCurveIndex = 2;
  ShowLimitLists(session);
  EXPECT_TRUE(text.ends_with("\r\nPossible inadequate pump curve specified"));
}

TEST(LimitListsTest, CountsALimitItselfAsBroken) {
  const std::pair<void (*)(Project&), std::string> cases[] = {
      {[](Project& p) { p.PipeVelocity[2] = 1.0F; }, "1 pipes with velocities under 1 m/s"},
      {[](Project& p) { p.PipeVelocity[2] = 1.001F; }, ""},
      {[](Project& p) { p.PipeVelocity[2] = 5.999F; }, ""},
      {[](Project& p) { p.PipeDrop[2] = -1.0F; }, "1 pipes with pressure drops over 1 bar"},
      {[](Project& p) { p.PipeDrop[2] = -0.999F; }, ""},
      {[](Project& p) { p.HeadMinPress[1] = 1.0009F; }, ""},
      {[](Project& p) { p.HeadDensity[1] = 5.0009F; }, ""},
      {[](Project& p) { p.HeadDensity[1] = 5.0011F; },
       "1 heads are under their minimum specified density"},
      // The head gives three times 20 L/min, which it would give at 1/9 bar.
      {[](Project& p) { p.HeadStartPressure[1] = 0.1112F; }, ""},
      {[](Project& p) { p.HeadStartPressure[1] = 0.111F; },
       "1 heads are over 3 x required minimum flow"}};
  for (const auto& [change, headers] : cases) {
    WithinLimits t;
    change(t.project);
    ShowLimitLists(t.session);
    EXPECT_EQ(t.headers, headers);
  }
}

TEST_F(LimitLists, LeavesOutAddedBuildingsAndHeadsThatAreOff) {
  project.HeadMinPress[1] = 2.0F;
  project.HeadCode[1] = -1.0F;
  ShowLimitLists(session);
  project.HeadCode[1] = 1.0F;
  project.SelectedHeadsMode = 1;
  ShowLimitLists(session);
  EXPECT_EQ(headers, "");
}

}  // namespace
}  // namespace zeb::test
