#pragma once

#include <string_view>

#include "model/project.h"

namespace zeb {

// Values of LossModel.
inline constexpr int kHazenWilliams = 0;
inline constexpr int kDarcyByTable = 1;
inline constexpr int kDarcyByFormula = 2;

// Takes from the fluid text and the comments of the project: the loss equation, the fluid's
// specific gravity, density and viscosity, the length of a mechanical joint, and which pipes are
// dry.
void ReadFluidSettings(Project& project);

// The number in a word "KEYWORD=number" of the text, in any case; the default when the text has no
// such word or what follows is no number. A keyword with nothing behind its sign is 0.
[[nodiscard]] double ReadCommentValue(std::string_view keyword, std::string_view text,
                                      double default_value);

// Metres of this fluid that weigh one bar.
[[nodiscard]] double MetresPerBar(const Project& project);

}  // namespace zeb
