// The redraw of the largest networks, from the tables to the dots of the picture.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "check/check_project.h"
#include "paint/image_surface.h"
#include "support/networks.h"
#include "support/project_session.h"
#include "view/draw_view.h"
#include "view/view_commands.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

using test::ProjectSession;

constexpr int kMostPipes = 5000;
constexpr int kNodeNumbers = 1;  // among the items that can be shown

enum Network { kTree, kGrid };
enum View { kPlan, kIsometric };

ProjectSession& SessionOf(int network) {
  static std::map<int, std::unique_ptr<ProjectSession>> sessions;
  std::unique_ptr<ProjectSession>& session = sessions[network];
  if (!session) {
    session = std::make_unique<ProjectSession>();
    session->Open(test::ProjectFile(network == kTree ? test::TreeLines(kMostPipes)
                                                     : test::GridLines(kMostPipes, 1000)));
  }
  return *session;
}

void Redraw(benchmark::State& state) {
  Session& session = SessionOf(static_cast<int>(state.range(0))).session;
  if (state.range(1) == kPlan) {
    Vpzout(session);
  } else {
    Visolbl(session);
  }
  session.project.DisplayItem = kNodeNumbers;
  const auto ratio = static_cast<qreal>(state.range(2));
  ImageSurface surface;
  surface.Resize({.left = 0, .top = 0, .width = 1600, .height = 1000}, ratio);
  for ([[maybe_unused]] auto _ : state) DrawView(session, surface);
  state.counters["pipes"] = static_cast<double>(session.project.PipeCount);
}

BENCHMARK(Redraw)
    ->ArgsProduct({{kTree, kGrid}, {kPlan, kIsometric}, {1, 2}})
    ->ArgNames({"grid", "isometric", "density"})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zeb

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
