// The examples that come with the program, from their files to their duties. The expected ones are
// from a solution of each whole network by Newton's method.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "calc/calculate_command.h"
#include "calc/calculation.h"
#include "calc/heads.h"
#include "check/check_project.h"
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
    OpenProject(session, "/jobs/EXAMPLE.zeb");
  }
};

TEST(ExamplesTest, GiveTheDutiesOfAnIndependentSolution) {
  struct Case {
    std::string file;
    std::vector<int> nodes;  // of the heads that operate; empty for all
    float flow, pressure;
    SupplyValues supply;  // none when empty
  };
  const std::vector<int> warehouse = NodeRuns({1308, 1328, 1348, 1368, 1388}, 6);
  const SupplyValues hh_pump{0,    8,     900,  7.92F, 1800, 7.68F, 2700, 7.28F,
                             3600, 6.72F, 4500, 6,     5400, 5.12F, 6300, 4.08F};
  const Case cases[] = {
      {"office_floor", NodeRuns({801, 901, 1001}, 6), 1446, 3.79F, {}},
      {"ridge_warehouse", warehouse, 4201, 3.91F, {}},
      {"ridge_warehouse", warehouse, 5141, 5.39F, hh_pump},
      {"ring_main", {}, 4890, 3.65F, {}},
      {"ring_main", {}, 5575, 4.93F, hh_pump},
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

}  // namespace
}  // namespace zeb::test
