#include "check_fixture.h"
#include "support/slots.h"

namespace zeb::test {
namespace {

struct Loops : CheckFixture {
  // The signed pipes of one loop.
  [[nodiscard]] std::vector<int> Loop(int loop) const {
    const auto pipes = Slots(project.LoopPipes, project.LoopFirst[loop], project.LoopLast[loop]);
    return {pipes.begin(), pipes.end()};
  }
};

TEST_F(Loops, AGridHasOneForEachClosingPipe) {
  Check(
      "1 2 50 2 E / 2 12 50 3 N / 2 3 50 4 E / 3 13 50 3 N / 12 13 50 4 E / 3 4 50 4 E / 4 14 50 3 "
      "N / 13 14 50 4 E / 12 3 50 5 *126.87");
  EXPECT_EQ(project.LoopCount, 3);
  EXPECT_EQ(Loop(1), (std::vector{-5, -2, 3, 4}));
  EXPECT_EQ(Loop(2), (std::vector{-8, -4, 6, 7}));
  EXPECT_EQ(Loop(3), (std::vector{-9, -2, 3}));
  EXPECT_EQ(project.LoopListLength, 11);
}

TEST_F(Loops, APipeBackToItsOwnFeedIsALoopOfOne) {
  Check("1 2 50 2 E / 7 2 50 2 E", CheckMode::kSilent);
  EXPECT_EQ(Loop(1), std::vector{-2});
}

// Two ways from each of a chain's nodes to the next, so many loops of three pipes.
std::string Chain(int loops) {
  std::string lines = "1 2 50 2 E";
  for (int i = 1; i <= loops; ++i) {
    AddPipe(lines, 1 + i, 2 + i, " 50 2 E");
    AddPipe(lines, 1 + i, 3000 + i, " 50 1 N");
    AddPipe(lines, 3000 + i, 2 + i, " 50 2.236 *116.565");
  }
  return lines;
}

TEST_F(Loops, TheLastRowTakesEachFurtherLoopAndTheModelIsTooLarge) {
  Check(Chain(1000));
  EXPECT_EQ(project.LoopCount, 1000);
  EXPECT_EQ(Loop(1000), (std::vector{-3001, -3000, 2999}));
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_TRUE(shell.features[Feature::kSave]);

  Check(Chain(1001));
  EXPECT_TRUE(project.Faults.empty());
  EXPECT_EQ(project.LoopCount, 1000);
  EXPECT_EQ(project.LoopListLength, 3000);
  EXPECT_EQ(Loop(1000), (std::vector{-3004, -3003, 3002}));
  EXPECT_EQ(dialogs.Titles(), Texts{"System model size exceeded "});
  EXPECT_FALSE(shell.features[Feature::kCalculateMenu]);
  EXPECT_FALSE(shell.features[Feature::kSave]);
}

// A chain of 2855 pipes whose end closes loops of 2857 pipes.
std::string LongLoops(int loops) {
  constexpr int kChain = 2855;
  std::string lines = "1 2 50 1 E";
  for (int i = 1; i <= kChain; ++i) AddPipe(lines, 1 + i, 2 + i, " 50 1 E");
  for (int i = 1; i <= loops; ++i) {
    AddPipe(lines, 2, 5000 + i, " 50 1 E");
    AddPipe(lines, 2 + kChain, 5000 + i, " 50 1 E");
  }
  return lines;
}

TEST_F(Loops, TheListHolds19999PipesAndFailsAtTheNext) {
  session.SuppressErrors = true;
  Check(LongLoops(7));
  EXPECT_EQ(project.LoopListLength, 19999);
  EXPECT_EQ(project.ModelState, 2);

  Check(LongLoops(8));
  EXPECT_EQ(project.ModelState, 1);
  EXPECT_EQ(dialogs.Titles(), Texts{"Error 9 at line 80 in loop finding part"});
}

}  // namespace
}  // namespace zeb::test
