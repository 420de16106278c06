#include "calc/calc_summary.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "calc/result_tables.h"
#include "check/summary_form.h"
#include "made_network.h"
#include "services/text.h"
#include "support/real_file.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// One head of 100 L/min at the end of two pipes, as a calculation leaves it.
struct CalcSummary : testing::Test, TestSession {
  CalcSummary() {
    MadeNetwork network(project);
    network.Pipe(1, 2, 3, 10.0F);
    network.Head(network.Pipe(2, 12, 1, 5.0F), 70.71068F, 20.0F, 5.0F, 1.0F);
    project.PipeFlow[1] = project.PipeFlow[2] = 100.0F;
    project.PipeVelocity[1] = 0.75F;
    project.PipeVelocity[2] = 2.85F;
    project.PipeDrop[1] = 0.05F;
    project.PipeDrop[2] = 0.45F;
    project.PipeEqLength[1] = 9.999F;
    project.PipeEqLength[2] = 4.999F;
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

TEST_F(CalcSummary, TellsOfADemand) {
  EXPECT_TRUE(BuildCalcSummary(session));
  EXPECT_EQ(project.CalcSummary, RealFile(ZEB_FIXTURES "/demand_summary.txt"));
  EXPECT_EQ(project.ResultLine, "Source Duty =   100.0 L/min @   2.500 bar");
  EXPECT_TRUE(dialogs.messages.empty());
}

// All that a summary can tell: a supply that is too weak, for a picked part of a grid with unsized
// pipes and a hydrant, out of balance.
TEST_F(CalcSummary, TellsOfASupply) {
  MadeNetwork(project).Supply({0, 5, 1000, 4, 2000, 2}, 2.5F);
  project.PumpCurveIndex = 2;
  project.OffCurve = 1;
  project.DemandFlow = 98.3F;
  project.DemandPressure = 2.125F;
  project.HeadMinPress[1] = 2.25F;
  project.HeadDensity[1] = 6.0F;
  project.SelectedHeadsMode = project.HeadOn[1] = 1;
  project.SelectedArea = 10.0F;
  project.TotalHydrantFlow = 40.0F;
  ComputeResultTables(session);
  project.UnsizedCount = project.SizedCount = 2;
  project.VelocityReportLimit = 2.8F;
  project.PipesOverSpeed = 1;
  ItemText(project, Item::kAreaReference) = "Most Unfavourable";
  project.AmaoFlowA = 150.0F;
  project.AmaoFlowB = 120.0F;
  project.AmaoDifference = 30.0F;
  project.MrHead1 = project.MrHead2 = project.MrHead3 = project.MrHead4 = 1;
  project.MrFlow = 400.0F;
  project.MrArea = 19.0F;
  project.MrAreaAverage = 20.0F;
  project.MrDensity = 5.2632F;
  project.MrRequiredDensity = 6.0F;
  project.BackupFile = "/HALL.ZE!";
  project.NodeFlowError = 0.2F;
  project.Schedule40Type = 1;
  project.LossModel = 2;
  EXPECT_FALSE(BuildCalcSummary(session));
  EXPECT_EQ(project.CalcSummary, RealFile(ZEB_FIXTURES "/supply_summary.txt"));
  EXPECT_EQ(project.ResultLine, "Calculation Incomplete");
  EXPECT_EQ(project.HeadOrifice[1], -15.0F);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text,
            "The calculation has fail to balance please check the Calculation Summary");
  project.NodeFlowError = project.FlowBalance = 0.0F;
  BuildCalcSummary(session);
  EXPECT_EQ(project.ResultLine, "Supply Duty =   100.0 L/min @   2.500 bar");
}

TEST_F(CalcSummary, ChangesWithRulesAndEquations) {
  project.PumpCurveIndex = 1;
  project.LossModel = 1;
  BuildCalcSummary(session);
  EXPECT_TRUE(Contains(project.CalcSummary, "Flow rate = Qmax as tank ht"));
  EXPECT_TRUE(Contains(project.CalcSummary, "\r\n\r\nDarcy Weisbach (Moody):\r\n"));
  project.RuleType = 2;
  project.TotalHeadArea = 1.0F;
  ItemText(project, Item::kDensity) = "0";
  BuildCalcSummary(session);
  EXPECT_TRUE(Contains(project.CalcSummary, "       NFPA/FM Rules: HW 'C's may be changed\r\n"));
  for (const char* absent : {"tank", "Hydraulic gradient", "Average density"}) {
    EXPECT_FALSE(Contains(project.CalcSummary, absent)) << absent;
  }
}

TEST_F(CalcSummary, CapsTheVelocityProfile) {
  project.MaxVelocity = 250.0F;
  BuildCalcSummary(session);
  EXPECT_TRUE(Contains(project.CalcSummary, "       Max. velocity:   250.00 m/s"));
  EXPECT_TRUE(Contains(project.CalcSummary, "  119 to  120 m/s :     0"));
  EXPECT_EQ(project.MaxVelocity, 119.0F);
}

TEST_F(CalcSummary, FailsBeyondTheLimitsOfTheBalance) {
  const std::tuple<float SystemValues::*, float, float, const char*> cases[] = {
      {&SystemValues::NodeFlowError, 0.1F, 0.1001F, "/min\r\n  WARNING   Must be <= 0.1 L/min\r\n"},
      {&SystemValues::PipePdError, 0.005F, 0.00501F,
       "  WARNING   Must be < 0.001 bar\r\n Heads max"},
      {&SystemValues::HeadPdError, 0.001F, 0.00101F,
       "  WARNING   Must be < 0.001 bar\r\n Max. err"},
      {&SystemValues::FlowBalance, 1.0F, 1.001F, " %\r\n  WARNING   Must be < 1%\r\n"}};
  project.LoopError = 5.0F;  // has no limit
  for (const auto& [error, within, beyond, warning] : cases) {
    project.*error = within;
    EXPECT_TRUE(BuildCalcSummary(session)) << warning;
    EXPECT_FALSE(Contains(project.CalcSummary, "WARNING")) << warning;
    project.*error = beyond;
    EXPECT_FALSE(BuildCalcSummary(session)) << warning;
    EXPECT_TRUE(Contains(project.CalcSummary, warning)) << project.CalcSummary;
    project.*error = 0.0F;
  }
}

TEST_F(CalcSummary, OffersToVaryEnteredSizesOfADemand) {
  std::string offers;
  shell.OnForm<SummaryForm>("frmCalcSummary", [&](const SummaryForm& form) {
    offers += form.ShowsOptimise ? "yes " : "no ";
  });
  ShowCalcSummary(session);
  project.PumpCurveIndex = 2;
  ShowCalcSummary(session);
  project.PumpCurveIndex = 0;
  project.UnsizedCount = 1;
  ShowCalcSummary(session);
  EXPECT_EQ(offers, "yes no no ");
}

}  // namespace
}  // namespace zeb::test
