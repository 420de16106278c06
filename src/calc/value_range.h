#pragma once

#include <algorithm>

namespace zeb {

// The least and greatest of the values added; both 0 while there is none.
class ValueRange {
 public:
  void Add(float value) {
    least_ = empty_ ? value : std::min(least_, value);
    greatest_ = empty_ ? value : std::max(greatest_, value);
    empty_ = false;
  }

  [[nodiscard]] float Least() const { return least_; }
  [[nodiscard]] float Greatest() const { return greatest_; }
  void Store(float& least, float& greatest) const {
    least = least_;
    greatest = greatest_;
  }

 private:
  bool empty_ = true;
  float least_ = 0.0F;
  float greatest_ = 0.0F;
};

}  // namespace zeb
