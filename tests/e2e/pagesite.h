#pragma once

#include <QString>
#include <QStringList>
#include <memory>

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

  /// Puts a script into the program's folder, with the site's address in SITE and the functions of the kit. A script
  /// that mentions SECURE_SITE finds a server of https there, whose certificate nobody trusts.
  void write(const QString& name, const QString& script);

  /// "run" with the browser under test, the options and the scripts.
  QStringList arguments(const QStringList& scripts, const QStringList& options = {}) const;

  /// Nothing of program and browser is left on the machine.
  void expectNothingLeft() const;

private:
  void startSecureServer();

  TestServer m_server;
  std::unique_ptr<TestServer> m_secureServer;
  ProgramRun m_program;
};

}  // namespace TestSupport
