#include "webhook/pages/globaldeclarations.h"

#include <QSet>

#include <vector>

namespace Corvex::Webhook {

namespace {

bool isWordCharacter(QChar c) { return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('$'); }

/// Reads a script token by token, as far as that takes to know where its top level is.
class Declarations {
public:
  explicit Declarations(const QString& script) : m_script(script) {}

  QString rewritten() {
    while (m_pos < m_script.size()) {
      takeToken();
    }
    return m_result + m_script.mid(m_copied);
  }

private:
  QChar at(int pos) const { return pos < m_script.size() ? m_script.at(pos) : QChar(); }
  bool is(const char* text) const {
    const QLatin1String wanted(text);
    return m_script.midRef(m_pos, wanted.size()) == wanted;
  }

  void takeToken() {
    const QChar c = at(m_pos);
    if (is("//")) {
      const int end = m_script.indexOf(QLatin1Char('\n'), m_pos);
      m_pos = end < 0 ? m_script.size() : end;
    } else if (is("/*")) {
      skipComment();
    } else if (is("++") || is("--")) {
      // What it follows or precedes decides what a slash means after it.
      m_pos += 2;
      m_isStatementStart = false;
    } else if (c == QLatin1Char('"') || c == QLatin1Char('\'') || c == QLatin1Char('`')) {
      skipQuoted(c);
    } else if (c == QLatin1Char('/') && m_mayBeginExpression) {
      skipRegularExpression();
    } else if (isWordCharacter(c)) {
      takeWord();
    } else {
      takeSign(c);
    }
  }

  void skipComment() {
    const int start = m_pos;
    const int end = m_script.indexOf(QLatin1String("*/"), m_pos + 2);
    m_pos = end < 0 ? m_script.size() : end + 2;
    if (m_script.midRef(start, m_pos - start).contains(QLatin1Char('\n'))) {
      beginLine();
    }
  }

  /// A statement may begin on a line, unless the one before asks for more.
  void beginLine() { m_isStatementStart = m_isStatementStart || (m_depth == 0 && !m_mayBeginExpression); }

  void skipQuoted(QChar quote) {
    for (++m_pos; m_pos < m_script.size() && at(m_pos) != quote; ++m_pos) {
      if (at(m_pos) == QLatin1Char('\\')) {
        ++m_pos;
      } else if (quote == QLatin1Char('`') && is("${")) {
        m_templates.push_back(m_depth);
        m_depth = 1;
        m_pos += 2;
        m_mayBeginExpression = true;
        return;
      }
    }
    ++m_pos;
    m_mayBeginExpression = false;
  }

  void skipRegularExpression() {
    bool isClass = false;
    for (++m_pos; m_pos < m_script.size() && at(m_pos) != QLatin1Char('\n'); ++m_pos) {
      const QChar c = at(m_pos);
      if (c == QLatin1Char('\\')) {
        ++m_pos;
      } else if (c == QLatin1Char('/') && !isClass) {
        break;
      } else {
        isClass = c == QLatin1Char('[') || (isClass && c != QLatin1Char(']'));
      }
    }
    ++m_pos;
    m_mayBeginExpression = false;
  }

  void takeWord() {
    const int start = m_pos;
    while (isWordCharacter(at(m_pos))) {
      ++m_pos;
    }
    const QString word = m_script.mid(start, m_pos - start);
    if (m_depth == 0 && m_templates.empty() && m_isStatementStart) {
      if (word == QLatin1String("const") || word == QLatin1String("let")) {
        replace(start, QStringLiteral("var"));
      } else if (word == QLatin1String("class")) {
        replace(start, QStringLiteral("var %1 = class").arg(nextWord()));
        m_isClassOpen = true;
      }
    }
    // What follows these is an expression; what follows other words is not, so that a slash divides.
    static const QSet<QString> beforeExpressions{
        QStringLiteral("return"), QStringLiteral("typeof"), QStringLiteral("case"), QStringLiteral("in"),
        QStringLiteral("of"),     QStringLiteral("delete"), QStringLiteral("void"), QStringLiteral("throw"),
        QStringLiteral("new"),    QStringLiteral("else"),   QStringLiteral("do"),   QStringLiteral("instanceof")};
    m_mayBeginExpression = beforeExpressions.contains(word);
    m_isStatementStart = false;
  }

  QString nextWord() const {
    int start = m_pos;
    while (at(start).isSpace()) {
      ++start;
    }
    int end = start;
    while (isWordCharacter(at(end))) {
      ++end;
    }
    return m_script.mid(start, end - start);
  }

  void takeSign(QChar c) {
    ++m_pos;
    if (c == QLatin1Char('\n')) {
      beginLine();
      return;
    }
    if (c.isSpace()) {
      return;
    }
    if (c == QLatin1Char('{') || c == QLatin1Char('(') || c == QLatin1Char('[')) {
      ++m_depth;
    } else if (c == QLatin1Char('}') || c == QLatin1Char(')') || c == QLatin1Char(']')) {
      close(c);
    }
    m_mayBeginExpression = c != QLatin1Char(')') && c != QLatin1Char(']') && c != QLatin1Char('}');
    m_isStatementStart = m_depth == 0 && (c == QLatin1Char(';') || c == QLatin1Char('}'));
  }

  void close(QChar c) {
    --m_depth;
    if (m_depth == 0 && !m_templates.empty()) {
      m_depth = m_templates.back();
      m_templates.pop_back();
      --m_pos;
      skipQuoted(QLatin1Char('`'));
    } else if (m_depth == 0 && m_isClassOpen && c == QLatin1Char('}')) {
      // A class is an expression now, which would go on with what follows.
      m_isClassOpen = false;
      replace(m_pos, QStringLiteral(";"));
    }
  }

  /// Puts the text in the place of what was read since `start`.
  void replace(int start, const QString& text) {
    m_result += m_script.mid(m_copied, start - m_copied) + text;
    m_copied = m_pos;
  }

  const QString& m_script;
  QString m_result;
  int m_copied = 0;
  int m_pos = 0;
  int m_depth = 0;
  std::vector<int> m_templates;  ///< Depths outside of the templates that are open.
  bool m_isStatementStart = true;
  bool m_mayBeginExpression = true;
  bool m_isClassOpen = false;
};

}  // namespace

QString withGlobalDeclarations(const QString& script) { return Declarations(script).rewritten(); }

}  // namespace Corvex::Webhook
