#include "calc/calc_summary.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "check/summary_form.h"
#include "made_network.h"
#include "services/text.h"
#include "support/test_session.h"

namespace zeb {
namespace {

using test::MadeNetwork;
using test::TestSession;

// One head of 100 L/min at the end of two pipes, with the tables as a calculation leaves them.
struct Calculated : TestSession {
  Calculated() {
    MadeNetwork network(project);
    network.Pipe(1, 2, 3, 10.0F);
    network.Head(network.Pipe(2, 12, 1, 5.0F), 70.71068F, 20.0F, 5.0F, 1.0F);
    for (int pipe = 1; pipe <= 2; ++pipe) {
      project.PipeFlow[pipe] = 100.0F;
      project.PipeVelocity[pipe] = pipe == 1 ? 0.75F : 2.85F;
    }
    project.HeadFlow[1] = 100.0F;
    project.HeadPressure[1] = 2.0F;
    project.HeadOrifice[1] = 15.0F;
    project.VelocityBuckets[0] = 1;
    project.VelocityBuckets[2] = 1;
    project.VelocityReportLimit = 10.0F;
    project.TotalHeadArea = 20.0F;
    project.DesignFlow = 95.0F;
    project.SumHeadFlow = 100.0F;
    project.SourceFlow = 100.0F;
    project.SourcePressure = 2.5F;
    project.RemotestHead = 1;
    project.RemotestNode = 12;
    project.MinHeadDensity = project.MaxHeadDensity = 5.0F;
    project.MinHeadFlow = project.MaxHeadFlow = 100.0F;
    project.MinHeadPressure = project.MaxHeadPressure = 2.0F;
    project.MinPipeFlow = project.MaxPipeFlow = 100.0F;
    project.MinVelocity = 0.75F;
    project.MaxVelocity = 2.85F;
    project.MinPipeDrop = 0.05F;
    project.MaxPipeDrop = 0.45F;
    project.MinGradient = 5.0F;
    project.MaxGradient = 90.0F;
    project.MinEqLength = 5.0F;
    project.MaxEqLength = 10.0F;
    project.HeadsOver2Bar = 1;
    project.IterationCount = 4;
    project.Relaxation = 0.6F;
    project.CalculationTime = 0.25F;
    project.ProjectPath = "/HALL.ZEB";
  }

  Project& project = session.project;
};

std::string WithLineBreaks(const std::string& text) { return ReplaceAll(text, "\n", "\r\n"); }

TEST(CalcSummaryTest, TellsOfADemand) {
  Calculated t;
  EXPECT_TRUE(BuildCalcSummary(t.session));
  EXPECT_EQ(t.project.CalcSummary, WithLineBreaks(
                                       R"(   Design Efficiency:    95 %
Heads under pressure:     0
 Heads under density:     0
   Heads above 2 bar:     1
  Pipes with no flow:     0
    Pipes > 10.0 m/s:     0
  Remotest head node:    12
   Min. head density:     5.00 mm/min
   Max. head density:     5.00 mm/min
      Min. head flow:   100.0 L/min
      Max. head flow:   100.0 L/min
  Min. head pressure:     2.000 bar
  Max. head pressure:     2.000 bar
 Min. pipe flow rate:   100.0 L/min
 Max. pipe flow rate:   100.0 L/min
       Min. velocity:     0.75 m/s
       Max. velocity:     2.85 m/s
                          9.35 ft/sec
Max. vel thro valves:     0.00 m/s
  Min. pipe pressure:     0.050 bar
  Max. pipe pressure:     0.450 bar
  Min. pressure drop:     5.00 mb/m
  Max. pressure drop:    90.00 mb/m
   Min. equiv length:     5.000 m
   Max. equiv length:    10.000 m
      Metres to bars:    10.000
         SG of fluid:     1.000
  Hydraulic gradient:     0.00 %
   Sum of head flows:   100.0 L/min
    Source flow rate:   100.0 L/min
                          6.0 m3/hr
                         22.0 gpm
                         26.4 US.GPM
     Source pressure:     2.500 bar
                        250.000 kPa
                         36.260 psi
  Total area covered:    20.000 sq.m
                        215.272 sq.ft
     Average density:     0.12 US.GPM/sq.ft
    Velocity profile:   Pipes      Total no
    0 to    1 m/s :     1    2
    1 to    2 m/s :     0    1
    2 to    3 m/s :     1    1
   No. of iterations:     4
   Relaxation factor:     0.60000
Max. node flow error:     0.00000 L/min
 Pipes max. pd error:     0.00000 bar
 Heads max. pd error:     0.00000 bar
 Max. error in loops:     0.00000 bar
Overall flow balance:     0.00000 %
    Calculation time:     0.25   secs

End of summary for /HALL.ZEB
)"));
  EXPECT_EQ(t.project.ResultLine, "Source Duty =   100.0 L/min @   2.500 bar");
  EXPECT_EQ(t.project.ReportArea, 20.0F);
  EXPECT_TRUE(t.dialogs.messages.empty());
}

// The lines of the summary between two others, both left out.
std::string Between(const Project& project, const std::string& before, const std::string& after) {
  const std::string& text = project.CalcSummary;
  const std::size_t from = text.find(before);
  const std::size_t to = text.find(after);
  EXPECT_NE(from, std::string::npos) << before;
  EXPECT_NE(to, std::string::npos) << after;
  if (from == std::string::npos || to == std::string::npos) return text;
  const std::size_t start = text.find("\r\n", from) + 2;
  return ReplaceAll(text.substr(start, to - start), "\r\n", "\n");
}

TEST(CalcSummaryTest, TellsOfACurveAndItsTank) {
  Calculated t;
  MadeNetwork(t.project).Supply({0, 5, 1000, 4, 2000, 2}, 2.5F);
  t.project.PumpCurveIndex = 2;
  t.project.OffCurve = 1;
  t.project.DemandFlow = 98.3F;
  t.project.DemandPressure = 2.125F;
  ItemText(t.project, Item::kAreaReference) = "Most remote";
  BuildCalcSummary(t.session);
  EXPECT_TRUE(t.project.CalcSummary.starts_with(
      "Source Duty: 98.3 L/min 2.125 bar\r\n   Design Efficiency:    95 %\r\n"));
  EXPECT_EQ(Between(t.project, "Design Eff", "Heads under pressure"),
            R"(Balanced to Pump
            0 L/min :     5.000 bars
         1000 L/min :     4.000 bars
         2000 L/min :     2.000 bars
         2000 L/min :     2.000 bars
         2000 L/min :     2.000 bars
         2000 L/min :     2.000 bars
         2000 L/min :     2.000 bars
         2000 L/min :     2.000 bars
WARNING! Flow is beyond pump curve
         so highest pressure taken
Flow rate = qcap as tank ht of    2.500 m included
For 30 mins duration:     3.000 cu.m tank
For 60 mins duration:     6.000 cu.m tank
For 90 mins duration:     9.000 cu.m tank
)");
  EXPECT_EQ(t.project.ResultLine, "Supply Duty =   100.0 L/min @   2.500 bar");

  ItemText(t.project, Item::kAreaReference) = "Most favourable";
  BuildCalcSummary(t.session);
  EXPECT_TRUE(Contains(t.project.CalcSummary, "Flow rate = Qmax as tank ht"));
  t.project.RuleType = 2;
  BuildCalcSummary(t.session);
  EXPECT_FALSE(Contains(t.project.CalcSummary, "tank"));
}

TEST(CalcSummaryTest, ListsAndMarksHeadsBelowTheirDuty) {
  Calculated t;
  t.project.HeadMinPress[1] = 2.25F;
  t.project.HeadDensity[1] = 5.0005F;  // not counted, yet listed
  t.project.HeadsUnderPressure = 1;
  t.project.HeadsUnderDensity = 1;
  BuildCalcSummary(t.session);
  EXPECT_EQ(Between(t.project, "Heads under pressure", " Heads under density"),
            "Head    Flow   Area    Pressure bar\n"
            "node   L/min   sq.m     Act     Min\n"
            "  12  100.00 20.000   2.000   2.250\n");
  EXPECT_EQ(Between(t.project, " Heads under density", "   Heads above 2 bar"),
            "Head    Flow   Area   Density mm/min\n"
            "node   L/min   sq.m   Req.d   Actual\n"
            "  12  100.00 20.000    5.00     5.00\n");
  EXPECT_EQ(t.project.HeadOrifice[1], -15.0F);
}

TEST(CalcSummaryTest, TellsOfSizesAndFastPipes) {
  Calculated t;
  t.project.UnsizedCount = 2;
  t.project.SizedCount = 2;
  t.project.PipeVolume = 0.125F;
  t.project.VelocityReportLimit = 2.8F;
  t.project.PipesOverSpeed = 1;
  BuildCalcSummary(t.session);
  EXPECT_EQ(Between(t.project, "  Pipes with no flow", "  Remotest head node"),
            "   No of pipes sized:     2\n"
            "         Pipe volume:     0.125 cu.m\n"
            "    Pipes >  2.8 m/s:     1\n"
            " P i p e     Size     Flow  Velocity\n"
            "Start  End    mm     L/min    m/s\n"
            "   2    12    25     100.0    2.85\n");
}

TEST(CalcSummaryTest, TellsOfTheRemoteHeadsAndTheGrid) {
  Calculated t;
  t.project.MrHead1 = t.project.MrHead2 = t.project.MrHead3 = t.project.MrHead4 = 1;
  t.project.MrFlow = 400.0F;
  t.project.MrArea = 19.0F;
  t.project.MrAreaAverage = 20.0F;
  t.project.MrDensity = 5.2632F;
  t.project.MrRequiredDensity = 5.0F;
  t.project.AmaoFlowA = 150.0F;
  t.project.AmaoFlowB = 120.0F;
  t.project.AmaoDifference = 30.0F;
  ItemText(t.project, Item::kAreaReference) = "Most Unfavourable";
  BuildCalcSummary(t.session);
  const std::string row = "   1     12    100.0  20.000     5.00\n";
  EXPECT_EQ(Between(t.project, "  Remotest head node", "   Min. head density"),
            "If this is a GRIDDED system, then\n"
            " From start of range:   150.0 L/min\n"
            "  and from other end:   120.0 L/min\n"
            "This is certainly the correct AMAO\n"
            "Head   Node     Flow    Area    Density\n"
            " no     no     L/min    sq.m     mm/min\n" +
                row + row + row + row +
                " Total flow to heads:   400.0 L/min\n"
                "  Area between heads:    19.000 sq.m\n"
                " Total 4 mrhs area/4:    20.000 sq.m\n"
                " Density over 4 mrhs:     5.26 mm/min\n"
                "                          0.13 US.GPM/sq.ft\n"
                "   Specified density:     5.00 mm/min\n"
                "                          0.12 US.GPM/sq.ft\n");
}

TEST(CalcSummaryTest, TellsOfFilesRulesAndEquations) {
  Calculated t;
  t.project.BackupFile = "/HALL.ZE!";
  t.project.RuleType = 3;
  t.project.Schedule40Type = 1;
  t.project.LossModel = 2;
  t.project.FluidDensity = 998.0F;
  t.project.FluidViscosity = 0.95F;
  BuildCalcSummary(t.session);
  EXPECT_EQ(Between(t.project, "   Max. equiv length", "      Metres to bars"),
            "         Backup file: /HALL.ZE!\n"
            "       NFPA/FM Rules: HW 'C's may be changed\n");
  EXPECT_EQ(Between(t.project, "Overall flow balance", "    Calculation time"),
            "NFPA Eqn 6-4.3.1 used for non Sch 40 pipes\n"
            "\n"
            "Darcy Weisbach:\n"
            "            Density :   998.00   kg/m3\n"
            "          Viscosity :     0.95   centipoise\n"
            "\n");
  t.project.LossModel = 1;
  BuildCalcSummary(t.session);
  EXPECT_TRUE(Contains(t.project.CalcSummary, "\r\n\r\nDarcy Weisbach (Moody):\r\n"));
}

TEST(CalcSummaryTest, CoversThePickedAreaLessHydrants) {
  Calculated t;
  t.project.SelectedHeadsMode = 1;
  t.project.SelectedArea = 10.0F;
  t.project.HeadOn[1] = 1;
  t.project.TotalHydrantFlow = 40.0F;
  BuildCalcSummary(t.session);
  EXPECT_EQ(t.project.ReportArea, 10.0F);
  EXPECT_TRUE(Contains(t.project.CalcSummary, "  Hydraulic gradient:    20.00 %\r\n"));
  EXPECT_TRUE(Contains(t.project.CalcSummary, "     Average density:     0.15 US.GPM/sq.ft\r\n"));

  t.project.SelectedArea = 1.0F;
  ItemText(t.project, Item::kDensity) = "0";
  BuildCalcSummary(t.session);
  EXPECT_FALSE(Contains(t.project.CalcSummary, "Hydraulic gradient"));
  EXPECT_FALSE(Contains(t.project.CalcSummary, "Average density"));
}

TEST(CalcSummaryTest, CapsTheVelocityProfile) {
  Calculated t;
  t.project.MaxVelocity = 250.0F;
  t.project.VelocityBuckets[119] = 1;
  BuildCalcSummary(t.session);
  EXPECT_TRUE(Contains(t.project.CalcSummary, "       Max. velocity:   250.00 m/s"));
  EXPECT_TRUE(Contains(t.project.CalcSummary, "  119 to  120 m/s :     1"));
  EXPECT_EQ(t.project.MaxVelocity, 119.0F);
}

TEST(CalcSummaryTest, FailsBeyondTheLimitsOfTheBalance) {
  const struct {
    const char* what;
    float SystemValues::*error;
    float within, beyond;
    const char* warning;
  } cases[] = {
      {"node flow", &SystemValues::NodeFlowError, 0.1F, 0.1001F,
       " L/min\r\n  WARNING   Must be <= 0.1 L/min\r\n"},
      {"pipes", &SystemValues::PipePdError, 0.005F, 0.00501F,
       " bar\r\n  WARNING   Must be < 0.001 bar\r\n Heads max"},
      {"heads", &SystemValues::HeadPdError, 0.001F, 0.00101F,
       " bar\r\n  WARNING   Must be < 0.001 bar\r\n Max. error"},
      {"flows", &SystemValues::FlowBalance, 1.0F, 1.001F, " %\r\n  WARNING   Must be < 1%\r\n"},
  };
  for (const auto& c : cases) {
    Calculated t;
    t.project.LoopError = 5.0F;
    t.project.*c.error = c.within;
    EXPECT_TRUE(BuildCalcSummary(t.session)) << c.what;
    EXPECT_FALSE(Contains(t.project.CalcSummary, "WARNING")) << c.what;
    t.project.*c.error = c.beyond;
    EXPECT_FALSE(BuildCalcSummary(t.session)) << c.what;
    EXPECT_TRUE(Contains(t.project.CalcSummary, c.warning)) << c.what;
    EXPECT_TRUE(t.project.CalcSummary.starts_with(
        "*** Warring this calculation has not balanced ***\r\n\r\n   Design"))
        << c.what;
    EXPECT_EQ(t.project.ResultLine, "Calculation Incomplete") << c.what;
    ASSERT_EQ(t.dialogs.messages.size(), 1U) << c.what;
    EXPECT_EQ(t.dialogs.messages[0].title, "Calculation Error");
    EXPECT_EQ(t.dialogs.messages[0].text,
              "The calculation has fail to balance please check the Calculation Summary");
  }
}

TEST(ShowCalcSummaryTest, OffersToVarySizesThatWereEntered) {
  const struct {
    int curve, unsized;
    bool optimise;
  } cases[] = {{0, 0, true}, {2, 0, false}, {0, 1, false}};
  for (const auto& c : cases) {
    Calculated t;
    t.project.PumpCurveIndex = c.curve;
    t.project.UnsizedCount = c.unsized;
    bool shown = false;
    t.shell.OnForm<SummaryForm>("frmCalcSummary", [&](const SummaryForm& form) {
      shown = true;
      EXPECT_EQ(form.ShowsOptimise, c.optimise) << c.curve;
      EXPECT_EQ(form.Caption, "CALCULATIONS SUMMARY FOR /HALL.ZEB");
    });
    ShowCalcSummary(t.session);
    EXPECT_TRUE(shown);
  }
}

}  // namespace
}  // namespace zeb
