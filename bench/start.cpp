// A start of the program to its drawn window, in a process of its own as each start is. What the
// system takes to load the libraries comes on top.

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QTemporaryDir>
#include <string>

#include "ui/program.h"

namespace zeb {
namespace {

// Settings and projects of whoever measures stay as they are.
void UseOwnFolders() {
  static const QTemporaryDir home;
  for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
    qputenv(variable, home.path().toLocal8Bit());
  qputenv("ZEB_PROGRAM_FOLDER", ZEB_PROGRAM_FOLDER);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*.warning=false");  // what the platform lacks
}

int StartOnce(const std::string& path) {
  int count = 1;
  std::string name = "zeb";
  char* arguments[] = {name.data(), nullptr};
  const QApplication application(count, arguments);
  Program program;
  if (!program.Start(path)) return 1;
  QApplication::processEvents();
  return program.Window().grab().isNull() ? 1 : 0;
}

void BM_Start(benchmark::State& state, const std::string& project) {
  UseOwnFolders();
  for ([[maybe_unused]] auto _ : state) {
    const pid_t child = fork();
    if (child == 0) _exit(StartOnce(project.empty() ? "" : ZEB_DATA_DIR "/examples/" + project));
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0)
      state.SkipWithError("The program did not start.");
  }
}

BENCHMARK_CAPTURE(BM_Start, empty, "")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(BM_Start, office_floor, "office_floor.zeb")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace zeb
