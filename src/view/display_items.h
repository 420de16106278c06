#pragma once

#include <bitset>
#include <string>
#include <vector>

#include "model/project.h"

namespace zeb {

// The texts that the drawing can show beside its pipes: one item at a time, DisplayItem.
namespace display_item {
inline constexpr int kNone = 0;
inline constexpr int kNodeNumbers = 1;
}  // namespace display_item

enum class TextPlace { kMiddle, kNode };
enum class TextArrow { kNone, kDrawnDirection, kFlowDirection };

// The menu's texts, by item.
[[nodiscard]] std::vector<std::string> DisplayMenuEntries();

// Works out the texts of one item, pipe by pipe in slot order: a node's text comes only once.
class DisplayTexts {
 public:
  // An item outside the menu raises "Subscript out of range".
  DisplayTexts(const Project& project, int item);

  [[nodiscard]] TextPlace Place() const;
  [[nodiscard]] TextArrow Arrow() const;
  // The text of a pipe or of its end node, without blanks in front. Empty for none, and where
  // results are wanted but there are none.
  [[nodiscard]] std::string PipeText(int pipe);
  // The text of the node where the first pipe starts; empty for none.
  [[nodiscard]] std::string SourceText() const;
  // The flow of the pipe's head where it is not that of the pipe, else empty.
  [[nodiscard]] std::string HeadFlowText(int pipe) const;

 private:
  [[nodiscard]] bool IsFirstAtNode(int node);
  [[nodiscard]] std::string DensityText(int head);

  const Project& project_;
  int item_;
  std::bitset<kLastNode + 1> shown_nodes_;
  float last_density_ = 0.0F;
};

// The fittings of a pipe in short: elbows, tees and valve, such as "2E1T AV".
[[nodiscard]] std::string FittingsText(const Project& project, int pipe);

}  // namespace zeb
