#include "view/view_commands.h"

#include <array>

#include "view/view_modes.h"
#include "view/zoom.h"

namespace zeb {
namespace {

enum class ZoomEffect { kEnds, kStays, kStaysWhenKept };

struct ViewRow {
  int mode = 0;
  std::string_view title;
  std::string_view word;  // on the status bar
  ZoomEffect zoom = ZoomEffect::kStays;
};

void Show(Session& session, const ViewRow& row) {
  Project& project = session.project;
  if (row.zoom == ZoomEffect::kEnds) project.ZoomKept = 0;
  if (row.zoom != ZoomEffect::kStays && project.ZoomKept == 0) project.ZoomState = zoom::kNone;
  project.ViewMode = row.mode;
  project.ViewTitle = row.title;
  project.ViewName = row.word;
  session.platform.shell.SetPanel(Panel::kView, std::string(row.word));
  session.platform.shell.Redraw();
}

constexpr std::array kMenu{
    ViewMenuEntry{"Vpzout", "&Plan of all system", "plan", Vpzout},
    ViewMenuEntry{"Vfront", "&Front elevation", "frontView", Vfront},
    ViewMenuEntry{"Vside", "&Side elevation", "sideView", Vside},
    ViewMenuEntry{"Visolbl", "South &West", "swView", Visolbl},
    ViewMenuEntry{"Visobr", "South &East", "seView", Visobr},
    ViewMenuEntry{"Visotl", "&North West", "nwView", Visotl},
    ViewMenuEntry{"Visotr", "North East", "neView", Visotr},
    ViewMenuEntry{"Zinall", "Zoom - &All Pipes", "zoom", Zinall},
    ViewMenuEntry{"Zinspec", "Zoom - Specify &Heights", "", Zinspec},
};

}  // namespace

void Vpzout(Session& session) { Show(session, {view::kPlan, "Plan", "Plan", ZoomEffect::kEnds}); }

void Vfront(Session& session) { Show(session, {view::kFront, "Front elevation", "Front"}); }

void Vside(Session& session) { Show(session, {view::kSide, "Side elevation", "Side"}); }

void Visolbl(Session& session) {
  Show(session, {view::kSouthWest, "Isometric from south west (bottom left)", "SW",
                 ZoomEffect::kStaysWhenKept});
}

void Visobr(Session& session) {
  Show(session, {view::kSouthEast, "Isometric from south east (bottom right)", "SE",
                 ZoomEffect::kStaysWhenKept});
}

void Visotl(Session& session) {
  Show(session, {view::kNorthWest, "Isometric from north west (top left)", "NW",
                 ZoomEffect::kStaysWhenKept});
}

void Visotr(Session& session) {
  Show(session, {view::kNorthEast, "Isometric from north east (top right)", "NE",
                 ZoomEffect::kStaysWhenKept});
}

std::span<const ViewMenuEntry> ViewMenu() { return kMenu; }

}  // namespace zeb
