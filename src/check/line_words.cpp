#include "check/line_words.h"

#include <algorithm>

#include "model/real_arithmetic.h"
#include "services/number_text.h"

namespace zeb {

std::string_view LineWords::Next() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
  const std::string_view word = rest_.substr(0, rest_.find(' '));
  rest_.remove_prefix(word.size());
  return word;
}

float ValSingle(std::string_view text) { return RoundToSingle(Val(text)); }

}  // namespace zeb
