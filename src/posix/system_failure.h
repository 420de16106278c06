#pragma once

namespace zeb {

// The failure number of an error code of the system.
[[nodiscard]] int FailureNumber(int error) noexcept;

// Raises the failure of `error` unless that is 0.
void CheckError(int error);

// Raises the failure of `errno` when a system call answered with a negative result.
void CheckCall(long result);

}  // namespace zeb
