#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace CorvexBench {

double median(std::vector<double> values);

/// One row of the table.
struct Row {
  QString name;
  double milliseconds = 0;
  double aim = 0;  ///< At most so many milliseconds; 0 where nothing was promised.
};

/// The table of one browser. Its first row is the bare round trip, against which all others are told.
class Report {
public:
  explicit Report(const QString& title);

  void section(const QString& title);
  void add(const Row& row);
  /// A row with a number that is no time.
  void addNumber(const QString& name, double number);

private:
  double m_roundTrip = 0;
};

struct Measure {
  QString name;
  std::function<void()> run;
  double aim = 0;
  std::vector<double> times = {};
};

/// Takes the measures in turn, so that a machine that changes its speed changes it for all of them, and adds the
/// medians.
void takeTurns(std::vector<Measure> measures, int rounds, Report& report);

/// Says why a measure could not be taken; answers false.
bool fail(const QString& error);

}  // namespace CorvexBench
