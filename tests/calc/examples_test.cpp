// The examples that come with the program, from their files to their duties. The expected ones are
// from a solution of each whole network by Newton's method.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

#include "calc/calculation.h"
#include "calc/flow_paths.h"
#include "check/check_project.h"
#include "project/open_project.h"
#include "services/text.h"
#include "support/test_session.h"

namespace zeb {
namespace {

std::string DataFile(const std::string& name) {
  std::ifstream file(std::string(ZEB_DATA_DIR) + '/' + name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

// `count` node numbers from each of the first ones.
std::vector<int> NodeRuns(std::initializer_list<int> firsts, int count) {
  std::vector<int> nodes;
  for (const int first : firsts) {
    for (int node = first; node < first + count; ++node) nodes.push_back(node);
  }
  return nodes;
}

struct Example : test::TestSession {
  explicit Example(const std::string& text) {
    session.SuppressErrors = true;
    session.authorities.Parse(DataFile("authorities/DesignAuth.csv"));
    files.Put("/prog/pipedata/STD_PIPE.PDT", DataFile("pipedata/STD_PIPE.PDT"));
    files.Put("/jobs/EXAMPLE.zeb", text);
    commands.on_check = [this](CheckMode mode) { CheckProject(session, mode); };
    OpenProject(session, "/jobs/EXAMPLE.zeb");
  }

  void Pick(const std::vector<int>& nodes) {
    if (nodes.empty()) return;
    project.SelectedHeadsMode = 1;
    for (int head = 1; head <= project.HeadCount; ++head) {
      const bool picked = std::ranges::count(nodes, NodeOfHead(project, head)) > 0;
      project.HeadOn[head] = picked ? 1 : 0;
      project.SelectedHeadCount += picked ? 1 : 0;
    }
    EXPECT_EQ(project.SelectedHeadCount, static_cast<int>(nodes.size()));
  }

  Project& project = session.project;
};

struct Duty {
  std::string file;
  std::vector<int> nodes;  // of the heads that operate; empty for all
  float flow;              // L/min
  float pressure;          // bar
  SupplyValues supply{};   // none when empty
};

void ExpectDuty(Example& example, const Duty& duty) {
  Project& project = example.project;
  ASSERT_EQ(project.WarningCount, 0) << duty.file << project.WarningText;
  project.SupplyCount = 1;  // in force for want of the one that the project names
  project.SupplyTable[1] = duty.supply;
  example.Pick(duty.nodes);
  ASSERT_TRUE(Calculation(example.session, CalculationMode::kSilent)) << duty.file;
  EXPECT_NEAR(project.SourceFlow, duty.flow, 0.01F * duty.flow) << duty.file;
  EXPECT_NEAR(project.SourcePressure, duty.pressure, 0.01F * duty.pressure) << duty.file;
}

TEST(ExamplesTest, GiveTheDutiesOfAnIndependentSolution) {
  const std::vector<int> office = NodeRuns({801, 901, 1001}, 6);
  const std::vector<int> warehouse = NodeRuns({1308, 1328, 1348, 1368, 1388}, 6);
  const std::vector<int> market = NodeRuns({1166, 1186, 1206}, 4);
  const SupplyValues hh_pump{0,    8,     900,  7.92F, 1800, 7.68F, 2700, 7.28F,
                             3600, 6.72F, 4500, 6,     5400, 5.12F, 6300, 4.08F};
  const Duty duties[] = {
      {"office_floor", office, 1446, 3.79F},
      {"office_floor",
       office,
       1644,
       4.68F,
       {0, 6.6F, 300, 6.536F, 600, 6.344F, 900, 6.024F, 1200, 5.576F, 1500, 5, 1800, 4.296F, 2100,
        3.464F}},
      {"ridge_warehouse", warehouse, 4201, 3.91F},
      {"ridge_warehouse", warehouse, 5141, 5.39F, hh_pump},
      {"ring_main", {}, 4890, 3.65F},
      {"ring_main", {}, 5575, 4.93F, hh_pump},
      {"dwelling", {5, 6}, 86.3F, 1.61F},
      {"dwelling", {}, 180, 3.85F},
      {"machinery_room_mist", {}, 699, 10.20F},
      {"machinery_room_mist",
       {},
       737,
       11.28F,
       {0, 13.5F, 140, 13.42F, 280, 13.18F, 420, 12.78F, 560, 12.22F, 700, 11.5F, 840, 10.62F, 980,
        9.58F}},
      {"nfpa_grid", market, 1193, 3.54F},
      {"nfpa_grid",
       market,
       1478,
       5.05F,
       {0, 5.5F, 500, 5.44F, 1000, 5.283F, 1500, 5.04F, 2000, 4.716F, 2500, 4.315F, 3000, 3.84F,
        3500, 3.292F}},
  };
  for (const Duty& duty : duties) {
    Example example(DataFile("examples/" + duty.file + ".zeb"));
    ExpectDuty(example, duty);
  }
}

TEST(ExamplesTest, TheRingMainWithoutItsHydrantServesOneBuilding) {
  Example example(ReplaceAll(DataFile("examples/ring_main.zeb"), "HY  1500", "HY 0.01"));
  ExpectDuty(example, {"ring_main", NodeRuns({110, 120, 130}, 4), 798, 1.67F});
}

}  // namespace
}  // namespace zeb
