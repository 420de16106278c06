#include "support/networks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace zeb::test {
namespace {

constexpr int kMostHeads = 1500;

// Writes pipe lines with nodes numbered in the order of their first use.
class NetworkWriter {
 public:
  // A pipe from `start` to a new node, which it returns.
  int Add(int start, int size, const std::string& direction, bool head = false) {
    const int end = ++last_node_;
    Close(start, end, size, direction, head && heads_ < kMostHeads);
    return end;
  }

  // A pipe between two nodes that both are there.
  void Close(int start, int end, int size, const std::string& direction, bool head = false) {
    std::string line = std::to_string(start) + ' ' + std::to_string(end) + ' ' +
                       std::to_string(size) + " 1.0 " + direction + " 4 0";
    if (head) {
      line += " 1 1.0";
      ++heads_;
    }
    lines_.push_back(std::move(line));
  }

  [[nodiscard]] int Count() const { return static_cast<int>(lines_.size()); }
  [[nodiscard]] std::vector<std::string> Take() { return std::move(lines_); }

 private:
  int last_node_ = 1;
  int heads_ = 0;
  std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> TreeLines(int pipes) {
  constexpr int kRange = 10;
  NetworkWriter writer;
  int main_node = writer.Add(1, 300, "E");
  while (writer.Count() < pipes) {
    main_node = writer.Add(main_node, 300, "E");
    int node = main_node;
    for (int i = 1; i <= kRange && writer.Count() < pipes; ++i) {
      const bool last = i == kRange || writer.Count() + 1 == pipes;
      node = writer.Add(node, 50, "N", last || i % 4 == 0);
    }
  }
  return writer.Take();
}

std::vector<std::string> RingLines(int pipes) {
  const int branches = std::min(kMostHeads, (pipes - 1) / 3);
  const int side = (pipes - 1 - branches) / 4;
  static constexpr std::array<const char*, 4> kSides{"E", "N", "W", "S"};
  static constexpr std::array<const char*, 4> kOutward{"S", "E", "N", "W"};
  const int feed = pipes - 4 * side - std::min(branches, 4 * side - 4);
  NetworkWriter writer;
  int corner = 1;
  for (int i = 0; i < feed; ++i) corner = writer.Add(corner, 300, "E");
  int node = corner;
  std::vector<int> ring_nodes;
  std::vector<int> sides;
  for (int i = 1; i < 4 * side; ++i) {
    const int at = (i - 1) / side;
    node = writer.Add(node, 300, kSides.at(at));
    if (i % side != 0) {
      ring_nodes.push_back(node);
      sides.push_back(at);
    }
  }
  writer.Close(node, corner, 300, "S");
  for (std::size_t i = 0; i < ring_nodes.size() && writer.Count() < pipes; ++i) {
    writer.Add(ring_nodes[i], 50, kOutward.at(sides[i]), true);
  }
  return writer.Take();
}

std::vector<std::string> GridLines(int pipes, int loops) {
  const int ranges = loops + 1;
  const int range_pipes = (pipes - 1 - 2 * loops) / ranges;
  const int feed = pipes - 2 * loops - ranges * range_pipes;
  NetworkWriter writer;
  int near = 1;
  for (int i = 0; i < feed; ++i) near = writer.Add(near, 300, "E");
  int far_before = 0;
  for (int range = 0; range < ranges; ++range) {
    if (range > 0) near = writer.Add(near, 300, "E");
    int node = near;
    for (int i = 0; i < range_pipes; ++i) node = writer.Add(node, 50, "N", i == 0);
    if (range > 0) writer.Close(far_before, node, 300, "E");
    far_before = node;
  }
  return writer.Take();
}

std::string ProjectFile(const std::vector<std::string>& pipe_lines) {
  static constexpr std::array<const char*, 18> kItems{"Made-up network",
                                                      "Plain Town",
                                                      "1",
                                                      "---",
                                                      "EN 12845 Rules",
                                                      "---",
                                                      "Water",
                                                      "65",
                                                      "STD_PIPE.PDT",
                                                      "None",
                                                      "Most Unfavourable",
                                                      "1",
                                                      "OH3",
                                                      "5.00",
                                                      "100",
                                                      "---",
                                                      "---",
                                                      "---"};
  std::string text = "TEST,01/01/2026 12:00:00,00100000000,3\r\nuser,computer\r\n\r\n\r\n";
  for (const char* item : kItems) text.append(item).append("\r\n");
  for (const std::string& line : pipe_lines) text.append(line).append("\r\n");
  text += "END\r\n01 10.0  57.00   0.35 LIGHT   \r\n";
  return text;
}

}  // namespace zeb::test
