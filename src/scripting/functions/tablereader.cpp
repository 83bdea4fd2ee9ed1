#include "scripting/functions/tablereader.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include "shared/textfile.h"

namespace Corvex::Scripting {

namespace {

const int mostValues = 1000000;

/// Reads the records of a text with separators, one after the other.
class RecordReader {
public:
  RecordReader(const QString& text, QChar separator) : m_text(text), m_separator(separator) {}

  bool isAtEnd() const { return m_position >= m_text.size(); }
  /// The line in which the last record began, or in which the error is.
  int line() const { return m_recordLine; }
  /// Empty as long as all is well.
  const QString& error() const { return m_error; }

  QStringList read() {
    QStringList values;
    m_recordLine = m_line;
    do {
      values << (at(m_position) == QLatin1Char('"') ? quotedValue() : plainValue());
    } while (m_error.isEmpty() && skip(m_separator));
    if (m_error.isEmpty()) {
      const bool isReturn = skip(QLatin1Char('\r'));
      m_line += skip(QLatin1Char('\n')) || isReturn ? 1 : 0;
    }
    return values;
  }

private:
  QChar at(int position) const { return position < m_text.size() ? m_text.at(position) : QChar(); }

  bool skip(QChar character) {
    const bool isThere = !isAtEnd() && at(m_position) == character;
    m_position += isThere ? 1 : 0;
    return isThere;
  }

  /// The end of a value: the separator, a line end, or the end of the text.
  bool isEnd(int position) const {
    const QChar next = at(position);
    return position >= m_text.size() || next == m_separator || next == QLatin1Char('\n') || next == QLatin1Char('\r');
  }

  QString plainValue() {
    const int begin = m_position;
    while (!isEnd(m_position)) {
      if (at(m_position) == QLatin1Char('"')) {
        m_error = QStringLiteral("a value with a quote in it has to stand in quotes, and the quote to be doubled");
      }
      ++m_position;
    }
    return m_text.mid(begin, m_position - begin);
  }

  QString quotedValue() {
    QString value;
    const int openingLine = m_line;
    for (++m_position; !isAtEnd(); ++m_position) {
      if (at(m_position) == QLatin1Char('"')) {
        ++m_position;
        if (at(m_position) != QLatin1Char('"')) {
          m_error = isEnd(m_position) ? QString() : afterQuote();
          return value;
        }
      }
      m_line += at(m_position) == QLatin1Char('\n') ? 1 : 0;
      value += at(m_position);
    }
    m_recordLine = openingLine;
    m_error = QStringLiteral("the quote that begins a value here is never closed");
    return value;
  }

  QString afterQuote() {
    m_recordLine = m_line;
    return QStringLiteral("after the closing quote of a value there is '%1': a quote in a value has to be doubled")
        .arg(at(m_position));
  }

  const QString& m_text;
  QChar m_separator;
  int m_position = 0;
  int m_line = 1;
  int m_recordLine = 1;
  QString m_error;
};

QString whyNoColumns(const QStringList& columns) {
  for (int i = 0; i < columns.size(); ++i) {
    if (columns.at(i).isEmpty()) {
      return QStringLiteral("the column number %1 has no name").arg(i + 1);
    }
    if (columns.indexOf(columns.at(i)) < i) {
      return QStringLiteral("two columns have the name '%1'").arg(columns.at(i));
    }
  }
  return QString();
}

QString inLine(int line, const QString& what) { return QStringLiteral("line %1: %2").arg(QString::number(line), what); }

/// The error, or an empty text.
QString readRecords(const QString& text, QChar separator, Table* table) {
  RecordReader reader(text, separator);
  int values = 0;
  while (!reader.isAtEnd()) {
    const QStringList record = reader.read();
    QString error = reader.error();
    const bool isEmptyLine = record == QStringList(QString());
    if (error.isEmpty() && table->columns.isEmpty()) {
      error = whyNoColumns(record);
      table->columns = record;
    } else if (error.isEmpty() && !isEmptyLine) {
      error = record.size() == table->columns.size()
                  ? QString()
                  : QStringLiteral("there are %1 values for %2 columns").arg(record.size()).arg(table->columns.size());
      table->rows.push_back(record);
    }
    values += record.size();
    if (error.isEmpty() && values > mostValues) {
      error = QStringLiteral("there are more than %1 values").arg(mostValues);
    }
    if (!error.isEmpty()) {
      return inLine(reader.line(), error);
    }
  }
  return table->columns.isEmpty() ? QStringLiteral("it is empty, even without a line that names the columns")
                                  : QString();
}

QString readJson(const QString& text, Table* table) {
  const QByteArray bytes = text.toUtf8();
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
  if (error.error != QJsonParseError::NoError) {
    return inLine(bytes.left(error.offset).count('\n') + 1, error.errorString());
  }
  if (!document.isArray()) {
    return QStringLiteral("it holds no array of objects");
  }
  int number = 0;
  for (const QJsonValue& entry : document.array()) {
    ++number;
    if (!entry.isObject()) {
      return QStringLiteral("the entry number %1 of the array is no object").arg(number);
    }
  }
  table->json = text;
  return QString();
}

}  // namespace

FunctionCallResult<Table> readTable(const QString& path, const QString& shownPath) {
  const FunctionCallResult<QString> text = readTextFile(path);
  const QString ending = QFileInfo(path).suffix().toLower();
  Table table;
  QString error = text.error;
  if (ending == QLatin1String("json")) {
    error = text.failed() ? error : readJson(text.value, &table);
  } else if (ending == QLatin1String("csv") || ending == QLatin1String("tsv")) {
    const QChar separator = ending == QLatin1String("csv") ? QLatin1Char(',') : QLatin1Char('\t');
    error = text.failed() ? error : readRecords(text.value, separator, &table);
  } else {
    error = QStringLiteral("its name does not end in .csv, .tsv or .json");
  }
  return error.isEmpty() ? FunctionCallResult<Table>::success(table)
                         : FunctionCallResult<Table>::failure(
                               QStringLiteral("Cannot read the table '%1': %2.").arg(shownPath, error));
}

}  // namespace Corvex::Scripting
