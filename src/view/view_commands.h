#pragma once

#include <span>
#include <string_view>

#include "services/session.h"

namespace zeb {

// The seven views. The plan ends a zoom; elevations keep it; isometrics keep it once its box is
// finished.
void Vpzout(Session& session);
void Vfront(Session& session);
void Vside(Session& session);
void Visolbl(Session& session);
void Visobr(Session& session);
void Visotl(Session& session);
void Visotr(Session& session);

// An entry of the View menu. An empty key means no tool bar button.
struct ViewMenuEntry {
  std::string_view name;
  std::string_view text;
  std::string_view key;
  void (*run)(Session& session) = nullptr;
};

[[nodiscard]] std::span<const ViewMenuEntry> ViewMenu();

}  // namespace zeb
