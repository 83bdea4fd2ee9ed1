#include "shared/textfile.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace Corvex {

namespace {

const qint64 megabyte = 1 << 20;
const qint64 mostMegabytes = 16;

bool isUtf8(const QByteArray& bytes, QString* text) {
  QTextCodec::ConverterState state;
  *text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
  return state.invalidChars == 0 && state.remainingChars == 0;
}

/// The number of the first line that is no UTF-8; counts from 1.
int firstForeignLine(const QByteArray& bytes) {
  int number = 0;
  QString text;
  for (const QByteArray& line : bytes.split('\n')) {
    ++number;
    if (!isUtf8(line, &text)) {
      break;
    }
  }
  return number;
}

QString whyNoText(const QByteArray& bytes, QString* text) {
  if (!isUtf8(bytes, text)) {
    return QStringLiteral("line %1 is no UTF-8 text").arg(firstForeignLine(bytes));
  }
  const int nul = text->indexOf(QChar(0));
  return nul < 0 ? QString()
                 : QStringLiteral("line %1 holds a NUL character").arg(text->leftRef(nul).count(QLatin1Char('\n')) + 1);
}

}  // namespace

FunctionCallResult<QString> readTextFile(const QString& path) {
  using Result = FunctionCallResult<QString>;
  const QFileInfo info(path);
  if (info.isDir()) {
    return Result::failure(QStringLiteral("it is a directory"));
  }
  // Opening what is no regular file may wait without end, and so may reading it.
  if (info.exists() && !info.isFile()) {
    return Result::failure(QStringLiteral("it is no regular file"));
  }
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return Result::failure(file.errorString());
  }
  const QByteArray bytes = file.read(mostMegabytes * megabyte + 1);
  if (file.error() != QFileDevice::NoError) {
    return Result::failure(file.errorString());
  }
  if (bytes.size() > mostMegabytes * megabyte) {
    return Result::failure(QStringLiteral("it is larger than %1 MB").arg(mostMegabytes));
  }
  Result result;
  result.error = whyNoText(bytes, &result.value);
  return result.failed() ? Result::failure(result.error) : result;
}

}  // namespace Corvex
