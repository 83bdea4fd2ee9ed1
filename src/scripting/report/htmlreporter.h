#pragma once

#include <QFile>

#include "scripting/report/runevents.h"

namespace Corvex::Scripting {

/// Writes a run down as one page that opens offline: first its viewer, then each event as it comes, so that also a run
/// that was killed can be read up to there. No text of scripts and pages is code or markup in it.
class CORVEXSCRIPTING_EXPORT HtmlReporter : public EventWriter {
public:
  /// `treeViewer` is a page that shows an object tree, with "%DATA%" where the JSON of `tree` goes.
  HtmlReporter(const QString& path, const QByteArray& treeViewer);

  /// Makes the file. Answers an error that names it, or an empty text. To be called before anything runs.
  QString open();
  /// What went wrong when the report was written; nothing is written from then on. Empty when nothing did.
  const QString& error() const { return m_error; }

  void scriptStarted(const QString& path) override;
  void objectCall(const Step& call) override;
  void tree(const QByteArray& json) override;
  void picture(const Picture& picture) override;

private:
  void append(const QJsonObject& event);
  void write(const QByteArray& bytes);

  QFile m_file;
  QByteArray m_treeViewer;
  QString m_error;
  int m_objectCalls = 0;
  int m_trees = 0;
  int m_failurePictures = 0;
  int m_stepPictures = 0;
};

}  // namespace Corvex::Scripting
