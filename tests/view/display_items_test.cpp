#include "view/display_items.h"

#include "view_fixture.h"

namespace zeb::test {
namespace {

// From the source at (50, 430) east to (590, 430), north to a head at (590, 50), and back west,
// falling, to a second head at (50, 50). Middles at (320, 430), (590, 240) and (320, 50).
class DisplayItemsTest : public ViewTest {
 protected:
  DisplayItemsTest() {
    AddPipe(0, 54, 0, 0, 90);
    AddPipe(1, 54, 38, 1.25F, 0, 1);
    AddPipe(2, 0, 38, 0, 270, 2);
    project_.PipeZ[0] = 0.5F;
    const auto set = [](auto& row, float a, float b, float c) {
      row[1] = a;
      row[2] = b;
      row[3] = c;
    };
    set(project_.PipeLengthIn, 54, 38.1254F, 54);
    set(project_.PipeLength, 54, 38.1254F, 54.01447F);
    set(project_.PipeSlope, 0, 0, -1.32F);
    set(project_.PipeFlow, 150.04F, 150.04F, -75.0F);
    set(project_.PipeEqLength, 54.5F, 44, 0.4F);
    set(project_.PipeEndPressure, 2.25F, 2.0F, 2.1F);
    set(project_.PipeVelocity, 0.5F, 1.136F, 0.6F);
    set(project_.PipeDrop, 0.2004F, -0.0406F, 0.01F);
    project_.PipeStartPressure[1] = 2.5F;
    project_.PipeTypeRefs[1] = "MB";
    for (int pipe = 1; pipe <= 3; ++pipe) project_.PipeType[pipe] = 1;
    project_.ValveRefs[5] = "AV";
    project_.PipeElbows[2] = 2;
    project_.PipeTees[2] = 1;
    project_.PipeValve[2] = project_.PipeValve[3] = 5;
    project_.HeadCode[1] = 3;
    project_.HeadCode[2] = -1;
    project_.HeadArea[1] = 12.0F;
    project_.HeadArea[2] = 0.1F;
    project_.HeadDensity[1] = 5.0F;
    project_.HeadFlow[1] = 75.04F;
    project_.HeadFlow[2] = 75.0F;
  }

  [[nodiscard]] Calls Texts(int item, int model_state) {
    project_.DisplayItem = item;
    project_.ModelState = model_state;
    Draw();
    return surface_.Calls("text");
  }
};

TEST_F(DisplayItemsTest, WritesEachItemBesideItsPipesAndNodes) {
  const std::vector<Calls> expected{
      {},
      {"text 594.0,428.0 2", "text 54.0,428.0 1", "text 596.0,49.0 3", "text 56.0,49.0 4"},
      {"text 324.0,428.0 50", "text 594.0,238.0 50", "text 324.0,48.0 50"},
      {"text 324.0,428.0 54.000", "text 594.0,238.0 38.125", "text 324.0,48.0 54.000"},
      {"text 324.0,428.0 90.0", "text 594.0,238.0 0.0", "text 324.0,48.0 270.0"},
      {"text 324.0,428.0 0.0", "text 594.0,238.0 0.0", "text 324.0,48.0 -1.3"},
      {"text 324.0,428.0 MB", "text 594.0,238.0 MB", "text 324.0,48.0 MB"},
      {"text 594.0,238.0 2E1T AV", "text 324.0,48.0 AV"},
      {"text 324.0,428.0 54.500", "text 594.0,238.0 44.000", "text 324.0,48.0 0.400"},
      {"text 594.0,428.0 0.000", "text 54.0,428.0 0.500", "text 596.0,49.0 1.250",
       "text 56.0,49.0 0.000"},
      {"text 596.0,49.0 3", "text 56.0,49.0 -1"},
      {"text 596.0,49.0 12.000", "text 56.0,49.0 0.100"},
      {"text 324.0,428.0 150.0", "text 594.0,238.0 150.0", "text 592.0,48.0 75.0",
       "text 324.0,48.0 75.0", "text 52.0,48.0 75.0"},
      {"text 594.0,428.0 2.250", "text 54.0,428.0 2.500", "text 596.0,49.0 2.000",
       "text 56.0,49.0 2.100"},
      {"text 324.0,428.0 0.50", "text 594.0,238.0 1.14", "text 324.0,48.0 0.60"},
      {"text 324.0,428.0 0.200", "text 594.0,238.0 0.041"},
      {"text 596.0,49.0 6.25", "text 56.0,49.0 6.25"},
      {"text 324.0,428.0 54", "text 594.0,238.0 38.1254", "text 324.0,48.0 54.01447"}};
  ASSERT_EQ(DisplayMenuEntries().size(), expected.size());
  for (int item = 0; item < static_cast<int>(expected.size()); ++item) {
    EXPECT_EQ(Texts(item, model_state::kCalculated), expected.at(item)) << "item " << item;
  }
}

TEST_F(DisplayItemsTest, ResultsAreBlankBeforeACalculation) {
  for (const int item : {8, 12, 13, 14, 15}) {
    EXPECT_TRUE(Texts(item, model_state::kChecked).empty()) << item;
    EXPECT_EQ(surface_.Calls("line").size(), 3) << item;
  }
  // The required density then; a head without area shows the one before.
  EXPECT_EQ(Texts(16, model_state::kChecked),
            (Calls{"text 596.0,49.0 5.00", "text 56.0,49.0 5.00"}));
}

TEST_F(DisplayItemsTest, ANodeHasOneTextAndAVerticalPipeNoDirection) {
  project_.PipeEndNode[3] = 3;
  project_.ShowNodesOnce = 1;
  EXPECT_EQ(Texts(0, model_state::kChecked).size(), 3);
  EXPECT_EQ(project_.DisplayItem, 1);
  EXPECT_EQ(project_.ShowNodesOnce, 0);
  project_.PipeDirection[3] = -999;
  EXPECT_EQ(Texts(4, model_state::kChecked).size(), 2);
  EXPECT_EQ(surface_.Calls("line").size(), 3 + 2 * 2);
}

// A pipe by its run on the picture, and the tips of its arrow's wings from the middle.
struct ArrowCase {
  float dx;
  float dy;
  float flow;
  Point first;
  Point second;
};

TEST_F(DisplayItemsTest, ArrowsPointAlongTheFlow) {
  constexpr float k = 4.2426F;  // 6 sin 45
  project_.PipeCount = 2;
  project_.PipeX[1] = 27;
  project_.PipeHead[2] = 0;
  for (const ArrowCase& expected : std::vector<ArrowCase>{{100, 0, 1, {-k, k}, {-k, -k}},
                                                          {100, 0, -1, {k, k}, {k, -k}},
                                                          {-100, 0.1F, 1, {k, -k}, {k, k}},
                                                          {0, 100, 1, {-k, -k}, {k, -k}},
                                                          {0, 100, 0, {-k, k}, {k, k}},
                                                          {0, -100, 1, {k, k}, {-k, k}},
                                                          {50, 50, 1, {-6, 0}, {0, -6}},
                                                          {-50, 50, 1, {0, -6}, {6, 0}},
                                                          {-50, -50, 1, {6, 0}, {0, 6}}}) {
    project_.PipeX[2] = 27 + expected.dx / 10;
    project_.PipeY[2] = -expected.dy / 10;
    project_.PipeFlow[2] = expected.flow;
    (void)Texts(12, model_state::kCalculated);
    RecordingSurface arrow;
    const Point middle{320 + expected.dx / 2, 430 + expected.dy / 2};
    const Pen pen{PaletteColour(13)};
    arrow.Line({middle.x + expected.first.x, middle.y + expected.first.y}, middle, pen);
    arrow.Line(middle, {middle.x + expected.second.x, middle.y + expected.second.y}, pen);
    const Calls lines = surface_.Calls("line");
    EXPECT_EQ(Calls(lines.end() - 2, lines.end()), arrow.calls);
  }
}

}  // namespace
}  // namespace zeb::test
