// Reading, checking, calculating, saving and undo steps of trees, rings and grids up to the most
// pipes that a project file can hold. Behind the times stands how each grows with the pipes.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "calc/calculation.h"
#include "check/check_project.h"
#include "growth_reporter.h"
#include "project/project_reader.h"
#include "project/project_writer.h"
#include "project/undo_history.h"
#include "support/networks.h"
#include "support/project_session.h"

namespace zeb {
namespace {

using test::ProjectSession;

constexpr int kTree = 0;
constexpr int kRing = 1;
constexpr int kGrid = 2;

std::vector<std::string> Lines(int kind, int pipes) {
  if (kind == kTree) return test::TreeLines(pipes);
  if (kind == kRing) return test::RingLines(pipes);
  return test::GridLines(pipes, std::min(pipes / 5, 1000));
}

// The sessions of a run, each with its project read and checked; to make one is not measured.
ProjectSession& SessionOf(const benchmark::State& state) {
  static std::map<std::pair<std::int64_t, std::int64_t>, std::unique_ptr<ProjectSession>> sessions;
  std::unique_ptr<ProjectSession>& session = sessions[{state.range(0), state.range(1)}];
  if (!session) {
    session = std::make_unique<ProjectSession>();
    session->Open(test::ProjectFile(
        Lines(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)))));
  }
  return *session;
}

void Measure(benchmark::State& state, const std::function<void(Session&)>& step) {
  ProjectSession& project = SessionOf(state);
  for ([[maybe_unused]] auto _ : state) {
    step(project.session);
    state.PauseTiming();
    project.dialogs.messages.clear();
    state.ResumeTiming();
  }
  state.counters["pipes"] = static_cast<double>(state.range(1));
  state.counters["loops"] = static_cast<double>(project.session.project.LoopCount);
}

void Read(benchmark::State& state) {
  Measure(state, [](Session& session) { ReadProject(session); });
  CheckProject(SessionOf(state).session, CheckMode::kSilent);
}

void Check(benchmark::State& state) {
  Measure(state, [](Session& session) { CheckProject(session, CheckMode::kSilent); });
}

void CheckAndCompose(benchmark::State& state) {
  Measure(state, [](Session& session) { CheckProject(session, CheckMode::kComposeLines); });
}

void Calculate(benchmark::State& state) {
  Measure(state, [](Session& session) {
    session.project.ModelState = 2;
    Calculation(session, CalculationMode::kSilent);
  });
  Session& session = SessionOf(state).session;
  state.counters["passes"] = static_cast<double>(session.project.IterationCount);
}

void Save(benchmark::State& state) {
  Measure(state, [](Session& session) { SaveProject(session, SaveMode::kVersion3, ""); });
}

void UndoStep(benchmark::State& state) {
  Measure(state, [](Session& session) { Revert(session); });
}

void Sizes(benchmark::internal::Benchmark* family, int kind) {
  for (const int pipes : {100, 500, 2000, 5000}) family->Args({kind, pipes});
  family->ArgNames({"", "pipes"})->Unit(benchmark::kMillisecond);
}

void AddFamilies(const std::string& name, void (*function)(benchmark::State&)) {
  static const std::map<int, std::string> kinds{{kTree, "tree"}, {kRing, "ring"}, {kGrid, "grid"}};
  for (const auto& [kind, kind_name] : kinds) {
    Sizes(benchmark::RegisterBenchmark((name + "/" + kind_name).c_str(), function), kind);
  }
}

const bool kRegistered = [] {
  AddFamilies("Read", Read);
  AddFamilies("Check", Check);
  AddFamilies("CheckAndCompose", CheckAndCompose);
  AddFamilies("Calculate", Calculate);
  AddFamilies("Save", Save);
  AddFamilies("UndoStep", UndoStep);
  return true;
}();

}  // namespace
}  // namespace zeb

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  zeb::GrowthReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  return 0;
}
