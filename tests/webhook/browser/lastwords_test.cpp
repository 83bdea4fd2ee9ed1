#include "webhook/browser/lastwords.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Corvex::Webhook;

TEST(LastWords, AreTheLastLinesThatSaySomething) {
  struct Row {
    const char* output;
    const char* words;
  };
  const Row rows[] = {
      {"", ""},
      {"\n \n\t\n", ""},
      {"/bin/ls: unrecognized option '--x'\nTry '/bin/ls --help' for more information.\n",
       "/bin/ls: unrecognized option '--x' Try '/bin/ls --help' for more information."},
      {"one\ntwo\n\nthree\nfour\n", "two three four"},
      {"[12:12:1123/081500.123456:ERROR:dbus/bus.cc(406)] Failed to connect to the bus: no such file\n"
       "[12:34:1123/081500.123456:WARNING:sandbox/linux.cc(3)] InitializeSandbox() called\n"
       "DevTools listening on ws://127.0.0.1:1/x\n",
       ""},
      {"[12:12:1123/081500.123456:ERROR:ui/ozone/platform/x11/ozone_platform_x11.cc(249)] Missing X server or "
       "$DISPLAY\n"
       "[12:12:1123/081500.123456:ERROR:ui/gpu/viz_main.cc(1)] Exiting GPU process\n",
       "Missing X server or $DISPLAY"},
      {"Received signal 11 SEGV_MAPERR 000000000010\n#0 0x55d0c3 (/usr/lib/chromium/chromium+0x1)\n"
       "  r8: 0000000000000000  r9: 00007f0000000000\n rip: 000055d0c3a0 efl: 0000000000010246\n[end of stack trace]\n"
       "Calling _exit(1). Core file will not be generated.\n",
       "Received signal 11 SEGV_MAPERR 000000000010"},
      {"*** You are running in headless mode.\nWebDriver BiDi listening on ws://127.0.0.1:1\n"
       "(firefox-esr:12): Gtk-WARNING **: 08:15:00.000: Theme parsing error\n"
       "console.error: ({})\nJavaScript error: resource://x.sys.mjs, line 3: TypeError: x\n",
       ""},
      {"Error: cannot open display: :9\x1b[0m\n", "Error: cannot open display: :9?[0m"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(lastWords(row.output), QString::fromUtf8(row.words)) << row.output;
  }
  EXPECT_EQ(lastWords(QByteArray(5000, 'x')).size(), 300);
}
