#include "wrappers/web/style/cssproperties.h"

#include "corvexhook/inspector.h"
#include "wrappers/web/object/wraphtmlobject.h"
#include "wrappers/web/page/calljavascriptfunction.h"
#include "wrappers/web/page/jsonanswer.h"
#include "wrappers/web/style/csscolor.h"

#include <algorithm>

namespace Corvex::WebWrapper {

namespace {

constexpr const char* names[] = {
    "alignContent",
    "alignItems",
    "alignSelf",
    "all",
    "animation",
    "animationDelay",
    "animationDirection",
    "animationDuration",
    "animationFillMode",
    "animationIterationCount",
    "animationName",
    "animationPlayState",
    "animationTimingFunction",
    "backfaceVisibility",
    "background",
    "backgroundAttachment",
    "backgroundBlendMode",
    "backgroundClip",
    "backgroundColor",
    "backgroundImage",
    "backgroundOrigin",
    "backgroundPosition",
    "backgroundRepeat",
    "backgroundSize",
    "border",
    "borderBottom",
    "borderBottomColor",
    "borderBottomLeftRadius",
    "borderBottomRightRadius",
    "borderBottomStyle",
    "borderBottomWidth",
    "borderCollapse",
    "borderColor",
    "borderImage",
    "borderImageOutset",
    "borderImageRepeat",
    "borderImageSlice",
    "borderImageSource",
    "borderImageWidth",
    "borderLeft",
    "borderLeftColor",
    "borderLeftStyle",
    "borderLeftWidth",
    "borderRadius",
    "borderRight",
    "borderRightColor",
    "borderRightStyle",
    "borderRightWidth",
    "borderSpacing",
    "borderStyle",
    "borderTop",
    "borderTopColor",
    "borderTopLeftRadius",
    "borderTopRightRadius",
    "borderTopStyle",
    "borderTopWidth",
    "borderWidth",
    "bottom",
    "boxDecorationBreak",
    "boxShadow",
    "boxSizing",
    "breakAfter",
    "breakBefore",
    "breakInside",
    "captionSide",
    "caretColor",
    "clear",
    "clip",
    "color",
    "columnCount",
    "columnFill",
    "columnGap",
    "columnRule",
    "columnRuleColor",
    "columnRuleStyle",
    "columnRuleWidth",
    "columnSpan",
    "columnWidth",
    "columns",
    "content",
    "counterIncrement",
    "counterReset",
    "cursor",
    "direction",
    "display",
    "emptyCells",
    "filter",
    "flex",
    "flexBasis",
    "flexDirection",
    "flexFlow",
    "flexGrow",
    "flexShrink",
    "flexWrap",
    "float",
    "font",
    "fontFamily",
    "fontFeatureSettings",
    "fontKerning",
    "fontLanguageOverride",
    "fontSize",
    "fontSizeAdjust",
    "fontStretch",
    "fontStyle",
    "fontSynthesis",
    "fontVariant",
    "fontVariantAlternates",
    "fontVariantCaps",
    "fontVariantEastAsian",
    "fontVariantLigatures",
    "fontVariantNumeric",
    "fontVariantPosition",
    "fontWeight",
    "gap",
    "grid",
    "gridArea",
    "gridAutoColumns",
    "gridAutoFlow",
    "gridAutoRows",
    "gridColumn",
    "gridColumnEnd",
    "gridColumnGap",
    "gridColumnStart",
    "gridGap",
    "gridRow",
    "gridRowEnd",
    "gridRowGap",
    "gridRowStart",
    "gridTemplate",
    "gridTemplateAreas",
    "gridTemplateColumns",
    "gridTemplateRows",
    "hangingPunctuation",
    "height",
    "hyphens",
    "imageRendering",
    "isolation",
    "justifyContent",
    "left",
    "letterSpacing",
    "lineBreak",
    "lineHeight",
    "listStyle",
    "listStyleImage",
    "listStylePosition",
    "listStyleType",
    "margin",
    "marginBottom",
    "marginLeft",
    "marginRight",
    "marginTop",
    "mask",
    "maskType",
    "maxHeight",
    "maxWidth",
    "minHeight",
    "minWidth",
    "mixBlendMode",
    "objectFit",
    "objectPosition",
    "opacity",
    "order",
    "orphans",
    "outline",
    "outlineColor",
    "outlineOffset",
    "outlineStyle",
    "outlineWidth",
    "overflow",
    "overflowWrap",
    "overflowX",
    "overflowY",
    "padding",
    "paddingBottom",
    "paddingLeft",
    "paddingRight",
    "paddingTop",
    "pageBreakAfter",
    "pageBreakBefore",
    "pageBreakInside",
    "perspective",
    "perspectiveOrigin",
    "pointerEvents",
    "position",
    "quotes",
    "resize",
    "right",
    "rowGap",
    "scrollBehavior",
    "tabSize",
    "tableLayout",
    "textAlign",
    "textAlignLast",
    "textCombineUpright",
    "textDecoration",
    "textDecorationColor",
    "textDecorationLine",
    "textDecorationStyle",
    "textIndent",
    "textJustify",
    "textOrientation",
    "textOverflow",
    "textShadow",
    "textTransform",
    "textUnderlinePosition",
    "top",
    "transform",
    "transformOrigin",
    "transformStyle",
    "transition",
    "transitionDelay",
    "transitionDuration",
    "transitionProperty",
    "transitionTimingFunction",
    "unicodeBidi",
    "userSelect",
    "verticalAlign",
    "visibility",
    "whiteSpace",
    "widows",
    "width",
    "wordBreak",
    "wordSpacing",
    "wordWrap",
    "writingMode",
    "zIndex",
};
constexpr std::size_t nameCount = std::size(names);

quint8 colorComponent(const Json::Value& color, const char* name) {
  return static_cast<quint8>(std::clamp(jsonInt(color.get(name, Json::Value())).value, 0, 255));
}

QString unknownError(const QString& property) { return QStringLiteral("Unknown CSS property '%1'.").arg(property); }

ScriptResult readCssProperty(void* native, const char* name) {
  const QString property = QLatin1String(name);
  const QMap<QString, Json::Value>& values = static_cast<const CSSProperties*>(native)->values;
  const auto found = values.constFind(property);
  if (found == values.constEnd()) {
    return ScriptResult::failure(unknownError(property));
  }
  if (found->isObject() && found->isMember("red")) {
    const Json::Value alpha = found->get("alpha", Json::Value());
    return ScriptResult::success(
        wrapCssColor(CssColor(colorComponent(*found, "red"), colorComponent(*found, "green"),
                              colorComponent(*found, "blue"), alpha.isNumeric() ? alpha.asDouble() : 0)));
  }
  return ScriptResult::success(Inspector::self()->wrapString(jsonText(*found)));
}

/// The type of a property that is a text, or a colour where the page knows it as one.
const Class* textOrColor() { return scriptString(); }

constexpr std::array<PropertyRow, nameCount> makeRows() {
  std::array<PropertyRow, nameCount> rows = {};
  for (std::size_t i = 0; i < nameCount; ++i) {
    rows[i] = {names[i], textOrColor, readCssProperty, nullptr};
  }
  return rows;
}

constexpr std::array<PropertyRow, nameCount> rows = makeRows();

}  // namespace

const ClassMembers CSSProperties_Class =
    ClassMembers{rows.data(), static_cast<int>(nameCount)}.withUnknownError(unknownError);

const QStringList& cssPropertyNames() {
  static const QStringList all = [] {
    QStringList list;
    for (const char* name : names) {
      list << QLatin1String(name);
    }
    return list;
  }();
  return all;
}

// Stands here, since only this room knows of styles.
FunctionCallResult<CSSProperties*> HTML_Object::cssProperties() const {
  using Result = FunctionCallResult<CSSProperties*>;
  const QString list = QStringLiteral("['%1']").arg(cssPropertyNames().join(QLatin1String("', '")));
  const FunctionCallResult<Json::Value> answer =
      callJavaScriptFunction(component, QStringLiteral("__corvex__allCSSProperties( %1, %2 )").arg(reference, list), 0);
  if (answer.failed()) {
    return Result::failure(QStringLiteral("Error obtaining CSS properties: %1").arg(answer.error));
  }
  if (!answer.value.isObject()) {
    return Result::failure(QStringLiteral("Unexpected type of json object for CSS properties, expected object got: %1")
                               .arg(answer.value.type()));
  }
  auto properties = std::make_unique<CSSProperties>();
  for (const std::string& name : answer.value.getMemberNames()) {
    properties->values.insert(QString::fromStdString(name), answer.value[name]);
  }
  return Result::success(properties.release());
}

}  // namespace Corvex::WebWrapper
