#pragma once

#include "report.h"
#include "webhook/browser/browsersession.h"

namespace CorvexBench {

using Corvex::Webhook::SessionOptions;

// Each adds its rows to the report; false when something could not be measured, which it has told then.

/// What a lookup costs beside the bare round trip to the browser.
bool measureLookups(const SessionOptions& options, Report& report);

/// What naming, searching and listing cost in the page itself.
bool measureInPage(const SessionOptions& options, Report& report);

/// How fast the endpoint takes what one page sends, each message after the reply to the one before; none may be lost.
bool measureMessages(const SessionOptions& options, Report& report);

/// What an event costs in a page that is recorded, beside one that nobody listens to.
bool measureRecording(const SessionOptions& options, Report& report);

/// What it costs to read a page whole, beside one picture of it.
bool measureDump(const SessionOptions& options, Report& report);

/// What the start of the program costs beside the browser's own.
bool measureStart(const SessionOptions& options, Report& report);

}  // namespace CorvexBench
