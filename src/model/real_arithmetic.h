#pragma once

namespace zeb {

// Real arithmetic fails like integer arithmetic does: a division by zero, an overflow or an invalid
// operation (a root of a negative number) ends the command. The processor only raises flags, so
// a step clears them first and tests them after.
void ClearRealArithmeticFlags() noexcept;

// Raises failure 11 (division by zero), 6 (overflow) or 5 (invalid procedure call) when the flag
// was raised since the last clear.
void CheckRealArithmeticFlags();

}  // namespace zeb
