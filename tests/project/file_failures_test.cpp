#include "project/file_failures.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "services/text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

TEST(FileFailures, EachNumberHasItsBox) {
  const std::tuple<int, ShownBox, MessageButtons> cases[] = {
      {61, {"Drive File Error", "Disk or device is full! \r\n"}, MessageButtons::kRetryCancel},
      {70, {"Disk File Error", "Permission denied"}, MessageButtons::kOk},
      {9, {"ZEB", "Subscript out of range\r\n 9ZEB at line 30"}, MessageButtons::kOk}};
  for (const auto& [number, box, buttons] : cases) {
    TestSession test;
    test.session.project.ProductName = "ZEB";
    test.dialogs.answers = {Answer::kCancel};
    const RuntimeFailure failure(number);
    EXPECT_FALSE(RunFileStatement(test.session, "X.Y", 30, [&] { throw failure; }));
    ASSERT_EQ(test.dialogs.Shown(), Boxes{box});
    EXPECT_EQ(test.dialogs.messages[0].buttons, buttons) << number;
    EXPECT_TRUE(Contains(test.files.Bytes("/prog/ZEB_error.log"), std::to_string(number)));
  }
}

TEST(FileFailures, RetriesAsLongAsTheUserAsks) {
  TestSession test;
  int tries = 0;
  test.dialogs.answers = {Answer::kRetry, Answer::kRetry};
  EXPECT_TRUE(RunFileStatement(test.session, "X.Y", 30, [&] {
    if (++tries < 3) throw RuntimeFailure(failure::kDiskFull);
  }));
  EXPECT_EQ(tries, 3);
  EXPECT_FALSE(test.files.Has("/prog/ZEB_error.log"));
}

}  // namespace
}  // namespace zeb::test
