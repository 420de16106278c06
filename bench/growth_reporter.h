#pragma once

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace zeb {

// Prints the times, and behind them for each family the exponent with which its time grows with
// the counter "pipes": 1 is linear, 2 quadratic. It is fitted to the logarithms by least squares.
class GrowthReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& reports) override {
    ConsoleReporter::ReportRuns(reports);
    for (const Run& run : reports) {
      const auto pipes = run.counters.find("pipes");
      if (pipes == run.counters.end() || run.iterations == 0) continue;
      const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations);
      points_[run.run_name.function_name].push_back(
          {.size = std::log(pipes->second.value), .time = std::log(time)});
    }
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    std::printf("\nGrowth of the time with the pipes, as an exponent\n");
    for (const auto& [family, points] : points_) {
      std::printf("  %-24s %5.2f\n", family.c_str(), Exponent(points));
    }
  }

 private:
  struct Point {
    double size;
    double time;
  };

  static double Exponent(const std::vector<Point>& points) {
    const auto count = static_cast<double>(points.size());
    double size = 0.0;
    double time = 0.0;
    for (const Point& point : points) {
      size += point.size / count;
      time += point.time / count;
    }
    double product = 0.0;
    double square = 0.0;
    for (const Point& point : points) {
      product += (point.size - size) * (point.time - time);
      square += (point.size - size) * (point.size - size);
    }
    return square > 0.0 ? product / square : 0.0;
  }

  std::map<std::string, std::vector<Point>> points_;
};

}  // namespace zeb
