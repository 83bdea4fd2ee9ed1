// test.compareScreenshot: pictures come from the host.

#include <QFile>

#include "scripting/scripttest.h"

using namespace Corvex::Scripting;

namespace {

class ScriptPictures : public FakeModel::ScriptTest {
protected:
  ScriptPictures() : picture(10, 4, QImage::Format_RGB32) {
    FakeModel::world().add(s("{id='f'}"), s("Field"));
    picture.fill(qRgb(100, 100, 100));
    host.pictureOf = [this](const auto&) { return Corvex::FunctionCallResult<QImage>::success(picture); };
  }

  /// The line of the check.
  QString check(const QByteArray& arguments = "\"{id='f'}\", 'a.png'") {
    listener.lines.clear();
    const QString error = errorOf("test.compareScreenshot(" + arguments + ")");
    return error.isEmpty() ? listener.lines.last() : error;
  }
  bool exists(const char* name) const { return QFile::exists(path(name)); }

  QImage picture;
};

}  // namespace

TEST_F(ScriptPictures, TheFirstOneIsToBeTakenAsExpectedByHand) {
  EXPECT_EQ(check(), s("failed there is no picture 'a.png' yet. Look at 'a.actual.png': if it shows what is expected, "
                       "rename it to 'a.png' line 1"));
  EXPECT_FALSE(exists("a.png"));
  EXPECT_FALSE(exists("a.difference.png"));
  ASSERT_TRUE(QFile::rename(path("a.actual.png"), path("a.png")));
  EXPECT_EQ(check(), s("passed the picture looks like 'a.png' line 1"));
}

TEST_F(ScriptPictures, PixelsMayDifferALittleOrInAShare) {
  ASSERT_TRUE(picture.save(path("a.png")));
  picture.fill(qRgb(104, 96, 100));
  EXPECT_TRUE(check().startsWith(s("passed")));
  picture.setPixel(9, 3, qRgb(100, 105, 100));
  picture.setPixel(0, 0, qRgb(0, 0, 0));
  EXPECT_EQ(check(), s("failed the picture differs from 'a.png' in 2 of 40 pixels; see 'a.actual.png' and "
                       "'a.difference.png' line 1"));
  EXPECT_EQ(QImage(path("a.actual.png")).pixel(0, 0), qRgb(0, 0, 0));
  const QImage difference(path("a.difference.png"));
  EXPECT_EQ(difference.pixel(9, 3), qRgb(255, 0, 0));
  EXPECT_NE(difference.pixel(8, 3), qRgb(255, 0, 0));
  EXPECT_TRUE(check("\"{id='f'}\", 'a.png', 0.04").startsWith(s("failed")));
  EXPECT_TRUE(check("findObject(\"{id='f'}\"), 'a.png', 0.05").startsWith(s("passed")));
  EXPECT_FALSE(exists("a.actual.png") || exists("a.difference.png"));
}

TEST_F(ScriptPictures, AnotherSizeIsADifference) {
  ASSERT_TRUE(picture.save(path("a.png")));
  picture = picture.copy(0, 0, 9, 5);
  EXPECT_EQ(check("\"{id='f'}\", 'a.png', 1"), s("failed the picture has 9 x 5 pixels, but 'a.png' has 10 x 4; see "
                                                 "'a.actual.png' and 'a.difference.png' line 1"));
  EXPECT_EQ(QImage(path("a.difference.png")).size(), QSize(10, 5));
}

TEST_F(ScriptPictures, WhatCannotBeComparedIsASentence) {
  write("no picture", "bad.png");
  const struct {
    const char* arguments;
    const char* error;
  } rows[] = {
      {"\"{id='f'}\", 'a.jpg'", "1: The name of an expected picture ends in .png, unlike 'a.jpg'."},
      {"\"{id='f'}\", 'none/a.png'", "1: There is no folder '"},
      {"\"{id='f'}\", 'bad.png'", "1: The expected picture 'bad.png' is no PNG file."},
      {"\"{id='f'}\", 'a.png', 2", "1: test.compareScreenshot: the share of pixels that may differ is a number from 0"},
      {"5, 'a.png'", "1: test.compareScreenshot needs an object or its name, but got "},
      {"{}, 'a.png'", "1: A plain script object cannot be passed to this function"},
  };
  for (const auto& row : rows) {
    EXPECT_TRUE(check(row.arguments).startsWith(s(row.error))) << qPrintable(check(row.arguments));
  }
  host.pictureOf = [](const auto&) { return Corvex::FunctionCallResult<QImage>::failure(s("It is hidden.")); };
  EXPECT_EQ(check(), s("1: It is hidden."));
}
