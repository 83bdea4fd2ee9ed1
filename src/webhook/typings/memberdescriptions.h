#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Corvex::Webhook {

/// What is said of the script classes and their members, for those who write scripts. The text has a line for each,
/// "Class = sentence" or "Class.member: type = sentence". The type is one that the model knows less well: that of a
/// property, or of each list in a method. "Class.*" stands for the members without a line; "%1" is then the
/// member as CSS writes it. Lines that begin with "# " are headings,
/// those that begin with "> " say what is common to the classes below.
class MemberDescriptions {
public:
  struct Group {
    QString title;
    QStringList prose;
    QStringList classes;
  };

  explicit MemberDescriptions(const QString& text);

  /// In the order of the text.
  const QVector<Group>& groups() const { return m_groups; }
  /// Of "Class" or "Class.member"; empty without one.
  QString sentence(const QString& key) const;
  /// The better type of a member; empty without one.
  QString type(const QString& key) const { return m_entries.value(key).type; }

private:
  struct Entry {
    QString type;
    QString sentence;
  };

  void read(const QString& line);

  QVector<Group> m_groups;
  QHash<QString, Entry> m_entries;
};

}  // namespace Corvex::Webhook
