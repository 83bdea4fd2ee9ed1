#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace Corvex::Webhook {

class BrowserWindows;
class Connection;

/// A document that lookups can start in.
struct Context {
  QString name;
  Connection* connection = nullptr;
  /// Its name inside the page of that connection.
  QString localName;
};

/// All contexts of all pages: each window's document, and after it its frames. Where two pages have the same name, the
/// second and later ones have "<2>" and so on after the page's part of the name. Of a page that shows a dialog,
/// or may be held by that of another window, only the window is known; but one that may be held is asked for its frames
/// where `wanted` is the name of one.
QVector<Context> allContexts(const BrowserWindows& windows, const QString& wanted = {});

/// Whether there is a context of that name now.
bool hasContext(const BrowserWindows& windows, const QString& name);

/// Lookups start in that context from now on. The error lists the names that there are.
QString selectContext(BrowserWindows& windows, const QString& name);

/// The sentence `what` about a context that is missing, and what there is instead. A page that shows a dialog has told
/// nothing of its frames, so the dialog is part of it.
QString whyNoContext(const BrowserWindows& windows, const QString& what);

/// The names of all contexts for a sentence, in quotes; of many the first.
QString listOfContexts(const BrowserWindows& windows);

/// Selects a frame of the current page by its path of names, ids or "FRAME" and number, parted by dots.
QString selectFrame(const BrowserWindows& windows, const QString& path);

QStringList contextNames(const BrowserWindows& windows);
/// The names of the contexts that are windows.
QStringList windowNames(const BrowserWindows& windows);

}  // namespace Corvex::Webhook
