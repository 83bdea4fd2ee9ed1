#pragma once

#include <QByteArray>
#include <QVector>

namespace CorvexFuzz {

/// One reader of text that a page, a browser or a user gives.
struct Target {
  const char* name;
  QVector<QByteArray> examples;
  QVector<QByteArray> words;
  /// Reads the input. Ends the program where something does not hold that must hold of any input.
  void (*read)(const QByteArray& input);
};

/// All of them.
const QVector<Target>& targets();

/// Ends the program, after telling what does not hold.
void require(bool holds, const char* what);

}  // namespace CorvexFuzz
