#include "support/environment.h"
#include "support/files.h"
#include "wrappers/web/webtest.h"

#include <QTextStream>

using namespace Corvex;
using namespace TestSupport;

namespace {

QString superClassText(const Class* cls) {
  return cls->superClass() ? QLatin1String(" : ") + cls->superClass()->name() : QString();
}

/// Every class with the members that it adds, one a line.
QString dumpClasses() {
  QString dump;
  QTextStream out(&dump);
  for (const Class* cls : Inspector::self()->globalNamespace()->classes()) {
    out << cls->name() << superClassText(cls) << '\n';
    for (int id = cls->superClassOffset(Class::PropertyOffset); id < cls->numProperties(); ++id) {
      const Property* property = cls->property(id);
      out << "  " << property->name() << ": " << property->type().type()->name()
          << (property->isWritable() ? "" : " (read-only)") << '\n';
    }
    for (int id = cls->superClassOffset(Class::MethodOffset); id < cls->numMethods(); ++id) {
      out << "  " << cls->method(id)->text() << '\n';
    }
  }
  out << "Functions\n";
  for (const GlobalMethod* function : Inspector::self()->globalClass()->methods()) {
    out << "  " << function->text() << '\n';
  }
  return dump;
}

/// The lines that only one of the two has.
QString difference(const QStringList& expected, const QStringList& actual) {
  QString text;
  int e = 0;
  for (const QString& line : actual) {
    const int next = expected.indexOf(line, e);
    for (; next >= 0 && e < next; ++e) {
      text += QLatin1String("- ") + expected.at(e) + QLatin1Char('\n');
    }
    if (next < 0) {
      text += QLatin1String("+ ") + line + QLatin1Char('\n');
    } else {
      ++e;
    }
  }
  for (; e < expected.size(); ++e) {
    text += QLatin1String("- ") + expected.at(e) + QLatin1Char('\n');
  }
  return text;
}

class ObjectModel : public WebTest {};

}  // namespace

TEST_F(ObjectModel, IsAsDescribed) {
  const QString path = QStringLiteral(CORVEX_TEST_FOLDER "/catalogue/objectmodel.txt");
  const QString dump = dumpClasses();
  if (qEnvironmentVariable("CORVEX_UPDATE_EXPECTED") == QLatin1String("1")) {
    ASSERT_TRUE(writeFile(path, dump.toUtf8()));
  }
  const QString expected = QString::fromUtf8(readFile(path));
  EXPECT_TRUE(dump == expected)
      << "What scripts see has changed:\n"
      << difference(expected.split('\n'), dump.split('\n')).toStdString()
      << "If that is meant, run this test with CORVEX_UPDATE_EXPECTED=1 and review the change of "
      << path.toStdString();
}
