#include "calc/limit_lists.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "calc/limit_list_form.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb {
namespace {

using test::MadeNetwork;
using test::TestSession;

struct ShownList {
  std::string caption, title, header, columns, rows, foot;
};

// Two pipes and a head that keep all limits.
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
    project.HeadPressure[1] = 1.0F;
    project.HeadStartPressure[1] = 1.0F;
    project.HeadOrifice[1] = 15.0F;
    project.SourceFlow = 60.0F;
    project.SourcePressure = 2.5F;
    project.minVel = 1.0F;
    project.maxVel = 6.0F;
    project.maxPD = 1.0F;
    shell.OnForm<LimitListForm>("frmLimitList", [this](LimitListForm& form) {
      lists.push_back({form.Caption, form.Title, form.Header,
                       form.Columns[0] + "|" + form.Columns[1], form.Rows, form.Foot});
    });
  }

  Project& project = session.project;
  std::vector<ShownList> lists;
};

TEST(LimitListsTest, ShowsNothingWithinLimits) {
  WithinLimits t;
  ShowLimitLists(t.session);
  EXPECT_TRUE(t.lists.empty());
  EXPECT_EQ(t.project.PipeError[2], 0);
  EXPECT_EQ(t.project.HeadOrifice[1], 15.0F);
}

TEST(LimitListsTest, ListsPipes) {
  WithinLimits t;
  t.project.PipeVelocity[2] = 6.0F;
  ShowLimitLists(t.session);
  ASSERT_EQ(t.lists.size(), 1U);
  const ShownList& list = t.lists[0];
  EXPECT_EQ(list.caption, "List of pipes beyond specified limits");
  EXPECT_EQ(list.title, "Source duty = 60.0 L/min at 2.500 bars");
  EXPECT_EQ(list.header, "1 pipes with velocities over 6 m/s");
  EXPECT_EQ(list.columns,
            " N o d e s   Size  F l o w   Vel   Eq.len  Pressure|"
            "Start   End   mm    L/min    m/s      m    drop bars");
  EXPECT_EQ(list.rows, "    2    30   25     60.0    6.00    4.25    0.500\r\n");
  EXPECT_EQ(list.foot, "These pipes may be undersized - click on 'OK' to proceed");
  EXPECT_EQ(t.project.PipeError[1], 0);
  EXPECT_EQ(t.project.PipeError[2], 1);
}

TEST(LimitListsTest, ListsHeads) {
  WithinLimits t;
  t.project.HeadMinPress[1] = 1.5F;
  ShowLimitLists(t.session);
  ASSERT_EQ(t.lists.size(), 1U);
  const ShownList& list = t.lists[0];
  EXPECT_EQ(list.caption, "List of under performing heads");
  EXPECT_EQ(list.header, "1 heads are under their minimum specified pressures");
  EXPECT_EQ(list.columns,
            "Head  F l o w  Area  Density mm/min   Pressure bars|"
            "node   L/min   sq.m  Reqd    Actual   Reqd   Actual");
  EXPECT_EQ(list.rows, "  30    60.0 12.000   5.0      5.00   1.50    1.000\r\n");
  EXPECT_EQ(list.foot, "Possible incorrect 'k' factors or areas - click on 'OK' to proceed");
  EXPECT_EQ(t.project.HeadOrifice[1], -15.0F);
}

TEST(LimitListsTest, BlamesAWeakSupply) {
  WithinLimits t;
  t.project.HeadMinPress[1] = 1.5F;
  t.project.PumpCurveIndex = 2;
  ShowLimitLists(t.session);
  ASSERT_EQ(t.lists.size(), 1U);
  EXPECT_EQ(t.lists[0].foot, "Possible inadequate pump curve specified");
}

TEST(LimitListsTest, CountsALimitItselfAsBroken) {
  const struct {
    std::function<void(Project&)> set;
    const char* header;  // empty when no list is shown
  } cases[] = {
      {[](Project& p) { p.PipeVelocity[2] = 1.0F; }, "1 pipes with velocities under 1 m/s"},
      {[](Project& p) { p.PipeVelocity[2] = 1.001F; }, ""},
      {[](Project& p) { p.PipeVelocity[2] = 5.999F; }, ""},
      {[](Project& p) { p.PipeDrop[2] = -1.0F; }, "1 pipes with pressure drops over 1 bar"},
      {[](Project& p) { p.PipeDrop[2] = -0.999F; }, ""},
      {[](Project& p) { p.HeadMinPress[1] = 1.0009F; }, ""},
      {[](Project& p) { p.HeadDensity[1] = 5.0009F; }, ""},
      {[](Project& p) { p.HeadDensity[1] = 5.0011F; },
       "1 heads are under their minimum specified density"},
      // The flow at the required pressure is 60 root 1/9 = 20 L/min.
      {[](Project& p) { p.HeadStartPressure[1] = 0.1112F; }, ""},
      {[](Project& p) { p.HeadStartPressure[1] = 0.111F; },
       "1 heads are over 3 x required minimum flow"},
      {[](Project& p) {
         p.HeadMinPress[1] = 2.0F;
         p.HeadCode[1] = -1.0F;
       },
       ""},
      {[](Project& p) {
         p.HeadMinPress[1] = 2.0F;
         p.SelectedHeadsMode = 1;
       },
       ""},
  };
  int number = 0;
  for (const auto& c : cases) {
    WithinLimits t;
    c.set(t.project);
    ShowLimitLists(t.session);
    EXPECT_EQ(t.lists.empty() ? "" : t.lists[0].header, c.header) << number;
    EXPECT_LE(t.lists.size(), 1U) << number;
    ++number;
  }
}

TEST(LimitListsTest, StopsGrowingButCountsAll) {
  WithinLimits t;
  MadeNetwork network(t.project);
  t.project.PipeCount = 0;
  t.project.HeadCount = 0;
  for (int pipe = 1; pipe <= 2000; ++pipe) network.Pipe(pipe, pipe + 1, 1, 1.0F);
  t.project.minVel = -1.0F;
  t.project.maxVel = 0.0F;
  ShowLimitLists(t.session);
  ASSERT_EQ(t.lists.size(), 1U);
  EXPECT_EQ(t.lists[0].header, "2000 pipes with velocities over 0 m/s");
  EXPECT_EQ(t.lists[0].rows.size(), 52U * 1154U);  // the first whole row past 60000 characters
  EXPECT_EQ(t.project.PipeError[2000], 1);
}

}  // namespace
}  // namespace zeb
