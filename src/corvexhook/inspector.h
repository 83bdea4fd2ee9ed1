#pragma once

#include "corvexhook/export.h"
#include "corvexhook/object.h"
#include "corvexhook/primitives.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>
#include <vector>

namespace Corvex {

class Class;
class GlobalClass;
class HostServices;
class Namespace;
class ObjectName;
class Recorder;

/// The framework's one meeting point: classes, wrapping of values, object lookup and script errors. One thread.
class CORVEXHOOK_EXPORT Inspector {
public:
  static Inspector* self();
  virtual ~Inspector();

  GlobalClass* globalClass() const { return m_globalClass; }
  Namespace* globalNamespace() const { return m_namespace.get(); }
  /// Script text that the framework adds to what runs in a page.
  QString extensionCode() const { return m_extensionCode; }
  void setExtensionCode(const QString& code) { m_extensionCode = code; }

  /// Remembers that no element had `property` of the name, for the sentence of a failed lookup.
  void addUnmatchedProperty(const QString& objectName, const QString& property);
  void removeUnmatchedProperties(const QString& objectName);
  QStringList unmatchedProperties(const QString& objectName) const { return m_unmatched.value(objectName); }

  /// Waits until the object is found and ready, at most the default time.
  virtual SharedPtr<Object> waitForObject(const QString& name);
  /// One attempt with a timeout of 0, else attempts until the object is found and ready, the milliseconds are over, or
  /// two attempts in a row have failed. An object that isn't there is reported to the script.
  virtual SharedPtr<Object> findObject(const QString& name, int timeoutMs);
  /// See `PrimitiveType`; null for an unknown number.
  virtual const Class* primitiveType(int id) const;
  virtual const Class* classByName(const QString& name) const;
  virtual SharedPtr<Object> wrapInt(int value) const;
  virtual SharedPtr<Object> wrapUInt(unsigned int value) const;
  virtual SharedPtr<Object> wrapBool(bool value) const;
  virtual SharedPtr<Object> wrapDouble(double value) const;
  virtual SharedPtr<Object> wrapString(const QString& value) const;
  virtual SharedPtr<Object> nullObject(const Class* cls) const;
  virtual SharedPtr<Object> wrapVoid() const;
  /// Aborts the script call with this text. The first error of a call stays; the caller returns a null pointer
  /// after it.
  virtual void reportScriptError(const QString& text);

  bool hasScriptError() const { return !m_scriptError.isEmpty(); }
  /// The error of the running script call, which is none from then on.
  QString takeScriptError();

  /// One silent attempt: null when the object isn't there. A symbolic name gives its real one first; a name that cannot
  /// be parsed, one that can never be found, or a failed lookup is reported to the script.
  SharedPtr<Object> lookup(const QString& name);
  /// Every object that a name fits, in the order of lookups; reports what `lookup` reports.
  ObjectList lookupAll(const QString& name);
  /// The sentence for a name that was not found.
  QString notFoundError(const QString& name) const;

  /// Where lookups start; asked in this order.
  void addRootObject(const SharedPtr<Object>& root) { m_roots.push_back(root); }
  /// Moves a root object to the front.
  void askFirst(const SharedPtr<Object>& root);
  void removeRootObject(const SharedPtr<Object>& root);
  const std::vector<SharedPtr<Object>>& rootObjects() const { return m_roots; }

  /// What the embedding process answers for; borrowed. Null stands for a process that knows nothing.
  void setHostServices(const HostServices* services);
  const HostServices& hostServices() const { return *m_services; }
  /// While `flag` is set, every wait and lookup ends with the error "interrupted". Borrowed; null for none.
  void setInterruption(const std::atomic<bool>* flag) { m_interruption = flag; }
  /// Why nothing can go on any more; see `HostServices`. An interrupted script cannot either.
  QString whyNotGoOn() const;
  /// Who keeps what is recorded; borrowed, null for nobody.
  void attachRecorder(Recorder* recorder) { m_recorder = recorder; }
  Recorder* recorder() const { return m_recorder; }
  void setRecording(bool recording) { m_recording = recording; }
  bool isRecording() const { return m_recording && m_recorder; }

  /// Milliseconds that `waitForObject` waits, 20000 at first.
  void setDefaultTimeout(int milliseconds) { m_defaultTimeout = milliseconds; }
  int defaultTimeout() const { return m_defaultTimeout; }

protected:
  Inspector();

private:
  friend class HostServices;

  bool reportWhyNotLookUp(const QString& name);
  /// The real name; an empty text after a reported error.
  QString usableName(const QString& name);
  bool reportWhyNeverFound(const QString& realName);
  SharedPtr<Object> lookupOnce(const QString& realName) const;
  ObjectList allInRoots(const QString& realName) const;
  ObjectList firstInRoots(const std::vector<SharedPtr<Object>>& roots, const ObjectName& name) const;
  SharedPtr<Object> lookupInRoots(const std::vector<SharedPtr<Object>>& roots, const QString& realName) const;
  bool isReady(const SharedPtr<Object>& object) const;
  SharedPtr<Object> waitUntilReady(const QString& name, int timeoutMs);

  std::unique_ptr<Namespace> m_namespace;
  GlobalClass* m_globalClass = nullptr;
  QString m_extensionCode;
  QHash<QString, QStringList> m_unmatched;
  QString m_scriptError;
  std::vector<SharedPtr<Object>> m_roots;
  const HostServices* m_services;
  const std::atomic<bool>* m_interruption = nullptr;
  int m_defaultTimeout = 20000;
  Recorder* m_recorder = nullptr;
  bool m_recording = false;
};

}  // namespace Corvex
