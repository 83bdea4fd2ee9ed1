#pragma once

#include <QJsonValue>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>

#include "support/testserver.h"
#include "support/virtualscreen.h"
#include "webhook/browser/browsersession.h"
#include "webhook/pages/connection.h"
#include "wrappers/web/object/webobject.h"
#include "wrappers/web/setup/wrapperconfig.h"

namespace TestSupport {

/// A browser whose window can be seen on a screen of its own, with one hooked page.
class ScreenBrowser {
public:
  /// The one whose pages have this many device pixels to a CSS pixel; another one that runs ends first. `error()` says
  /// what is wrong with it.
  static ScreenBrowser& withScale(double scale);
  static void end();
  /// Where its window is on the screen, in device pixels.
  static QRect windowArea();

  const QString& error() const { return m_error; }

  /// Loads this page from the local server.
  QString load(const QString& html);
  /// The value of a JavaScript expression; a failure comes back as a text that begins with "failed: ".
  QJsonValue evaluate(const QString& expression);
  /// The page object of an element; null when there is none.
  std::unique_ptr<Corvex::WebWrapper::HTML_Object> object(const QString& expression);
  /// A picture of an element, as scripts take it. Null with an error.
  QImage pictureOf(const QString& expression, QString* error);
  /// Zooms the page as a user does, and waits until it is zoomed: some steps up, or back to where it was by 0.
  QString zoomPage(int steps);
  /// Asks until the condition holds, each time after frames that the page has painted. False when it never did.
  bool waitForPainted(const std::function<bool()>& condition);

  const VirtualScreen& screen() const { return m_screen; }

private:
  explicit ScreenBrowser(double scale);
  QString start();
  bool waitFor(const std::function<bool()>& condition);

  double m_scale;
  VirtualScreen m_screen;
  TestServer m_server;
  Corvex::WebWrapper::MemoryBasedConfig m_config;
  std::unique_ptr<Corvex::Webhook::BrowserSession> m_session;
  std::unique_ptr<Corvex::Webhook::Connection> m_connection;
  QString m_error;
  int m_pages = 0;
};

}  // namespace TestSupport
