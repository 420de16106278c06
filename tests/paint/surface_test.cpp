#include <gtest/gtest.h>

#include "paint/code_page.h"
#include "paint/image_surface.h"

namespace zeb {
namespace {

constexpr Colour kBlack{0x000000};
constexpr Colour kWhite{0xFFFFFF};
constexpr Colour kRed{0x0000FF};

TEST(CodePage, GivesEveryByteBack) {
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    EXPECT_EQ(FromQt(ToQt(byte)), byte) << code;
  }
}

TEST(CodePage, KnowsWhatItLacks) {
  EXPECT_EQ(FromQt(u"50 \u20AC, \u00C5r\u00F8"), "50 \x80, \xC5r\xF8");
  EXPECT_TRUE(IsInCodePage(u"m\u00B2 \u2013 \u0178"));
  EXPECT_FALSE(IsInCodePage(u"\u03A9"));
  EXPECT_FALSE(IsInCodePage(u"\U0001F525"));
  EXPECT_EQ(FromQt(u"\u03A9"), "?");
}

// The picture's size in the window and the density of its dots.
struct Size {
  float width;
  float height;
  qreal ratio;
};

class SurfaceTest : public testing::TestWithParam<Size> {
 protected:
  void SetUp() override {
    surface_.Resize({.width = GetParam().width, .height = GetParam().height}, GetParam().ratio);
    surface_.Clear(kWhite);
  }

  // The colour at a logical point.
  [[nodiscard]] QRgb At(float x, float y) const {
    const QImage& image = surface_.Image();
    return image.pixel(static_cast<int>(x * static_cast<float>(image.width()) / 640.0F),
                       static_cast<int>(y * static_cast<float>(image.height()) / 480.0F)) &
           RGB_MASK;
  }

  // The bounds, in dots, of all that is not white.
  [[nodiscard]] QRect Ink() const {
    QRect ink;
    const QImage& image = surface_.Image();
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if ((image.pixel(x, y) & RGB_MASK) != RGB_MASK) ink |= QRect(x, y, 1, 1);
    return ink;
  }

  ImageSurface surface_;
};

TEST_P(SurfaceTest, StretchesLogicalPlacesOverThePicture) {
  surface_.Line({0, 240}, {640, 240}, {kRed, 2});
  EXPECT_EQ(At(1, 240), 0xFF0000U);
  EXPECT_EQ(At(638, 240), 0xFF0000U);
  EXPECT_EQ(At(320, 250), 0xFFFFFFU);

  surface_.Box({90, 110}, {50, 70}, {kBlack, 1}, PaletteColour(10));
  EXPECT_EQ(At(70, 90), 0x00FF00U) << "corners in any order";
  EXPECT_EQ(At(40, 90), 0xFFFFFFU);
}

TEST_P(SurfaceTest, KeepsCirclesRoundOnAStretchedPicture) {
  surface_.Circle({320, 240}, 40, {kBlack, 1}, kBlack);
  const QRect ink = Ink();
  EXPECT_NEAR(ink.width(), ink.height(), 2);
  EXPECT_NEAR(ink.width(), 80.0 * surface_.Image().width() / 640.0, 4);
}

TEST_P(SurfaceTest, TakesAnInvertedBoxAwayByDrawingItAgain) {
  surface_.Line({0, 0}, {640, 480}, {kRed, 2});
  const QImage before = surface_.Image().copy();
  surface_.InvertBox({500, 400}, {100.5F, 33.3F}, {PaletteColour(4), 1});
  EXPECT_NE(surface_.Image(), before);
  surface_.InvertBox({500, 400}, {100.5F, 33.3F}, {PaletteColour(4), 1});
  EXPECT_EQ(surface_.Image(), before);
}

TEST_P(SurfaceTest, PutsTheTopLeftCornerOfATextAtThePoint) {
  surface_.SetTextStyle({.font = "Liberation Sans", .size = 20.0F, .colour = kRed});
  surface_.Text({320, 240}, "H1");
  const QRect ink = Ink();
  const QImage& image = surface_.Image();
  const double dot = GetParam().ratio;
  EXPECT_GE(ink.left(), image.width() / 2);
  EXPECT_LT(ink.left(), image.width() / 2 + 5 * dot);
  EXPECT_GE(ink.top(), image.height() / 2);
  EXPECT_LT(ink.top(), image.height() / 2 + 15 * dot);
  EXPECT_GT(ink.height(), 12 * dot);
}

TEST_P(SurfaceTest, CutsWhatFallsOutsideAndGoesOn) {
  surface_.Line({-1e6F, 100}, {1e6F, 100}, {kRed, 1});
  surface_.Circle({-5000, 9000}, 4, {kRed, 1}, {});
  surface_.Line({0, 400}, {640, 400}, {kBlack, 2});
  EXPECT_EQ(At(320, 400), 0x000000U);
}

INSTANTIATE_TEST_SUITE_P(Pictures, SurfaceTest,
                         testing::Values(Size{640, 480, 1.0}, Size{1280, 500, 1.0},
                                         Size{640, 480, 2.0}, Size{801, 333, 1.25}));

}  // namespace
}  // namespace zeb
