#pragma once

#include <vector>

#include "model/table.h"

namespace zeb::test {

// The slots `first` to `last` of a table.
template <class T, int Last>
std::vector<T> Slots(const Table<T, Last>& table, int first, int last) {
  const auto slots = table.Slots();
  return {slots.begin() + first, slots.begin() + last + 1};
}

}  // namespace zeb::test
