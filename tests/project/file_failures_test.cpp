#include "project/file_failures.h"

#include <gtest/gtest.h>

#include <string>

#include "support/test_session.h"

namespace zeb::test {
namespace {

TEST(FileFailures, EachNumberHasItsBox) {
  struct Case {
    int number;
    const char* title;
    std::string text;
    MessageButtons buttons;
  };
  for (const Case& c : {
           Case{61, "Drive File Error", "Disk or device is full! \r\n",
                MessageButtons::kRetryCancel},
           Case{70, "Disk File Error", "Permission denied", MessageButtons::kOk},
           Case{9, "ZEB", "Subscript out of range\r\n 9ZEB at line 30", MessageButtons::kOk},
       }) {
    TestSession test;
    test.session.project.ProductName = "ZEB";
    test.dialogs.answers = {Answer::kCancel};
    EXPECT_FALSE(
        RunFileStatement(test.session, "X.Y", 30, [&] { throw RuntimeFailure(c.number); }));
    ASSERT_EQ(test.dialogs.messages.size(), 1U);
    const Message& message = test.dialogs.messages[0];
    EXPECT_EQ(message.title, c.title);
    EXPECT_EQ(message.text, c.text);
    EXPECT_EQ(message.buttons, c.buttons) << c.number;
    EXPECT_NE(test.files.Bytes("/prog/ZEB_error.log").find(std::to_string(c.number)),
              std::string::npos);
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
