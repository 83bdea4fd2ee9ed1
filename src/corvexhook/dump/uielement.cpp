#include "corvexhook/dump/uielement.h"

#include <algorithm>

namespace Corvex::UIAbstraction {

namespace {

void setIn(QVector<UIProperty>* properties, const QString& name, const QString& value) {
  const auto old = std::find_if(properties->begin(), properties->end(),
                                [&name](const UIProperty& property) { return property.name == name; });
  if (old == properties->end()) {
    properties->append({name, value});
  } else {
    old->value = value;
  }
}

}  // namespace

UIElement::UIElement(const QString& type) : m_type(type) {}

UIElement::~UIElement() = default;

void UIElement::setIdentifyingProperty(const QString& name, const QString& value) {
  setIn(&m_identifying, name, value);
}

void UIElement::setConcreteProperty(const QString& name, const QString& value) { setIn(&m_concrete, name, value); }

UIElement* UIElement::addChild(const QString& type) {
  m_children.push_back(std::make_unique<UIElement>(type));
  return m_children.back().get();
}

}  // namespace Corvex::UIAbstraction
