#pragma once

#include "corvexhook/dump/uielement.h"

#include <QImage>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Corvex::Webhook {

class BrowserWindows;
class Connection;

/// An object of a page as it was when the page was dumped.
struct DumpedObject {
  int depth = 0;          ///< Levels below its document.
  QString className;      ///< The script class.
  QString name;           ///< Its name among its siblings.
  QString qualifiedName;  ///< A name that finds it; empty where none could be made.
  int matches = 0;        ///< How many objects that name fits; 0 where it was not counted.
  QString context;        ///< Of documents: the window or frame that shows it.
  GlobalBounds bounds;    ///< In pixels of the picture. Without a size for what is not shown.
  QVector<UIAbstraction::UIProperty> properties;
};

/// A page as it was: its picture, and each document followed by what is below it, frames after the page.
struct PageDump {
  QString url;
  QString title;
  QImage picture;  ///< Of the whole page; null where the browser gives none.
  QVector<DumpedObject> objects;
  QString error;  ///< Why objects or names are missing, as a sentence; empty when it is complete.
};

/// Reads the page and its frames. `properties` are names of script properties, in which * stands for any characters.
PageDump readDump(const BrowserWindows& windows, Connection& page, const QStringList& properties);

/// The same without the picture.
PageDump readObjects(const BrowserWindows& windows, Connection& page, const QStringList& properties);

/// The properties that are wanted where nobody says which.
QStringList usualProperties();

}  // namespace Corvex::Webhook
