// The program itself, started as a script would.

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>

#include "support/networks.h"

namespace zeb {
namespace {

namespace fs = std::filesystem;

struct Outcome {
  int status;
  std::string output;
};

// Standard error goes with the output where `with_errors` is set.
Outcome RunBatch(const std::string& arguments, bool with_errors = false) {
  const std::string command = std::string(ZEB_PROGRAM_FOLDER) + "/zeb-batch " + arguments +
                              (with_errors ? " 2>&1" : " 2>/dev/null") + " </dev/null";
  FILE* pipe = popen(command.c_str(), "r");
  std::string output;
  std::array<char, 4096> buffer{};
  while (const std::size_t count = fread(buffer.data(), 1, buffer.size(), pipe)) {
    output.append(buffer.data(), count);
  }
  return {WEXITSTATUS(pclose(pipe)), output};
}

std::string Example(const std::string& name) {
  return std::string(ZEB_DATA_DIR) + "/examples/" + name;
}

class CommandTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "zeb-batch-XXXXXX").string();
    folder_ = mkdtemp(name.data());
  }
  void TearDown() override { fs::remove_all(folder_); }

  std::string Put(const std::string& name, const std::string& bytes) const {
    const std::string path = (folder_ / name).string();
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }
  [[nodiscard]] std::string Path(const std::string& name) const { return folder_ / name; }

  fs::path folder_;
};

TEST_F(CommandTest, TellsByItsStatusHowItEnded) {
  const std::string good = Put("good.zeb", test::ProjectFile(test::TreeLines(30)));
  const std::string faulty =
      Put("faulty.zeb", test::ProjectFile({"1 2 300 1.0 E 4 0", "7 8 50 1.0 N 4 0 1 1.0"}));
  const std::string noise = Put("noise.zeb", std::string("\0\xFF,,\r\n", 6));
  EXPECT_EQ(RunBatch("check " + good).status, 0);
  EXPECT_EQ(RunBatch("check " + faulty).status, 1);
  EXPECT_EQ(RunBatch("check " + noise).status, 2);
  EXPECT_EQ(RunBatch("check " + Path("missing.zeb")).status, 2);
  EXPECT_EQ(RunBatch("check " + good + " " + faulty).status, 1);
  EXPECT_EQ(RunBatch("calculate " + good).status, 0);
  EXPECT_EQ(RunBatch("calculate " + good + " --select 9999").status, 2);
}

TEST_F(CommandTest, LeavesNothingBesideTheProject) {
  const std::string good = Put("good.zeb", test::ProjectFile(test::TreeLines(30)));
  RunBatch("calculate " + good);
  RunBatch("dump --calculate " + good);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()), 1);
}

TEST_F(CommandTest, PrintsNumberedErrorsOnStandardError) {
  const std::string faulty =
      Put("faulty.zeb", test::ProjectFile({"1 2 300 1.0 E 4 0", "7 8 50 1.0 N 4 0 1 1.0"}));
  EXPECT_EQ(RunBatch("check " + faulty).output.find("[Error 5]"), std::string::npos);
  EXPECT_NE(RunBatch("check " + faulty, true).output.find("[Error 5]"), std::string::npos);
}

TEST_F(CommandTest, DumpsValidJsonOfAnyTexts) {
  std::string file = test::ProjectFile(test::RingLines(40));
  file.replace(file.find("Made-up network"), 15, "\"Q\\ \x80\x81\x01\tend");
  const Outcome dump = RunBatch("dump --calculate " + Put("odd.zeb", file));
  ASSERT_EQ(dump.status, 0);
  const auto json = nlohmann::json::parse(dump.output);
  EXPECT_EQ(json["pipes"].size(), json["PipeCount"]);
  EXPECT_EQ(json["lines"].size(), json["LineCount"]);
  EXPECT_EQ(json["loops"].size(), 1U);
  EXPECT_EQ(json["lines"][0], "\"Q\\ \xE2\x82\xAC\xC2\x81\x01\tend");
  EXPECT_EQ(json["ModelState"], 3);
  // The source feeds all heads: flows over the first pipe and the heads agree.
  double heads = 0.0;
  for (const auto& head : json["heads"]) heads += head["HeadFlow"].get<double>();
  EXPECT_NEAR(json["SourceFlow"].get<double>(), heads, 0.05);
}

TEST_F(CommandTest, ConvertsToEveryFormatAndReadsItBack) {
  const std::string good = Put("good.zeb", test::ProjectFile(test::RingLines(40)));
  const std::string lines = RunBatch("canonical " + good).output;
  for (const char* mode : {"1", "2", "3", "4"}) {
    const std::string copy = Path(std::string("copy") + mode + ".zeb");
    EXPECT_EQ(RunBatch("convert " + good + " --to " + copy + " --mode " + mode).status, 0);
    EXPECT_EQ(RunBatch("canonical " + copy).output, lines) << mode;
  }
}

TEST_F(CommandTest, SavesTheOperatingHeadsOnly) {
  const std::string copy = Path("part.zeb");
  ASSERT_EQ(RunBatch("convert " + Example("office_floor.zeb") + " --operating-heads --select " +
                     "801,802,803 --to " + copy)
                .status,
            0);
  const auto json = nlohmann::json::parse(RunBatch("dump " + copy).output);
  EXPECT_EQ(json["HeadCount"], 3);
  EXPECT_EQ(json["PipeCount"], 72);
}

TEST_F(CommandTest, JudgesPipeData) {
  const std::string folder = std::string(ZEB_DATA_DIR) + "/pipedata/";
  const Outcome shipped = RunBatch("pipe-data " + folder + "STD_PIPE.PDT");
  EXPECT_EQ(shipped.status, 0);
  EXPECT_NE(shipped.output.find("Steel EN 10255 medium"), std::string::npos);
  EXPECT_EQ(RunBatch("pipe-data " + Path("missing.pdt")).status, 2);
  EXPECT_EQ(RunBatch("pipe-data " + Put("broken.pdt", "x,y\r\n1,2")).status, 2);
}

// The largest grid takes far longer than the limit.
TEST_F(CommandTest, EndsWhenItsTimeIsOver) {
  const std::string large = Put("large.zeb", test::ProjectFile(test::GridLines(5019, 1000)));
  const Outcome ended = RunBatch("calculate --time-limit 0.001 " + large, true);
  EXPECT_EQ(ended.status, 1);
  EXPECT_NE(ended.output.find("time limit"), std::string::npos);
}

}  // namespace
}  // namespace zeb
