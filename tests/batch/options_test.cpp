#include "batch/options.h"

#include <gtest/gtest.h>

#include <vector>

namespace zeb {
namespace {

ParsedCommandLine Parse(const std::vector<const char*>& words) {
  std::vector<const char*> argv{"zeb-batch"};
  argv.insert(argv.end(), words.begin(), words.end());
  return ParseCommandLine(static_cast<int>(argv.size()), argv.data());
}

TEST(OptionsTest, WrongUsageEndsWithTwo) {
  const std::vector<std::vector<const char*>> wrong{
      {},
      {"check"},
      {"frobnicate", "a.zeb"},
      {"canonical", "a.zeb", "b.zeb"},
      {"convert", "a.zeb"},
      {"convert", "a.zeb", "--to", "b.zeb", "--mode", "5"},
      {"calculate", "a.zeb", "--sizing-method", "4"},
      {"calculate", "a.zeb", "--select", "12,x"},
      {"calculate", "a.zeb", "b.zeb", "--summary", "s.txt"},
      {"check", "a.zeb", "--time-limit", "0"},
  };
  for (const auto& words : wrong) EXPECT_EQ(Parse(words).exit_status, kExitUsage);
}

TEST(OptionsTest, HelpAndVersionEndWithZero) {
  EXPECT_EQ(Parse({"--version"}).exit_status, kExitDone);
  EXPECT_EQ(Parse({"calculate", "--help"}).exit_status, kExitDone);
}

TEST(OptionsTest, ACalculationTakesWhatItsDialogsAsk) {
  const ParsedCommandLine parsed =
      Parse({"calculate", "a.zeb", "--select", "801,802", "--mrh-node", "801", "--max-vel", "8",
             "--sizing-method", "2", "--sizing-pd", "40", "--supply", "Town main", "--yes"});
  ASSERT_FALSE(parsed.exit_status);
  const BatchOptions& options = parsed.options;
  EXPECT_EQ(options.command, BatchOptions::Command::kCalculate);
  EXPECT_EQ(options.files, std::vector<std::string>{"a.zeb"});
  EXPECT_EQ(options.select_nodes, (std::vector<int>{801, 802}));
  EXPECT_EQ(options.mrh_node, "801");
  EXPECT_EQ(options.max_vel, "8");
  EXPECT_FALSE(options.min_vel);
  EXPECT_EQ(options.sizing_method, 2);
  EXPECT_EQ(options.sizing_pd, "40");
  EXPECT_EQ(options.supply, "Town main");
  EXPECT_TRUE(options.yes);
}

}  // namespace
}  // namespace zeb
