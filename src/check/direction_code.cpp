#include "check/direction_code.h"

#include <array>
#include <cstddef>

#include "check/line_words.h"
#include "model/int16.h"
#include "model/limits.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

// The last rule that matches counts: "SOUTHEAST" is south and "NORTH-EAST" is north.
struct CodeRule {
  std::string_view beginning;
  float direction;
};

constexpr std::array kCodeRules = {
    CodeRule{"N", 0.0F},   CodeRule{"S", 180.0F},  CodeRule{"NE", 45.0F},
    CodeRule{"E", 90.0F},  CodeRule{"SE", 135.0F}, CodeRule{"SW", 225.0F},
    CodeRule{"W", 270.0F}, CodeRule{"NW", 315.0F}, CodeRule{"U", kDirectionUp}};

// The same for writing, by whole degrees.
struct DegreesName {
  int degrees;
  const char* name;
};

constexpr std::array kDegreesNames = {DegreesName{0, "N"},
                                      DegreesName{45, "NE"},
                                      DegreesName{90, "E"},
                                      DegreesName{135, "SE"},
                                      DegreesName{180, "S"},
                                      DegreesName{225, "SW"},
                                      DegreesName{270, "W"},
                                      DegreesName{315, "NW"},
                                      DegreesName{360, "N"},
                                      DegreesName{kDirectionUp, "U"},
                                      DegreesName{kDirectionDown, "D"}};

// A "D" stands alone, so that a word like "DN" is no direction.
bool IsDown(std::string_view word) { return word == "D" || word.starts_with("DOWN"); }

float AngleWithin(std::string_view text, float lowest, float highest) {
  const float angle = ValSingle(text);
  return angle < lowest || angle > highest ? 0.0F : angle;
}

bool FindDirection(std::string_view word, float& direction) {
  bool found = false;
  for (const CodeRule& rule : kCodeRules) {
    if (!word.starts_with(rule.beginning)) continue;
    direction = rule.direction;
    found = true;
  }
  if (IsDown(word)) {
    direction = kDirectionDown;
    found = true;
  }
  if (word.starts_with('*')) {
    direction = AngleWithin(word.substr(1), 0.0F, 360.0F);
    found = true;
  }
  return found;
}

const char* NameOfDegrees(int degrees) {
  for (const DegreesName& entry : kDegreesNames) {
    if (entry.degrees == degrees) return entry.name;
  }
  return nullptr;
}

}  // namespace

bool ParseDirection(std::string_view word, DirectionCode& code) {
  code = {};
  if (!FindDirection(word, code.direction)) return false;
  const std::size_t at = word.find('@');
  if (at != std::string_view::npos) code.slope = AngleWithin(word.substr(at + 1), -90.0F, 90.0F);
  return true;
}

std::string DirectionText(float direction, float slope) {
  const char* name = NameOfDegrees(RoundToInt16(direction));
  std::string text = name != nullptr ? name : "*" + TrimLeft(FixedNumber(direction, 6, 1));
  if (slope != 0.0F && !IsVertical(direction)) text += "@" + TrimLeft(FixedNumber(slope, 6, 2));
  return text;
}

bool IsVertical(float direction) {
  return direction == kDirectionUp || direction == kDirectionDown;
}

}  // namespace zeb
