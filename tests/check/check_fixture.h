#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "check/check_project.h"
#include "support/test_session.h"

namespace zeb::test {

// Adds a pipe to lines for a check.
void AddPipe(std::string& lines, int start, int end, const std::string& rest);

// A project with pipe data of its own: type 1 has the sizes 25, 32, 50, 80 and 100, type 2 lacks
// 32; four valves, of which the last is the tee. Four head codes: K 80, K 57, K 0 and K 242.
struct CheckFixture : testing::Test, TestSession {
  CheckFixture();

  // Replaces the pipe lines, those from 19 on, by the parts of a text between " / ", and checks.
  void Check(const std::string& pipe_lines, CheckMode mode = CheckMode::kKeepLines);
  void SetItem(Item item, const std::string& text) { ItemText(project, item) = text; }

  // The numbers of the reported faults.
  [[nodiscard]] std::vector<int> FaultNumbers() const;

  Texts captions;           // of the warning boxes
  std::size_t stop_at = 0;  // the box at which the user stops, from 1
};

}  // namespace zeb::test
