#pragma once

namespace zeb {

// Widens a range so that it takes a value in.
template <class Value>
void Widen(Value& lowest, Value& highest, const Value& value) {
  if (value < lowest) lowest = value;
  if (value > highest) highest = value;
}

}  // namespace zeb
