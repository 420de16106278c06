#pragma once

// Values of CommandMode: what a press on the picture does. Heads have two of their own.
namespace zeb::pointer_mode {

inline constexpr int kView = 7;
inline constexpr int kZoomBox = 9;

}  // namespace zeb::pointer_mode
