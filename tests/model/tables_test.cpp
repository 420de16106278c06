#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "model/int16.h"
#include "model/project.h"
#include "model/real_arithmetic.h"

namespace zeb {
namespace {

// The number of the failure that an action raises, 0 for none.
int FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return failure.Number();
  }
  return 0;
}

TEST(Int16Test, RefusesWhatDoesNotFit) {
  EXPECT_EQ(FailureOf([] {
              Int16 value = 32767;
              ++value;
            }),
            6);
  EXPECT_EQ(FailureOf([] {
              Int16 value = -32768;
              value -= 1;
            }),
            6);
  EXPECT_EQ(FailureOf([] { [[maybe_unused]] const Int16 value = 1LL << 40U; }), 6);
  Int16 value = 32766;
  ++value;
  EXPECT_EQ(value, 32767);
}

TEST(Int16Test, RoundsHalfToEven) {
  struct Case {
    double real;
    int rounded;
  };
  for (const Case& c : {Case{0.5, 0}, Case{1.5, 2}, Case{2.5, 2}, Case{-0.5, 0}, Case{-1.5, -2},
                        Case{32767.4, 32767}, Case{-32768.5, -32768}}) {
    EXPECT_EQ(RoundToInt16(c.real), c.rounded) << c.real;
  }
  for (const double real : {32767.5, -32769.0, 1e39, std::nan("")}) {
    EXPECT_EQ(FailureOf([real] { [[maybe_unused]] const Int16 value = RoundToInt16(real); }), 6)
        << real;
  }
}

TEST(TableTest, BoundsAreHard) {
  Project project;
  project.PipeX[kLastPipe] = 1.0F;
  project.HeadK[kLastHead] = 1.0F;
  project.LoopPipes[kLastLoopPipe] = 1;
  EXPECT_EQ(FailureOf([&] { project.PipeX[kLastPipe + 1] = 1.0F; }), 9);
  EXPECT_EQ(FailureOf([&] { project.PipeX[-1] = 1.0F; }), 9);
  EXPECT_EQ(FailureOf([&] { project.LoopPipes[kLastLoopPipe + 1] = 1; }), 9);
  EXPECT_EQ(FailureOf([&] { project.PipeBores[kLastPipeSize + 1][1] = 1.0F; }), 9);
  EXPECT_EQ(FailureOf([&] { project.PipeLines.Clear(19, kLastLine + 1); }), 9);
}

TEST(ProjectTest, ClearingAPipeClearsEveryRowOfThatSlotOnly) {
  Project project;
  ForEachPipeRow(project, [](const char*, auto& row) { row[6] = row[7] = row[8] = 3; });
  ClearPipe(project, 7);
  ForEachPipeRow(project, [](const char* name, auto& row) {
    EXPECT_EQ(static_cast<float>(row[6]), 3.0F) << name;
    EXPECT_EQ(static_cast<float>(row[7]), 0.0F) << name;
    EXPECT_EQ(static_cast<float>(row[8]), 3.0F) << name;
  });
}

TEST(ProjectTest, ACheckClearsItsCountsAndKeepsWhatBelongsToTheProject) {
  Project project;
  project.PipeCount = 12;
  project.MaxVelocity = 4.0F;
  project.LineCount = 30;
  project.ZOffset = -1.0F;
  ClearCheckValues(project);
  EXPECT_EQ(project.PipeCount, 0);
  EXPECT_EQ(project.MaxVelocity, 0.0F);
  EXPECT_EQ(project.LineCount, 30);
  EXPECT_EQ(project.ZOffset, -1.0F);
}

TEST(RealArithmeticTest, TellsWhatWentWrong) {
  volatile double zero = 0.0;
  volatile float large = std::numeric_limits<float>::max();
  volatile double sink = 0.0;
  const auto number = [](const std::function<void()>& action) {
    ClearRealArithmeticFlags();
    action();
    return FailureOf([] { CheckRealArithmeticFlags(); });
  };
  EXPECT_EQ(number([&] { sink = 1.0 / zero; }), 11);
  EXPECT_EQ(number([&] { sink = large * large; }), 6);
  EXPECT_EQ(number([&] { sink = std::sqrt(zero - 1.0); }), 5);
  EXPECT_EQ(number([&] { sink = 1.0 / 3.0; }), 0);
}

}  // namespace
}  // namespace zeb
