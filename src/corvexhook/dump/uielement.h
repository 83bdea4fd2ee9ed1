#pragma once

#include "corvexhook/export.h"
#include "corvexhook/geometry.h"

#include <QImage>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

namespace Corvex::UIAbstraction {

/// A property of an object as text.
struct UIProperty {
  QString name;
  QString value;
};

/// An object as it was when a dump read it, with what is below it.
class CORVEXHOOK_EXPORT UIElement {
public:
  /// `type` is the script class of the object.
  explicit UIElement(const QString& type = QString());
  ~UIElement();

  const QString& type() const { return m_type; }

  /// The object's name among its siblings.
  const QString& name() const { return m_name; }
  void setName(const QString& name) { m_name = name; }
  /// What people call an object of its kind; empty where nobody says it.
  const QString& simplifiedType() const { return m_simplifiedType; }
  void setSimplifiedType(const QString& type) { m_simplifiedType = type; }

  /// In pixels of the image of the page, or of the screen where pages give no images. Without a size for what is not
  /// shown.
  const GlobalBounds& bounds() const { return m_bounds; }
  void setBounds(const GlobalBounds& bounds) { m_bounds = bounds; }
  /// Null where none was taken. It may share the memory of the whole page's.
  const QImage& image() const { return m_image; }
  void setImage(const QImage& image) { m_image = image; }

  /// Those that tell which object it is. A property that is set again gets the new value.
  const QVector<UIProperty>& identifyingProperties() const { return m_identifying; }
  void setIdentifyingProperty(const QString& name, const QString& value);
  /// All others.
  const QVector<UIProperty>& concreteProperties() const { return m_concrete; }
  void setConcreteProperty(const QString& name, const QString& value);

  /// The new child lives as long as this element.
  UIElement* addChild(const QString& type);
  const std::vector<std::unique_ptr<UIElement>>& children() const { return m_children; }

  UIElement(const UIElement&) = delete;
  UIElement& operator=(const UIElement&) = delete;

private:
  QString m_type;
  QString m_name;
  QString m_simplifiedType;
  GlobalBounds m_bounds;
  QImage m_image;
  QVector<UIProperty> m_identifying;
  QVector<UIProperty> m_concrete;
  std::vector<std::unique_ptr<UIElement>> m_children;
};

}  // namespace Corvex::UIAbstraction
