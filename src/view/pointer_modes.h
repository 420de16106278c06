#pragma once

// The values of CommandMode: what a press on the picture does.
namespace zeb::pointer_mode {

inline constexpr int kView = 7;
inline constexpr int kZoomBox = 9;
inline constexpr int kHead = 17;
inline constexpr int kHeadBox = 18;

}  // namespace zeb::pointer_mode
