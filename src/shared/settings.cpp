#include "shared/settings.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>

#include "shared/environment.h"
#include "shared/stringconv.h"
#include "shared/textfile.h"

namespace Corvex {

namespace {

constexpr const char* userSettingsNames[] = {"server.ini", "webwrapper.ini", "tkwrapper.ini",
                                             "paths.ini",  "ocr.ini",        "testcentercmd.ini"};
constexpr const char* globalSettingsNames[] = {"corvex.ini", "paths.ini"};

constexpr QLatin1Char levelSeparator('/');

QString withoutQuotes(const QString& text) {
  QString result = text;
  if (result.endsWith(QLatin1Char('"'))) {
    result.chop(1);
  }
  if (result.startsWith(QLatin1Char('"'))) {
    result.remove(0, 1);
  }
  return result;
}

}  // namespace

Settings::Settings(const QString& path) : m_fileName(path) { parse(); }

Settings::Settings(const QString& directory, const QString& name) : Settings(directory + levelSeparator + name) {}

Settings::~Settings() { flush(); }

QString Settings::defaultGroup() { return QStringLiteral("General"); }

QString Settings::normalizeKey(const QString& key) {
  QString result = key;
  if (result.startsWith(levelSeparator)) {
    result.remove(0, 1);
  }
  if (result.endsWith(levelSeparator)) {
    result.chop(1);
  }
  return result.replace(QLatin1Char('='), QLatin1Char('_')).replace(QLatin1String("//"), QLatin1String("/"));
}

void Settings::parse() {
  const QFileInfo file(m_fileName);
  if (!file.exists()) {
    return;
  }
  const FunctionCallResult<QString> text = readTextFile(m_fileName);
  if (text.failed()) {
    m_unreadable = true;
    if (file.isFile() && file.isReadable()) {
      qWarning("Corvex::Settings::parse: in file %s: %s", qUtf8Printable(m_fileName), qUtf8Printable(text.error));
    } else {
      qWarning("Corvex::Settings::parse: could not open file `%s' for reading", qUtf8Printable(m_fileName));
    }
    return;
  }
  QString group;
  const auto lines = text.value.split(QLatin1Char('\n'));
  for (const QString& line : lines) {
    parseLine(line.trimmed(), group);
  }
}

void Settings::parseLine(const QString& line, QString& group) {
  if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
    return;
  }
  if (line.startsWith(QLatin1Char('['))) {
    group = line.mid(1);
    if (group.endsWith(QLatin1Char(']'))) {
      group.chop(1);
    }
    m_groups[group];
    return;
  }
  if (m_groups.isEmpty()) {
    qWarning("Corvex::Settings::parse: in file %s: line `%s' not in a group", qUtf8Printable(m_fileName),
             qUtf8Printable(line));
    return;
  }
  const int equals = line.indexOf(QLatin1Char('='));
  if (equals < 0) {
    qWarning(
        "Corvex::Settings::parse: in file %s: corrupted line `%s' in group "
        "`%s'",
        qUtf8Printable(m_fileName), qUtf8Printable(line), qUtf8Printable(group));
    return;
  }
  m_groups[group][normalizeKey(line.left(equals).trimmed())] = line.mid(equals + 1).trimmed();
}

bool Settings::readRawEntry(const QString& group, const QString& key, QString* value) const {
  const auto entries = m_groups.constFind(group);
  if (entries == m_groups.cend()) {
    return false;
  }
  const auto entry = entries->constFind(normalizeKey(key));
  if (entry == entries->cend()) {
    return false;
  }
  *value = *entry;
  return true;
}

QString Settings::readEntry(const QString& group, const QString& key, const QString& defaultValue) const {
  QString raw;
  QString value;
  if (!readRawEntry(group, key, &raw) || !unquoteString(raw, &value)) {
    return defaultValue;
  }
  return m_expandEnvironment ? expandEnvironmentVariables(value) : value;
}

QStringList Settings::readListEntry(const QString& group, const QString& key, const QStringList& defaultValue) const {
  QString raw;
  QStringList value;
  return readRawEntry(group, key, &raw) && unquoteStringList(raw, &value) ? value : defaultValue;
}

int Settings::readNumEntry(const QString& group, const QString& key, int defaultValue) const {
  QString raw;
  if (!readRawEntry(group, key, &raw)) {
    return defaultValue;
  }
  bool isNumber = false;
  const int number = raw.trimmed().toInt(&isNumber, 10);
  return isNumber ? number : defaultValue;
}

double Settings::readDoubleEntry(const QString& group, const QString& key, double defaultValue) const {
  QString raw;
  if (!readRawEntry(group, key, &raw)) {
    return defaultValue;
  }
  bool isNumber = false;
  const double number = raw.trimmed().toDouble(&isNumber);
  return isNumber ? number : defaultValue;
}

bool Settings::readBoolEntry(const QString& group, const QString& key, bool defaultValue) const {
  QString raw;
  if (!readRawEntry(group, key, &raw)) {
    return defaultValue;
  }
  const QString word = withoutQuotes(raw.trimmed());
  bool isNumber = false;
  const int number = word.toInt(&isNumber, 10);
  if (isNumber) {
    return number != 0;
  }
  if (word.toUpper() == QLatin1String("TRUE")) {
    return true;
  }
  if (word.toUpper() == QLatin1String("FALSE")) {
    return false;
  }
  return defaultValue;
}

bool Settings::hasGroup(const QString& group) const { return m_groups.contains(group); }

QStringList Settings::groupList() const { return m_groups.keys(); }

QStringList Settings::namesBelow(const QString& group, const QString& key, bool withDeeperLevels) const {
  const QString parent = normalizeKey(key);
  const QString prefix = parent.isEmpty() ? parent : parent + levelSeparator;
  QStringList names;
  const auto keys = m_groups.value(group).keys();
  for (const QString& candidate : keys) {
    if (!candidate.startsWith(prefix)) {
      continue;
    }
    const QString rest = candidate.mid(prefix.size());
    const int separator = rest.indexOf(levelSeparator);
    if ((separator >= 0) != withDeeperLevels) {
      continue;
    }
    const QString name = rest.left(separator);
    if (!names.contains(name)) {
      names.append(name);
    }
  }
  return names;
}

QStringList Settings::subkeyList(const QString& group, const QString& key) const {
  return namesBelow(group, key, true);
}

QStringList Settings::entryList(const QString& group, const QString& key) const {
  return namesBelow(group, key, false);
}

void Settings::writeRawEntry(const QString& group, const QString& key, const QString& value) {
  m_groups[group][normalizeKey(key)] = value;
  m_dirty = true;
}

void Settings::writeEntry(const QString& group, const QString& key, const QString& value) {
  writeRawEntry(group, key, quoteString(value));
}

void Settings::writeEntry(const QString& group, const QString& key, const char* value) {
  writeEntry(group, key, QString::fromUtf8(value));
}

void Settings::writeEntry(const QString& group, const QString& key, const QStringList& value) {
  writeRawEntry(group, key, quoteStringList(value));
}

void Settings::writeEntry(const QString& group, const QString& key, int value) {
  writeRawEntry(group, key, QString::number(value));
}

void Settings::writeEntry(const QString& group, const QString& key, double value) {
  writeRawEntry(group, key, QString::number(value, 'g', QLocale::FloatingPointShortest));
}

void Settings::writeEntry(const QString& group, const QString& key, bool value) {
  writeRawEntry(group, key, value ? QStringLiteral("true") : QStringLiteral("false"));
}

void Settings::removeEntry(const QString& group, const QString& key) {
  const auto entries = m_groups.find(group);
  if (entries == m_groups.end()) {
    qWarning("Corvex::Settings::removeEntry: group '%s' not found in %s", qUtf8Printable(group),
             qUtf8Printable(m_fileName));
    return;
  }
  entries->remove(normalizeKey(key));
  m_dirty = true;
}

void Settings::flush() {
  if (!m_dirty) {
    return;
  }
  const QString directory = QFileInfo(m_fileName).path();
  if (!QDir().mkpath(directory)) {
    qWarning("Corvex::Settings::flush: could not create directory `%s'.", qUtf8Printable(directory));
    return;
  }
  QSaveFile file(m_fileName);
  file.setDirectWriteFallback(true);
  // What could not be read would be lost.
  if ((m_unreadable && QFileInfo(m_fileName).isFile()) || !file.open(QIODevice::WriteOnly)) {
    qWarning("Corvex::Settings::flush: could not open file `%s' for writing", qUtf8Printable(m_fileName));
    return;
  }
  for (auto group = m_groups.cbegin(); group != m_groups.cend(); ++group) {
    file.write(QStringLiteral("[%1]\n").arg(group.key()).toUtf8());
    for (auto entry = group->cbegin(); entry != group->cend(); ++entry) {
      file.write((entry.key() + QLatin1String(" = ") + entry.value() + QLatin1Char('\n')).toUtf8());
    }
  }
  if (!file.commit()) {
    qWarning("Corvex::Settings::flush: could not write file `%s': %s", qUtf8Printable(m_fileName),
             qUtf8Printable(file.errorString()));
    return;
  }
  m_dirty = false;
}

UserSettings::UserSettings(UserSettingsType type)
    : Settings(userSettingsDir(), QLatin1String(userSettingsNames[static_cast<int>(type)])) {}

GlobalSettings::GlobalSettings(GlobalSettingsType type)
    : Settings(corvexPrefix() + QStringLiteral("/etc"), QLatin1String(globalSettingsNames[static_cast<int>(type)])) {}

}  // namespace Corvex
