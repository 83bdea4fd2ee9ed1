// A file field that is filled by pointer and keyboard.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <memory>

#include "support/environment.h"
#include "support/files.h"
#include "support/printing.h"
#include "support/screenbrowser.h"
#include "support/testbrowser.h"
#include "wrappers/web/elements/html_text.h"
#include "wrappers/web/input/selectfiletoupload.h"
#include "wrappers/web/object/retrievehtmlobject.h"

namespace {

using namespace Corvex::WebWrapper;
using namespace TestSupport;

// Chromium's own dialog is cancelled by the key that accepts others.
TEST(Upload, TakesTheRoadOverTheDialog) {
  ScreenBrowser& browser = ScreenBrowser::withScale(1);
  ASSERT_EQ(browser.error(), QString());
  const ScopedVariable display("DISPLAY", browser.screen().display());
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("upload.txt"));
  ASSERT_TRUE(writeFile(path, "1234567"));
  ASSERT_EQ(browser.load(QStringLiteral("<!DOCTYPE html><p style='height:3000px'></p><input id=f type=file "
                                        "onchange='document.title = files[0].name + files[0].size' "
                                        "oncancel='document.title = `cancelled`'>")),
            QString());
  const std::unique_ptr<HTML_Object> object = browser.object(QStringLiteral("document.getElementById('f')"));
  auto* const field = dynamic_cast<HTML_TextBase*>(object.get());
  ASSERT_TRUE(field);
  EXPECT_EQ(selectFileToUpload(field, path), QString());
  const QString reported = inBrowser("cancelled", "upload.txt7");
  EXPECT_TRUE(browser.waitForPainted([&] { return browser.evaluate(QStringLiteral("document.title")) == reported; }));
}

}  // namespace
