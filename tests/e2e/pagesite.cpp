#include "e2e/pagesite.h"

#include <gtest/gtest.h>

#include <QProcess>

#include "support/files.h"
#include "support/printing.h"

namespace TestSupport {

namespace {

struct PolicyRow {
  const char* prefix;
  const char* folder;
  const char* policy;
};

const PolicyRow policies[] = {
    {"/self/", "/e2e/pages/", "default-src 'self'"},
    {"/shop/", "/../examples/shop/", "default-src 'self'"},
    {"/sandbox/", "/e2e/pages/", "sandbox allow-scripts allow-same-origin"},
    {"/noeval/", "/e2e/pages/", "script-src 'self'"},
};

const char* typeOf(const QString& file) {
  return file.endsWith(QLatin1String(".js"))    ? "text/javascript; charset=utf-8"
         : file.endsWith(QLatin1String(".css")) ? "text/css"
         : file.endsWith(QLatin1String(".svg")) ? "image/svg+xml"
                                                : "text/html; charset=utf-8";
}

void addFolder(TestServer& server, const PolicyRow& row) {
  const QDir folder(QStringLiteral(CORVEX_TEST_SOURCE) + QLatin1String(row.folder));
  for (const QString& file : folder.entryList(QDir::Files)) {
    ServerPage page;
    page.body = readFile(folder.filePath(file));
    page.type = typeOf(file);
    page.headers = {{"Content-Security-Policy", row.policy}};
    server.add(QLatin1String(row.prefix) + file, page);
  }
}

void addDownload(TestServer& server, const QString& path, const QByteArray& name, int missing = 0) {
  ServerPage page;
  page.body = "a,b\n1,2\n";
  page.type = "text/csv";
  page.headers = {{"Content-Disposition", "attachment; filename=\"" + name + "\""}};
  page.missing = missing;
  server.add(path, page);
}

}  // namespace

QString browserUnderTest() { return qEnvironmentVariable("CORVEX_TEST_BROWSER", QStringLiteral("chromium")); }

PageSite::PageSite() {
  m_server.serveFolder(QStringLiteral(CORVEX_TEST_SOURCE "/e2e/pages"));
  m_server.serveFolder(QStringLiteral(CORVEX_TEST_SOURCE "/../node_modules"), QStringLiteral("/packages/"));
  for (const PolicyRow& row : policies) {
    addFolder(m_server, row);
  }
  ServerPage moved;
  moved.status = 302;
  moved.headers = {{"Location", "/plain.html"}};
  m_server.add(QStringLiteral("/moved"), moved);
  addDownload(m_server, QStringLiteral("/report"), "report.csv");
  addDownload(m_server, QStringLiteral("/hostile"), "../../.profile\\\\" + QByteArray(180, 'x') + ".csv");
  addDownload(m_server, QStringLiteral("/broken"), "broken.csv", 1000);
  for (const char* path : {"/private", "/private/other"}) {
    ServerPage kept;
    kept.body = "<title>Private</title>";
    kept.login = "ada:sec:r@t";
    m_server.add(QLatin1String(path), kept);
  }
  // The site as a proxy of others.
  m_server.add(QStringLiteral("http://proxied.test/"), {"<title>Proxied</title>"});
  m_server.add(QStringLiteral("http://127.0.0.1:65000/"), {"<title>Proxied, too</title>"});
  ServerPage never;
  never.silent = true;
  m_server.add(QStringLiteral("/never"), never);
  const QString variables =
      QStringLiteral("var SITE = '%1';\nvar BROWSER = '%2';\n").arg(m_server.url(QString()), browserUnderTest());
  const QByteArray kit = readFile(QStringLiteral(CORVEX_TEST_SOURCE "/e2e/kit.js"));
  m_program.write(QStringLiteral("kit.js"), variables + QString::fromUtf8(kit));
}

void PageSite::startSecureServer() {
  const QString certificate = m_program.folder() + QStringLiteral("/certificate.pem");
  const QString key = m_program.folder() + QStringLiteral("/key.pem");
  const QString options =
      QStringLiteral("req -x509 -nodes -newkey ec -pkeyopt ec_paramgen_curve:P-256 -subj /CN=localhost");
  QProcess::execute(QStringLiteral("openssl"), options.split(QLatin1Char(' '))
                                                   << QStringLiteral("-keyout") << key << QStringLiteral("-out")
                                                   << certificate);
  m_secureServer = std::make_unique<TestServer>(readFile(certificate), readFile(key));
  m_secureServer->add(QStringLiteral("/"), {"<title>Secure</title>"});
}

void PageSite::write(const QString& name, const QString& script) {
  QString head = QStringLiteral("source('kit.js'); ");
  if (script.contains(QLatin1String("SECURE_SITE"))) {
    startSecureServer();
    head += QStringLiteral("var SECURE_SITE = '%1'; ").arg(m_secureServer->url(QString()));
  }
  // On the first line, so that the script's lines keep their numbers.
  m_program.write(name, head + script);
}

QStringList PageSite::arguments(const QStringList& scripts, const QStringList& options) const {
  return QStringList{QStringLiteral("run"), QStringLiteral("--browser"), browserUnderTest()} + options + scripts;
}

void PageSite::expectNothingLeft() const {
  EXPECT_EQ(m_program.leftovers(), QStringList());
  EXPECT_EQ(m_program.browserProcesses(), QList<qint64>());
}

}  // namespace TestSupport
