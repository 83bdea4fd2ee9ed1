#include "scripting/report/htmlreporter.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>

#include "scripting/reportlimits.h"
#include "shared/visibletext.h"

// Outside of any namespace, as Qt asks for it.
static void initViewer() { Q_INIT_RESOURCE(report); }

namespace Corvex::Scripting {

namespace {

QByteArray partOfViewer(const char* name) {
  QFile file(QStringLiteral(":/scripting/report/") + QLatin1String(name));
  if (!file.open(QIODevice::ReadOnly)) {
    qFatal("The report's file '%s' is not built in.", name);
  }
  return file.readAll();
}

// In the order in which they need each other.
const char* const scriptFiles[] = {"events.js", "elements.js", "comparison.js", "pictures.js", "parts.js", "report.js"};

QByteArray viewerScript() {
  QByteArray script("(function () {\n'use strict';\n\n");
  for (const char* name : scriptFiles) {
    script += partOfViewer(name) + '\n';
  }
  return script + "})();\n";
}

/// What a policy has to hold so that a browser runs this script.
QByteArray permission(const QByteArray& script) {
  return "'sha256-" + QCryptographicHash::hash(script, QCryptographicHash::Sha256).toBase64() + "'";
}

/// The text of the last script element of a page.
QByteArray lastScriptOf(const QByteArray& page) {
  const QByteArray begin("<script>");
  const int from = page.lastIndexOf(begin) + begin.size();
  return page.mid(from, page.indexOf("</script>", from) - from);
}

// Texts of trees have been made visible, and those of pictures are not shown.
bool isShown(const QString& field) { return field != QLatin1String("bytes") && field != QLatin1String("json"); }

QJsonValue visible(const QJsonValue& value) {
  if (value.isString()) {
    return visibleText(value.toString());
  }
  if (value.isArray()) {
    QJsonArray array;
    for (const QJsonValue& each : value.toArray()) {
      array.append(visible(each));
    }
    return array;
  }
  if (!value.isObject()) {
    return value;
  }
  QJsonObject object = value.toObject();
  for (auto field = object.begin(); field != object.end(); ++field) {
    if (isShown(field.key())) {
      *field = visible(*field);
    }
  }
  return object;
}

/// Nothing in it ends the element.
QByteArray dataElement(const QByteArray& attributes, QByteArray json) {
  return "<script type=\"application/json\"" + attributes + ">" + json.replace('<', "\\u003c") + "</script>\n";
}

}  // namespace

HtmlReporter::HtmlReporter(const QString& path, const QByteArray& treeViewer)
    : EventWriter([this](const QJsonObject& event) { append(event); }), m_file(path), m_treeViewer(treeViewer) {
  initViewer();
}

QString HtmlReporter::open() {
  if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
    m_error =
        QStringLiteral(
            "Cannot write the report '%1': %2. Choose a file in a directory that exists and that you may write to.")
            .arg(m_file.fileName(), m_file.errorString());
    return m_error;
  }
  const QByteArray script = viewerScript();
  QByteArray page = partOfViewer("report.html");
  page.replace("%PERMISSIONS%", permission(script) + ' ' + permission(lastScriptOf(m_treeViewer)))
      .replace("%STYLE%", partOfViewer("report.css"))
      .replace("%SCRIPT%", script);
  const QJsonObject viewer{{QStringLiteral("page"), QString::fromUtf8(m_treeViewer)}};
  write(page + dataElement(" id=\"tree-viewer\"", QJsonDocument(viewer).toJson(QJsonDocument::Compact)));
  return m_error;
}

void HtmlReporter::scriptStarted(const QString& path) {
  m_objectCalls = 0;
  EventWriter::scriptStarted(path);
}

void HtmlReporter::objectCall(const Step& call) {
  ++m_objectCalls;
  if (m_objectCalls <= ReportLimits::mostObjectCalls || !call.error.isEmpty()) {
    EventWriter::objectCall(call);
  } else if (m_objectCalls == ReportLimits::mostObjectCalls + 1) {
    EventWriter::log(QStringLiteral("The report has %1 uses of objects of this script, and takes only failed ones now.")
                         .arg(ReportLimits::mostObjectCalls));
  }
}

// Where several processes ran the scripts, each has counted for itself.
void HtmlReporter::tree(const QByteArray& json) {
  m_trees += json.isEmpty() ? 0 : 1;
  EventWriter::tree(m_trees <= ReportLimits::mostTrees ? json : QByteArray());
}

void HtmlReporter::picture(const Picture& picture) {
  const bool isStep = picture.purpose == Picture::Purpose::Step;
  int& count = isStep ? m_stepPictures : m_failurePictures;
  count += picture.bytes.isEmpty() ? 0 : 1;
  if (count <= (isStep ? ReportLimits::mostStepPictures : ReportLimits::mostFailurePictures)) {
    EventWriter::picture(picture);
  } else if (!isStep) {
    Picture none;
    none.missing = QStringLiteral("The report has %1 pictures of failures, and takes no more.")
                       .arg(ReportLimits::mostFailurePictures);
    EventWriter::picture(none);
  }
}

void HtmlReporter::append(const QJsonObject& event) {
  const QJsonDocument shown(visible(event).toObject());
  write(dataElement(" class=\"event\"", shown.toJson(QJsonDocument::Compact)));
}

void HtmlReporter::write(const QByteArray& bytes) {
  if (m_error.isEmpty() && m_file.write(bytes) != bytes.size()) {
    m_error = QStringLiteral("Cannot write the report '%1': %2.").arg(m_file.fileName(), m_file.errorString());
  }
}

}  // namespace Corvex::Scripting
