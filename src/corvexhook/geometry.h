#pragma once

#include "corvexhook/object.h"

namespace Corvex {

/// Coordinate systems of points and rectangles, as template argument.
namespace CoordinateSystem {
enum Id { Local = 0, Screen = 1 };
}

/// Pixels of the given coordinate system.
template <int System>
struct Point {
  int x = 0;
  int y = 0;
};

template <int System>
struct Rect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

/// A rectangle on the screen, in pixels. All four fields -1 mean: not on the screen.
struct ScreenRectangle {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

inline bool operator==(const ScreenRectangle& a, const ScreenRectangle& b) {
  return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

namespace MouseButton {
/// The default button is the left one.
enum Value { Default = 0, Left = 1, Right = 2, Middle = 4 };
}  // namespace MouseButton

/// The script class "ScreenRectangle" with the read-only properties x, y, width, height.
CORVEXHOOK_EXPORT const Class* objectModelScreenRectangleClass();
CORVEXHOOK_EXPORT SharedPtr<Object> wrapScreenRectangle(const ScreenRectangle& rectangle);

}  // namespace Corvex
