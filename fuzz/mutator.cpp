#include "mutator.h"

#include <algorithm>
#include <array>

namespace CorvexFuzz {

namespace {

// Texts that have upset readers of any format.
const QVector<QByteArray>& nasty() {
  static const QVector<QByteArray> texts = {
      QByteArray("\0", 1),
      "\xff\xfe",
      "\xed\xa0\x80",
      "\xf4\x90\x80\x80",
      "\n",
      "\r\n",
      "\\",
      "'",
      "\"",
      "%",
      "%u",
      "&amp;",
      "-1",
      "0",
      "2147483648",
      "99999999999999",
      "1e999",
      "NaN",
      "{{{{{{",
      "}}}}",
      "[[[[[[",
  };
  return texts;
}

}  // namespace

QByteArray Mutator::make(const QVector<QByteArray>& examples, const QVector<QByteArray>& words, int mostBytes) {
  QByteArray input = examples.at(below(examples.size()));
  for (int changes = 1 + below(6); changes > 0; --changes) {
    change(&input, examples, words);
  }
  input.truncate(mostBytes);
  return input;
}

void Mutator::change(QByteArray* input, const QVector<QByteArray>& examples, const QVector<QByteArray>& words) {
  const int place = below(input->size() + 1);
  const int length = below(input->size() - place + 1);
  switch (below(8)) {
    case 0:
      input->insert(place, char(m_random()));
      break;
    case 1:
      if (place < input->size()) {
        (*input)[place] = char(input->at(place) ^ (1 << below(8)));
      }
      break;
    case 2:
      input->remove(place, length);
      break;
    case 3:
      input->insert(place, input->mid(place, length));
      break;
    case 4:
      input->insert(place, input->mid(place, std::min(length, 20)).repeated(1 + below(3000)));
      break;
    case 5: {
      const QByteArray other = examples.at(below(examples.size()));
      *input = input->left(place) + other.mid(below(other.size() + 1));
      break;
    }
    case 6:
      input->insert(place, nasty().at(below(nasty().size())));
      break;
    default:
      if (!words.isEmpty()) {
        input->insert(place, words.at(below(words.size())));
      }
  }
}

}  // namespace CorvexFuzz
