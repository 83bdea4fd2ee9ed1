#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include "shared/export.h"

namespace Corvex {

/// A small store of groups of keys with textual values, read from a file at construction and written back by flush().
///
/// The file is UTF-8 text, one item per line: "[group]" opens or continues a group, "key = value" adds an entry to it,
/// lines that begin with "#" and empty lines are skipped. Strings stand in double quotes, numbers and booleans bare. A
/// line that fits none of these is skipped with a warning. Comments and skipped lines are not written back.
///
/// Keys are normalised wherever they come in: one leading and one trailing "/" are dropped, "=" becomes "_", and "//"
/// becomes "/".
///
/// A missing file gives an empty store. A value that cannot be read as the type asked for counts as absent.
class CORVEX_EXPORT Settings {
public:
  explicit Settings(const QString& path);
  Settings(const QString& directory, const QString& name);
  ~Settings();

  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;

  /// "General".
  static QString defaultGroup();
  static QString normalizeKey(const QString& key);

  const QString& fileName() const { return m_fileName; }
  bool isDirty() const { return m_dirty; }

  /// Whether readEntry() replaces environment variables in what it gives; off at first.
  void setExpandEnvironment(bool expand) { m_expandEnvironment = expand; }

  QString readEntry(const QString& group, const QString& key, const QString& defaultValue = QString()) const;
  QStringList readListEntry(const QString& group, const QString& key,
                            const QStringList& defaultValue = QStringList()) const;
  int readNumEntry(const QString& group, const QString& key, int defaultValue = 0) const;
  double readDoubleEntry(const QString& group, const QString& key, double defaultValue = 0) const;
  /// Numbers count as true unless they are 0; otherwise "true" and "false" in any case, with or without double quotes.
  bool readBoolEntry(const QString& group, const QString& key, bool defaultValue = false) const;
  /// The value's text as it stands in the file. False, and `value` untouched, when there is no such entry.
  bool readRawEntry(const QString& group, const QString& key, QString* value) const;

  bool hasGroup(const QString& group) const;
  QStringList groupList() const;
  /// The names one level below `key` (an empty key is the root) that have entries below them; levels part at "/".
  QStringList subkeyList(const QString& group, const QString& key) const;
  /// The names one level below `key` that are entries themselves.
  QStringList entryList(const QString& group, const QString& key) const;

  void writeEntry(const QString& group, const QString& key, const QString& value);
  void writeEntry(const QString& group, const QString& key, const char* value);
  void writeEntry(const QString& group, const QString& key, const QStringList& value);
  void writeEntry(const QString& group, const QString& key, int value);
  void writeEntry(const QString& group, const QString& key, double value);
  void writeEntry(const QString& group, const QString& key, bool value);
  /// `value` is written as it is and must hold no line break.
  void writeRawEntry(const QString& group, const QString& key, const QString& value);
  void removeEntry(const QString& group, const QString& key);

  /// Writes the file if something was changed. A failure is a warning, and the change stays to be written.
  void flush();

private:
  using Entries = QMap<QString, QString>;

  void parse();
  void parseLine(const QString& line, QString& group);
  QStringList namesBelow(const QString& group, const QString& key, bool withDeeperLevels) const;

  QMap<QString, Entries> m_groups;
  QString m_fileName;
  bool m_dirty = false;
  bool m_unreadable = false;
  bool m_expandEnvironment = false;
};

enum class UserSettingsType { Server, WebWrapper, TkWrapper, Paths, Ocr, TestCenterCmd };
enum class GlobalSettingsType { Corvex, Paths };

/// One of the user's files in userSettingsDir().
class CORVEX_EXPORT UserSettings : public Settings {
public:
  explicit UserSettings(UserSettingsType type);
};

/// One of the installation's files in "etc" below `CORVEX_PREFIX`.
class CORVEX_EXPORT GlobalSettings : public Settings {
public:
  explicit GlobalSettings(GlobalSettingsType type);
};

}  // namespace Corvex
