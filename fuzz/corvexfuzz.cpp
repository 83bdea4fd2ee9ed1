// Gives random texts to everything that reads what a page, a browser or a user wrote, for a number of seconds. Build it
// with sanitizers: they and the requirements of the targets end the program, which then tells the input.

#include "mutator.h"
#include "targets.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using namespace CorvexFuzz;

// No input may keep a reader busy for longer; sanitizers make everything several times slower.
const unsigned int mostSecondsAnInput = 20;

QByteArray inputFile;

/// Keeps the input where it is found when the program is gone.
void note(const QByteArray& input) {
  QFile file(QFile::decodeName(inputFile));
  if (file.open(QIODevice::WriteOnly)) {
    file.write(input);
  }
}

void tellHang(int) {
  const char text[] = "corvexfuzz: a reader does not come to an end\n";
  (void)!write(STDERR_FILENO, text, sizeof text - 1);
  abort();
}

/// Reads what `note` wrote.
int readAgain(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "corvexfuzz: '%s' cannot be read\n", qPrintable(path));
    return 2;
  }
  const QString name = QString::fromUtf8(file.readLine()).trimmed();
  const QByteArray input = file.readAll();
  for (const Target& target : targets()) {
    if (name == QLatin1String(target.name)) {
      target.read(input);
      return 0;
    }
  }
  std::fprintf(stderr, "corvexfuzz: there is no reader '%s'\n", qPrintable(name));
  return 2;
}

void readMany(int seconds, unsigned int seed) {
  Mutator mutator(seed);
  QVector<int> counts(targets().size());
  QElapsedTimer timer;
  timer.start();
  for (int i = 0; timer.elapsed() < seconds * 1000; i = (i + 1) % targets().size()) {
    const Target& target = targets().at(i);
    // A batch for each, so that writing the input down does not count.
    for (int batch = 0; batch < 20; ++batch) {
      const QByteArray input = mutator.make(target.examples, target.words);
      note(QByteArray(target.name) + '\n' + input);
      alarm(mostSecondsAnInput);
      target.read(input);
      alarm(0);
      ++counts[i];
    }
  }
  for (int i = 0; i < counts.size(); ++i) {
    std::printf("%8d inputs  %s\n", counts.at(i), targets().at(i).name);
  }
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOption({QStringLiteral("seed"), QStringLiteral("Make the inputs of this number."), QStringLiteral("N")});
  parser.addOption({QStringLiteral("input"), QStringLiteral("Read one file that a run left."), QStringLiteral("FILE")});
  parser.addPositionalArgument(QStringLiteral("SECONDS"), QStringLiteral("How long to go on, 60 without it."));
  parser.process(application);
  inputFile = QCoreApplication::applicationDirPath().toLocal8Bit() + "/fuzz-input";
  if (parser.isSet(QStringLiteral("input"))) {
    return readAgain(parser.value(QStringLiteral("input")));
  }
  const QString seconds = parser.positionalArguments().value(0, QStringLiteral("60"));
  const unsigned int seed =
      parser.isSet(QStringLiteral("seed")) ? parser.value(QStringLiteral("seed")).toUInt() : std::random_device()();
  std::printf("seed %u; an input that ends the program stands in %s\n", seed, inputFile.constData());
  std::fflush(stdout);
  std::signal(SIGALRM, tellHang);
  // Readers tell of what they pass over, which is most of what they get here.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  readMany(seconds.toInt(), seed);
  QFile::remove(QFile::decodeName(inputFile));
  return 0;
}
