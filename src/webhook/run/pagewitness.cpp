#include "webhook/run/pagewitness.h"

#include "corvexhook/inspector.h"
#include "corvexhook/primitives.h"
#include "scripting/reportlimits.h"
#include "webhook/browser/calllimit.h"
#include "webhook/inspect/dumpfile.h"
#include "webhook/pages/connection.h"
#include "webhook/run/browsercontrol.h"
#include "webhook/run/pictures.h"
#include "wrappers/web/object/wraphtmlobject.h"

#include <QBuffer>
#include <QVariant>

namespace Corvex::Webhook {

namespace {

using Scripting::Moment;
using Scripting::Picture;
using Scripting::ReportLimits;
using Scripting::ScriptListener;

const int longestLookMs = 5000;
const int longestStepLookMs = 2000;

const int mostSilences = 2;

const int stepWidth = 480;
const int stepHeight = 960;
const int stepQuality = 60;

Picture missing(const QString& why) {
  Picture picture;
  picture.missing = why;
  return picture;
}

/// The object that the argument of a step is or names; null where there is none now.
SharedPtr<Object> objectFor(const SharedPtr<Object>& about) {
  const QVariant value = about ? primitiveValue(about) : QVariant();
  const SharedPtr<Object> object =
      value.type() == QVariant::String ? Inspector::self()->lookup(value.toString()) : about;
  Inspector::self()->takeScriptError();
  return object;
}

QRect placeOf(const SharedPtr<Object>& object, const Connection& page) {
  const WebWrapper::HTML_Object* const element = object ? WebWrapper::retrieveObject(object) : nullptr;
  return element && element->hasValidReference() && element->component == &page ? placeInPicture(*element).value
                                                                                : QRect();
}

Picture pictureFor(Connection& page, const SharedPtr<Object>& about) {
  const QRect place = placeOf(objectFor(about), page);
  const FunctionCallResult<QImage> image = page.grabPageScreenshot();
  if (image.failed()) {
    return missing(image.error);
  }
  const EncodedPicture encoded = encodePicture(image.value);
  Picture picture;
  picture.bytes = encoded.bytes;
  picture.mimeType = encoded.mimeType;
  picture.size = image.value.size();
  picture.marked = place.intersected(image.value.rect());
  return picture;
}

}  // namespace

void PageWitness::look(Moment moment, const SharedPtr<Object>& about, ScriptListener* listener) {
  const bool isStepShown = std::exchange(m_isStepShown, false);
  if (moment == Moment::StepDone) {
    if (m_showsSteps && m_stepPictures < ReportLimits::mostStepPictures) {
      showStep(listener);
    }
  } else if (moment == Moment::CodeFailed && isStepShown) {
    if (m_control.whyNotAskPage().isEmpty()) {
      const CallLimit limit(m_control.session(), longestLookMs);
      showTree(listener);
    }
  } else {
    showFailure(about, moment != Moment::StepFailed, listener);
    m_isStepShown = moment == Moment::StepFailed;
  }
}

bool PageWitness::isSilent() const {
  return m_silentBrowser && m_control.session() == m_silentBrowser && m_silences >= mostSilences;
}

void PageWitness::noteAnswer(bool isAnswered) {
  const bool isSame = m_silentBrowser && m_control.session() == m_silentBrowser;
  m_silences = isAnswered ? 0 : isSame ? m_silences + 1 : 1;
  m_silentBrowser = isAnswered ? nullptr : m_control.session();
}

void PageWitness::showStep(ScriptListener* listener) {
  if (isSilent() || !m_control.whyNotAskPage().isEmpty()) {
    return;
  }
  const CallLimit limit(m_control.session(), longestStepLookMs);
  const FunctionCallResult<QImage> image = m_control.windows()->current()->page()->screenshot(false);
  noteAnswer(!image.failed());
  if (image.failed()) {
    return;
  }
  const QImage small = image.value.width() > stepWidth || image.value.height() > stepHeight
                           ? image.value.scaled(stepWidth, stepHeight, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                           : image.value;
  Picture picture;
  QBuffer buffer(&picture.bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !small.save(&buffer, "jpeg", stepQuality) || picture.bytes == m_lastStep) {
    return;
  }
  m_lastStep = picture.bytes;
  picture.purpose = Picture::Purpose::Step;
  picture.mimeType = QStringLiteral("image/jpeg");
  picture.size = small.size();
  ++m_stepPictures;
  listener->picture(picture);
}

void PageWitness::showFailure(const SharedPtr<Object>& about, bool withTree, ScriptListener* listener) {
  // A script may well fail without any browser.
  if (!m_control.windows() && m_control.whyLost().isEmpty()) {
    return;
  }
  if (m_failurePictures >= ReportLimits::mostFailurePictures) {
    listener->picture(
        missing(QStringLiteral("The report has %1 pictures of failures, and takes no more.").arg(m_failurePictures)));
    return;
  }
  const QString why = isSilent() ? QStringLiteral("The browser gave none before.") : m_control.whyNotAskPage();
  if (!why.isEmpty()) {
    listener->picture(missing(why));
    return;
  }
  ++m_failurePictures;
  const CallLimit limit(m_control.session(), longestLookMs);
  const Picture picture = pictureFor(*m_control.windows()->current(), about);
  noteAnswer(!picture.bytes.isEmpty());
  listener->picture(picture);
  if (withTree && !picture.bytes.isEmpty()) {
    showTree(listener);
  }
}

void PageWitness::showTree(ScriptListener* listener) {
  if (m_trees >= ReportLimits::mostTrees) {
    listener->tree(QByteArray());
    return;
  }
  // The window may have been closed while its picture was taken.
  if (!m_control.whyNotAskPage().isEmpty()) {
    return;
  }
  const PageDump dump = readObjects(*m_control.windows(), *m_control.windows()->current(), usualProperties());
  Inspector::self()->takeScriptError();
  if (!dump.objects.isEmpty()) {
    ++m_trees;
    listener->tree(dumpForViewer(dump));
  }
}

}  // namespace Corvex::Webhook
