#include "calc/calc_summary.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "calc/result_tables.h"
#include "check/summary_form.h"
#include "made_network.h"
#include "services/text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// One head of 100 L/min at the end of two pipes, as a calculation leaves it.
struct Calculated : TestSession {
  Calculated() {
    MadeNetwork network(project);
    network.Pipe(1, 2, 3, 10.0F);
    network.Head(network.Pipe(2, 12, 1, 5.0F), 70.71068F, 20.0F, 5.0F, 1.0F);
    for (int pipe = 1; pipe <= 2; ++pipe) {
      project.PipeFlow[pipe] = 100.0F;
      project.PipeVelocity[pipe] = pipe == 1 ? 0.75F : 2.85F;
      project.PipeDrop[pipe] = pipe == 1 ? 0.05F : 0.45F;
      project.PipeEqLength[pipe] = pipe == 1 ? 9.999F : 4.999F;
    }
    project.PipeEndPressure[2] = 2.0F;
    project.HeadFlow[1] = 100.0F;
    project.HeadPressure[1] = 2.0F;
    project.HeadOrifice[1] = 15.0F;
    project.TotalHeadArea = 20.0F;
    project.DesignFlow = 95.0F;
    project.SourceFlow = 100.0F;
    project.SourcePressure = 2.5F;
    project.FluidDensity = 998.0F;
    project.FluidViscosity = 0.95F;
    project.RemotestHead = 1;
    project.RemotestNode = 12;
    project.IterationCount = 4;
    project.Relaxation = 0.6F;
    project.CalculationTime = 0.25F;
    project.ProjectPath = "/HALL.ZEB";
    ComputeResultTables(session);
  }
};

// A text of the fixtures, byte by byte.
std::string Fixture(const std::string& name) {
  std::ifstream file(std::string(ZEB_FIXTURES) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(CalcSummaryTest, TellsOfADemand) {
  Calculated t;
  EXPECT_TRUE(BuildCalcSummary(t.session));
  EXPECT_EQ(t.project.CalcSummary, Fixture("demand_summary.txt"));
  EXPECT_EQ(t.project.ResultLine, "Source Duty =   100.0 L/min @   2.500 bar");
  EXPECT_TRUE(t.dialogs.messages.empty());
}

// All that a summary can tell: a supply that is too weak, for a picked part of a grid with unsized
// pipes and a hydrant, out of balance.
TEST(CalcSummaryTest, TellsOfASupply) {
  Calculated t;
  Project& p = t.project;
  MadeNetwork(p).Supply({0, 5, 1000, 4, 2000, 2}, 2.5F);
  p.PumpCurveIndex = 2;
  p.OffCurve = 1;
  p.DemandFlow = 98.3F;
  p.DemandPressure = 2.125F;
  p.HeadMinPress[1] = 2.25F;
  p.HeadDensity[1] = 6.0F;
  p.SelectedHeadsMode = p.HeadOn[1] = 1;
  p.SelectedArea = 10.0F;
  p.TotalHydrantFlow = 40.0F;
  ComputeResultTables(t.session);
  p.UnsizedCount = p.SizedCount = 2;
  p.VelocityReportLimit = 2.8F;
  p.PipesOverSpeed = 1;
  ItemText(p, Item::kAreaReference) = "Most Unfavourable";
  p.AmaoFlowA = 150.0F;
  p.AmaoFlowB = 120.0F;
  p.AmaoDifference = 30.0F;
  p.MrHead1 = p.MrHead2 = p.MrHead3 = p.MrHead4 = 1;
  p.MrFlow = 400.0F;
  p.MrArea = 19.0F;
  p.MrAreaAverage = 20.0F;
  p.MrDensity = 5.2632F;
  p.MrRequiredDensity = 6.0F;
  p.BackupFile = "/HALL.ZE!";
  p.NodeFlowError = 0.2F;
  p.Schedule40Type = 1;
  p.LossModel = 2;
  EXPECT_FALSE(BuildCalcSummary(t.session));
  EXPECT_EQ(p.CalcSummary, Fixture("supply_summary.txt"));
  EXPECT_EQ(p.ResultLine, "Calculation Incomplete");
  EXPECT_EQ(p.HeadOrifice[1], -15.0F);
  ASSERT_EQ(t.dialogs.messages.size(), 1U);
  EXPECT_EQ(t.dialogs.messages[0].text,
            "The calculation has fail to balance please check the Calculation Summary");
  p.NodeFlowError = p.FlowBalance = 0.0F;
  BuildCalcSummary(t.session);
  EXPECT_EQ(p.ResultLine, "Supply Duty =   100.0 L/min @   2.500 bar");
}

TEST(CalcSummaryTest, ChangesWithRulesAndEquations) {
  Calculated t;
  t.project.PumpCurveIndex = 1;
  t.project.LossModel = 1;
  BuildCalcSummary(t.session);
  EXPECT_TRUE(Contains(t.project.CalcSummary, "Flow rate = Qmax as tank ht"));
  EXPECT_TRUE(Contains(t.project.CalcSummary, "\r\n\r\nDarcy Weisbach (Moody):\r\n"));
  t.project.RuleType = 2;
  t.project.TotalHeadArea = 1.0F;
  ItemText(t.project, Item::kDensity) = "0";
  BuildCalcSummary(t.session);
  EXPECT_TRUE(Contains(t.project.CalcSummary, "       NFPA/FM Rules: HW 'C's may be changed\r\n"));
  for (const char* absent : {"tank", "Hydraulic gradient", "Average density"}) {
    EXPECT_FALSE(Contains(t.project.CalcSummary, absent)) << absent;
  }
}

TEST(CalcSummaryTest, CapsTheVelocityProfile) {
  Calculated t;
  t.project.MaxVelocity = 250.0F;
  BuildCalcSummary(t.session);
  EXPECT_TRUE(Contains(t.project.CalcSummary, "       Max. velocity:   250.00 m/s"));
  EXPECT_TRUE(Contains(t.project.CalcSummary, "  119 to  120 m/s :     0"));
  EXPECT_EQ(t.project.MaxVelocity, 119.0F);
}

TEST(CalcSummaryTest, FailsBeyondTheLimitsOfTheBalance) {
  const struct {
    float SystemValues::*error;
    float within, beyond;
    const char* warning;
  } cases[] = {
      {&SystemValues::NodeFlowError, 0.1F, 0.1001F, "/min\r\n  WARNING   Must be <= 0.1 L/min\r\n"},
      {&SystemValues::PipePdError, 0.005F, 0.00501F,
       "  WARNING   Must be < 0.001 bar\r\n Heads max"},
      {&SystemValues::HeadPdError, 0.001F, 0.00101F,
       "  WARNING   Must be < 0.001 bar\r\n Max. err"},
      {&SystemValues::FlowBalance, 1.0F, 1.001F, " %\r\n  WARNING   Must be < 1%\r\n"},
  };
  for (const auto& c : cases) {
    Calculated t;
    t.project.LoopError = 5.0F;  // has no limit
    t.project.*c.error = c.within;
    EXPECT_TRUE(BuildCalcSummary(t.session)) << c.warning;
    EXPECT_FALSE(Contains(t.project.CalcSummary, "WARNING")) << c.warning;
    t.project.*c.error = c.beyond;
    EXPECT_FALSE(BuildCalcSummary(t.session)) << c.warning;
    EXPECT_TRUE(Contains(t.project.CalcSummary, c.warning)) << t.project.CalcSummary;
  }
}

TEST(CalcSummaryTest, OffersToVaryEnteredSizesOfADemand) {
  Calculated t;
  std::string offers;
  t.shell.OnForm<SummaryForm>("frmCalcSummary", [&](const SummaryForm& form) {
    offers += form.ShowsOptimise ? "yes " : "no ";
  });
  ShowCalcSummary(t.session);
  t.project.PumpCurveIndex = 2;
  ShowCalcSummary(t.session);
  t.project.PumpCurveIndex = 0;
  t.project.UnsizedCount = 1;
  ShowCalcSummary(t.session);
  EXPECT_EQ(offers, "yes no no ");
}

}  // namespace
}  // namespace zeb::test
