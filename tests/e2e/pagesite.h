#pragma once

#include <QString>
#include <QStringList>

#include "support/programrun.h"
#include "support/testserver.h"

namespace TestSupport {

/// "chromium", or what the environment asks for.
QString browserUnderTest();

/// A site of small pages, some of them under a policy of their own, and the program run against it.
class PageSite {
public:
  PageSite();

  TestServer& server() { return m_server; }
  ProgramRun& program() { return m_program; }

  /// Puts a script into the program's folder, with the site's address in SITE and the functions of the kit.
  void write(const QString& name, const QString& script);

  /// "run" with the browser under test, the options and the scripts.
  QStringList arguments(const QStringList& scripts, const QStringList& options = {}) const;

  /// Nothing of program and browser is left on the machine.
  void expectNothingLeft() const;

private:
  TestServer m_server;
  ProgramRun m_program;
};

}  // namespace TestSupport
