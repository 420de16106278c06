#pragma once

namespace zeb {

// The Darcy friction factor of turbulent flow, by the explicit solution of Serghides (1984). The
// relative roughness is roughness over bore.
[[nodiscard]] double FrictionFactor(double relative_roughness, double reynolds);

}  // namespace zeb
