#include "report.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

namespace CorvexBench {

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.empty() ? 0 : values[values.size() / 2];
}

Report::Report(const QString& title) {
  std::printf("\n%-62s %10s %11s %8s\n", qPrintable(title), "ms", "round trips", "aim");
}

void Report::section(const QString& title) { std::printf("\n%s\n", qPrintable(title)); }

void Report::add(const Row& row) {
  if (m_roundTrip == 0) {
    m_roundTrip = row.milliseconds;
  }
  std::printf("  %-60s %10.3f %11.2f", qPrintable(row.name), row.milliseconds, row.milliseconds / m_roundTrip);
  if (row.aim > 0) {
    std::printf(" %8.0f%s", row.aim, row.milliseconds > row.aim ? "  missed" : "");
  }
  std::printf("\n");
  std::fflush(stdout);
}

void Report::addNumber(const QString& name, double number) {
  std::printf("  %-60s %10.0f\n", qPrintable(name), number);
  std::fflush(stdout);
}

void takeTurns(std::vector<Measure> measures, int rounds, Report& report) {
  for (int round = 0; round < rounds; ++round) {
    for (Measure& measure : measures) {
      QElapsedTimer timer;
      timer.start();
      measure.run();
      measure.times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
  }
  for (const Measure& measure : measures) {
    report.add({measure.name, median(measure.times), measure.aim});
  }
}

bool fail(const QString& error) {
  std::fprintf(stderr, "corvexbench: %s\n", qPrintable(error));
  return false;
}

}  // namespace CorvexBench
