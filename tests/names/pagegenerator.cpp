#include "names/pagegenerator.h"

namespace {

QString escaped(const QString& text) { return text.toHtmlEscaped(); }

// Few enough that elements come out alike, odd enough that each step from text to name and back has to quote.
const QStringList& words() {
  static const QStringList list = {
      QStringLiteral("OK"),
      QStringLiteral("it's"),
      QStringLiteral("a \"quoted\" word"),
      QStringLiteral("back\\slash\\"),
      QStringLiteral("R&D"),
      QStringLiteral("&amp;"),
      QStringLiteral("tab\there"),
      QStringLiteral(" two  spaces "),
      QStringLiteral("line\nbreak"),
      QStringLiteral("50% off"),
      QStringLiteral("%41%u0041"),
      QStringLiteral("{brace"),
      QStringLiteral("'} x='"),
      QStringLiteral("*?$.+|^"),
      QString::fromUtf8("non\u00a0breaking\u2011hyphen \u2013 dash"),
      QString::fromUtf8("שלום עולם"),
      QString::fromUtf8("مرحبا"),
      QString::fromUtf8("Grüße 日本語 😀"),
      QStringLiteral("https://example.org/?a=b&c=d#e"),
  };
  return list;
}

const QStringList& ids() {
  static const QStringList list = {
      QStringLiteral("i"),        QStringLiteral("jbg_12_field"), QStringLiteral("box_ctrl07_name"),
      QStringLiteral("a.b:c[d]"), QStringLiteral("it's \"id\""),  QStringLiteral("email"),
  };
  return list;
}

}  // namespace

QString PageGenerator::word() { return escaped(oneOf(words())); }

QString PageGenerator::attribute(const QString& name) {
  return once(2) ? QString() : QStringLiteral(" %1=\"%2\"").arg(name, word());
}

QString PageGenerator::items(int count, int depth) {
  QString html;
  for (int i = 0; i < count; ++i) {
    const QString made = item(depth);
    html += made;
    if (once(4)) {
      html += made;
    }
    if (once(5)) {
      html += QStringLiteral("<div style=\"%1\">%2</div>")
                  .arg(oneOf({QStringLiteral("display:none"), QStringLiteral("visibility:hidden")}), made);
    }
  }
  return html;
}

QString PageGenerator::item(int depth) {
  if (depth > 0 && m_features.frames && once(12)) {
    return frame(depth - 1);
  }
  if (depth > 0 && m_features.shadowTrees && once(8)) {
    return host(depth - 1);
  }
  if (depth > 0 && once(6)) {
    return once(2) ? form(depth - 1) : group(depth - 1);
  }
  switch (number(5)) {
    case 0:
      return control();
    case 1:
      return link();
    case 2:
      return image();
    case 3:
      return named();
    default:
      return text();
  }
}

QString PageGenerator::control() {
  const QString attributes = attribute(QStringLiteral("name")) + attribute(QStringLiteral("value")) +
                             (once(4) ? QStringLiteral(" id=\"%1\"").arg(escaped(oneOf(ids()))) : QString());
  const QString kind =
      oneOf({QStringLiteral("text"), QStringLiteral("checkbox"), QStringLiteral("radio"), QStringLiteral("button"),
             QStringLiteral("submit"), QStringLiteral("image"), QStringLiteral("select"), QStringLiteral("push")});
  if (kind == QLatin1String("select")) {
    return QStringLiteral("<select%1><option>%2<option>%3</select>").arg(attributes, word(), word());
  }
  return kind == QLatin1String("push") ? QStringLiteral("<button%1>%2</button>").arg(attributes, word())
                                       : QStringLiteral("<input type=%1%2>").arg(kind, attributes);
}

QString PageGenerator::image() {
  return QStringLiteral("<img src=\"/pics/%1.png?x=%2\"%3%4>")
      .arg(number(3))
      .arg(word(), attribute(QStringLiteral("alt")), attribute(QStringLiteral("name")));
}

QString PageGenerator::link() {
  const QString inside = oneOf({word(), QStringLiteral("<b>%1</b>").arg(word()), image(), control(),
                                QStringLiteral("<span>%1</span> %2").arg(word(), image()), QString()});
  return QStringLiteral("<a href=\"#%1\"%2>%3</a>")
      .arg(QString::number(number(9)), once(4) ? attribute(QStringLiteral("name")) : QString(), inside);
}

QString PageGenerator::text() {
  const QString tag = oneOf({QStringLiteral("div"), QStringLiteral("span"), QStringLiteral("label"),
                             QStringLiteral("p"), QStringLiteral("li"), QStringLiteral("h1"), QStringLiteral("h")});
  return QStringLiteral("<%1>%2</%1>").arg(tag, word());
}

QString PageGenerator::named() {
  const QString tag = oneOf({QStringLiteral("p"), QStringLiteral("div"), QStringLiteral("textarea"),
                             QStringLiteral("object"), QStringLiteral("x-thing")});
  return QStringLiteral("<%1%2%3>%4</%1>")
      .arg(tag, attribute(QStringLiteral("name")), attribute(QStringLiteral("title")), word());
}

QString PageGenerator::group(int depth) {
  const QString table = QStringLiteral("<table><tr><td class=\"cMenuTD\">%1</td><td>%2</td></tr></table>");
  const QString inside = items(4, depth);
  return once(3) ? table.arg(word(), inside)
         : once(2)
             ? QStringLiteral("<div dir=rtl>%1</div>").arg(inside)
             : QStringLiteral("<section>%1<!-- c --><svg><a><text>%2</text></a></svg></section>").arg(inside, word());
}

QString PageGenerator::form(int depth) {
  QString attributes;
  QString fields;
  if (m_features.oddForms) {
    attributes =
        oneOf({QStringLiteral(" name=f"), QStringLiteral(" id=f"), QStringLiteral(" id=\"f's\" name=\"\\f\"")});
    fields = oneOf({QString(), QStringLiteral("<input name=name>"), QStringLiteral("<input name=id><input name=title>"),
                    QStringLiteral("<input name=elements><input name=parentNode>")});
  } else {
    attributes = QStringLiteral(" id=\"form '%1' \\ &amp;\"").arg(m_random());
  }
  return QStringLiteral("<form%1>%2%3</form>").arg(attributes, fields, items(4, depth));
}

QString PageGenerator::host(int depth) {
  const QString tag = oneOf({QStringLiteral("div"), QStringLiteral("x-card")});
  return QStringLiteral("<%1%2><template shadowrootmode=open>%3</template>%4</%1>")
      .arg(tag, attribute(QStringLiteral("title")), items(4, depth), once(2) ? QString() : items(2, depth));
}

QString PageGenerator::frame(int depth) {
  return QStringLiteral("<iframe name=\"%1\" srcdoc=\"%2\"></iframe>")
      .arg(word(), escaped(QStringLiteral("<!DOCTYPE html>") + items(5, depth)));
}
