#pragma once

#include <algorithm>
#include <span>
#include <vector>

#include "model/failure.h"

namespace zeb {

// One row of a model table: slots 0 to Last. An index outside raises "Subscript out of range".
template <class T, int Last>
class Table {
 public:
  static constexpr int kLast = Last;

  T& operator[](int slot) { return slots_[Checked(slot)]; }
  const T& operator[](int slot) const { return slots_[Checked(slot)]; }

  // Sets the slots from `first` to `last` to the type's empty value.
  void Clear(int first = 0, int last = Last) {
    if (first > last) return;
    std::fill(slots_.begin() + Checked(first), slots_.begin() + Checked(last) + 1, T{});
  }

  // All slots without a check at each access, for inner loops over a validated range.
  [[nodiscard]] std::span<T> Slots() noexcept { return slots_; }
  [[nodiscard]] std::span<const T> Slots() const noexcept { return slots_; }

 private:
  static int Checked(int slot) {
    if (slot < 0 || slot > Last) throw RuntimeFailure(failure::kSubscriptOutOfRange);
    return slot;
  }

  std::vector<T> slots_ = std::vector<T>(Last + 1);
};

// A table of two indices, rows 0 to LastRow of slots 0 to Last.
template <class T, int LastRow, int Last>
class Table2 {
 public:
  Table<T, Last>& operator[](int row) { return rows_[row]; }
  const Table<T, Last>& operator[](int row) const { return rows_[row]; }

  void Clear() {
    for (int row = 0; row <= LastRow; ++row) rows_[row].Clear();
  }

 private:
  Table<Table<T, Last>, LastRow> rows_;
};

}  // namespace zeb
