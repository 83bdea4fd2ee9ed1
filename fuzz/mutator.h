#pragma once

#include <QByteArray>
#include <QVector>

#include <random>

namespace CorvexFuzz {

/// Makes inputs out of good ones: by changing, repeating, cutting and joining them. The same seed makes the same
/// inputs.
class Mutator {
public:
  explicit Mutator(unsigned int seed) : m_random(seed) {}

  /// One input out of `examples`, of at most `mostBytes`. `words` are what the format is written with.
  QByteArray make(const QVector<QByteArray>& examples, const QVector<QByteArray>& words, int mostBytes = 100000);

private:
  int below(int limit) { return limit > 0 ? int(m_random() % static_cast<unsigned int>(limit)) : 0; }
  void change(QByteArray* input, const QVector<QByteArray>& examples, const QVector<QByteArray>& words);

  std::mt19937 m_random;
};

}  // namespace CorvexFuzz
