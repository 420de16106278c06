// The examples that come with the program, from their files to their duties. The expected ones are
// from a solution of each whole network by Newton's method.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "calc/calc_options_form.h"
#include "calc/calculate_command.h"
#include "calc/calculation.h"
#include "calc/heads.h"
#include "calc/operating_heads.h"
#include "calc/sizing_form.h"
#include "calc/unsized_pipes.h"
#include "check/check_project.h"
#include "check/compose_line.h"
#include "project/open_project.h"
#include "support/real_file.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// `count` node numbers from each of the first ones.
std::vector<int> NodeRuns(std::initializer_list<int> firsts, int count) {
  std::vector<int> nodes;
  for (const int first : firsts) {
    for (int node = first; node < first + count; ++node) nodes.push_back(node);
  }
  return nodes;
}

struct Example : TestSession {
  explicit Example(const std::string& name) {
    session.SuppressErrors = true;
    session.authorities.Parse(RealFile(ZEB_DATA_DIR "/authorities/DesignAuth.csv"));
    files.Put("/prog/pipedata/STD_PIPE.PDT", RealFile(ZEB_DATA_DIR "/pipedata/STD_PIPE.PDT"));
    files.Put("/jobs/EXAMPLE.zeb", RealFile(ZEB_DATA_DIR "/examples/" + name + ".zeb"));
    commands.on_check = [this](CheckMode mode) { CheckProject(session, mode); };
    commands.on_compose = [this](int pipe) { ComposePipeLine(session, pipe); };
    OpenProject(session, "/jobs/EXAMPLE.zeb");
  }
  // Calculates without sizes, by a rule that the user picks in the dialog.
  void CalculateWithoutSizes(const std::string& supply) {
    project.SupplyNames[1] = "None";
    project.SupplyNames[2] = "Pump";
    project.SupplyTable[2] = kPump;
    project.SupplyCount = 2;
    ItemText(project, Item::kSupply) = supply;
    EXPECT_TRUE(ZeroAllPipes(session));
    CheckProject(session, CheckMode::kSilent);
    shell.OnForm<SizingForm>("frmCalcAutoSize", [](SizingForm& form) {
      form.Option2_Click();
      form.ot[1] = "5";
      form.OK_Click();
    });
    EXPECT_TRUE(Ccall(session));
  }

  static constexpr SupplyValues kPump{0,    8,     900,  7.92F, 1800, 7.68F, 2700, 7.28F,
                                      3600, 6.72F, 4500, 6,     5400, 5.12F, 6300, 4.08F};
};

TEST(ExamplesTest, GiveTheDutiesOfAnIndependentSolution) {
  struct Case {
    std::string file;
    std::vector<int> nodes;  // of the heads that operate; empty for all
    float flow, pressure;
    SupplyValues supply;  // none when empty
  };
  const std::vector<int> warehouse = NodeRuns({1308, 1328, 1348, 1368, 1388}, 6);
  const Case cases[] = {
      {"office_floor", NodeRuns({801, 901, 1001}, 6), 1446, 3.79F, {}},
      {"ridge_warehouse", warehouse, 4201, 3.91F, {}},
      {"ridge_warehouse", warehouse, 5141, 5.39F, Example::kPump},
      {"ring_main", {}, 4890, 3.65F, {}},
      {"ring_main", {}, 5575, 4.93F, Example::kPump},
      {"dwelling", {}, 180, 3.85F, {}},
      {"machinery_room_mist", {}, 699, 10.20F, {}},
      {"nfpa_grid", NodeRuns({1166, 1186, 1206}, 4), 1193, 3.54F, {}},
  };
  for (const Case& c : cases) {
    Example example(c.file);
    Project& project = example.project;
    if (!c.nodes.empty()) {
      EXPECT_TRUE(PickHeadsByNodes(example.session, c.nodes).empty()) << c.file;
      EXPECT_EQ(OperatingHeads(project).size(), c.nodes.size()) << c.file;
    }
    project.SupplyCount = 1;  // in force for want of the one that the project names
    project.SupplyTable[1] = c.supply;
    ASSERT_EQ(project.WarningCount, 0) << c.file << project.WarningText;
    ASSERT_TRUE(Calculation(example.session, CalculationMode::kSilent)) << c.file;
    EXPECT_NEAR(project.SourceFlow, c.flow, 0.01F * c.flow) << c.file;
    EXPECT_NEAR(project.SourcePressure, c.pressure, 0.01F * c.pressure) << c.file;
  }
}

// The summary tells the demand beside what the supply gives.
TEST(ExamplesTest, TellTheDemandOfWhatTheDialogChose) {
  Example chosen("ring_main");
  Project& project = chosen.project;
  project.SupplyCount = 2;
  project.SupplyNames[2] = "Pump";
  project.SupplyTable[2] = Example::kPump;
  ItemText(project, Item::kSupply) = "None";
  chosen.shell.OnForm<CalcOptionsForm>("frmCalc", [](CalcOptionsForm& form) {
    form.ComWaterSupply = "Pump";
    form.OK_Click();
  });
  EXPECT_TRUE(Ccall(chosen.session));
  EXPECT_NEAR(project.SourceFlow, 5575, 50);
  EXPECT_NEAR(project.DemandFlow, 4890, 50);
  EXPECT_NEAR(project.DemandPressure, 3.65F, 0.04F);

  Example demand("ring_main");
  demand.CalculateWithoutSizes("None");
  Example supplied("ring_main");
  supplied.CalculateWithoutSizes("Pump");
  EXPECT_NEAR(supplied.project.DemandFlow, demand.project.SourceFlow, 0.1);
  EXPECT_NEAR(supplied.project.DemandPressure, demand.project.SourcePressure, 0.001);
}

}  // namespace
}  // namespace zeb::test
