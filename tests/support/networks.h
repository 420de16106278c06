#pragma once

#include <string>
#include <vector>

namespace zeb::test {

// Made-up networks of a given size, for tests and benchmarks: their pipe lines, without items and
// END. All close exactly, check without a report and have sizes that suit their flows.

// A distribution pipe with ranges of ten pipes and three heads each, cut off at `pipes`.
[[nodiscard]] std::vector<std::string> TreeLines(int pipes);
// One square ring with a head on a branch at most nodes. `pipes` is at least 9.
[[nodiscard]] std::vector<std::string> RingLines(int pipes);
// Two mains with loops + 1 ranges between them, a head at the first node of each range. Pipes that
// do not divide into ranges stand in the feed. `pipes` is at least 4 times `loops` plus 3.
[[nodiscard]] std::vector<std::string> GridLines(int pipes, int loops);

// A whole project file, format 3, with plain items and one head code, K 57 at 0.35 bar.
[[nodiscard]] std::string ProjectFile(const std::vector<std::string>& pipe_lines);

}  // namespace zeb::test
