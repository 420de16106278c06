#include "view/display_items.h"

#include "model/model_state.h"
#include "view/draw_view.h"
#include "view_fixture.h"

namespace zeb::test {
namespace {

// From the source at (50, 430) east to (590, 430), then north to the head at (590, 50), then back
// west, falling, to a second head at (50, 50).
class DisplayItemsTest : public ViewTest {
 protected:
  DisplayItemsTest() {
    AddPipe({.start_node = 10, .end_node = 20, .x = 54, .direction = 90, .size = 80});
    AddPipe({.upstream = 1, .start_node = 20, .end_node = 30, .x = 54, .y = 38, .head = 1});
    AddPipe(
        {.upstream = 2, .start_node = 30, .end_node = 40, .y = 38, .direction = 270, .head = 2});
    SetInput();
    SetResults();
  }

  void SetInput() {
    project_.PipeZ[0] = 0.5F;
    project_.PipeZ[2] = 1.25F;
    project_.PipeLengthIn[1] = 54;
    project_.PipeLengthIn[2] = 38.1254F;
    project_.PipeLengthIn[3] = 54;
    project_.PipeLength[1] = 54;
    project_.PipeLength[2] = 38.1254F;
    project_.PipeLength[3] = 54.01447F;
    project_.PipeSlope[3] = -1.32F;
    project_.PipeTypeRefs[1] = "MB";
    project_.PipeTypeRefs[2] = "CU";
    for (int pipe = 1; pipe <= 3; ++pipe) project_.PipeType[pipe] = pipe == 3 ? 2 : 1;
    project_.PipeElbows[2] = 2;
    project_.PipeTees[2] = 1;
    project_.ValveRefs[5] = "AV";
    project_.PipeValve[2] = 5;
    project_.PipeValve[3] = 5;
    project_.HeadCode[1] = 3;
    project_.HeadCode[2] = -1;
    project_.HeadArea[1] = 12.0F;
    project_.HeadArea[2] = 0.1F;
    project_.HeadDensity[1] = 5.0F;
  }

  void SetResults() {
    project_.PipeFlow[1] = 150.04F;
    project_.PipeFlow[2] = 150.04F;
    project_.PipeFlow[3] = -75.0F;
    project_.HeadFlow[1] = 75.04F;
    project_.HeadFlow[2] = 75.0F;
    project_.PipeEqLength[1] = 54.5F;
    project_.PipeEqLength[2] = 44.0F;
    project_.PipeEqLength[3] = 0.4F;
    project_.PipeStartPressure[1] = 2.5F;
    project_.PipeEndPressure[1] = 2.25F;
    project_.PipeEndPressure[2] = 2.0F;
    project_.PipeEndPressure[3] = 2.1F;
    project_.PipeVelocity[1] = 0.5F;
    project_.PipeVelocity[2] = 1.136F;
    project_.PipeVelocity[3] = 0.6F;
    project_.PipeDrop[1] = 0.2004F;
    project_.PipeDrop[2] = -0.0406F;
    project_.PipeDrop[3] = 0.01F;
  }

  [[nodiscard]] Calls Texts(int item, int model_state) {
    project_.DisplayItem = item;
    project_.ModelState = model_state;
    Draw();
    return surface_.Calls("text");
  }
};

TEST_F(DisplayItemsTest, WritesEachItemBesideItsPipesAndNodes) {
  // Middles at (320, 430), (590, 240) and (320, 50); texts stand 4 right and 2 above.
  const std::vector<Calls> expected{
      {},
      {"text 594.0,428.0 20", "text 54.0,428.0 10", "text 596.0,49.0 30", "text 56.0,49.0 40"},
      {"text 324.0,428.0 80", "text 594.0,238.0 50", "text 324.0,48.0 50"},
      {"text 324.0,428.0 54.000", "text 594.0,238.0 38.125", "text 324.0,48.0 54.000"},
      {"text 324.0,428.0 90.0", "text 594.0,238.0 0.0", "text 324.0,48.0 270.0"},
      {"text 324.0,428.0 0.0", "text 594.0,238.0 0.0", "text 324.0,48.0 -1.3"},
      {"text 324.0,428.0 MB", "text 594.0,238.0 MB", "text 324.0,48.0 CU"},
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
      {"text 324.0,428.0 54", "text 594.0,238.0 38.1254", "text 324.0,48.0 54.01447"},
  };
  ASSERT_EQ(DisplayMenuEntries().size(), expected.size());
  for (int item = 0; item < static_cast<int>(expected.size()); ++item) {
    EXPECT_EQ(Texts(item, model_state::kCalculated), expected.at(item)) << "item " << item;
  }
}

TEST_F(DisplayItemsTest, ResultsAreBlankBeforeACalculation) {
  for (const int item : {8, 12, 13, 14, 15}) {
    EXPECT_TRUE(Texts(item, model_state::kChecked).empty()) << item;
    EXPECT_EQ(surface_.Count("line 324.2,425.8 320.0,430.0 c13 w1"), 0);
  }
  // The required density then, and again the density before for a head without area.
  EXPECT_EQ(Texts(16, model_state::kChecked),
            (Calls{"text 596.0,49.0 5.00", "text 56.0,49.0 5.00"}));
}

TEST_F(DisplayItemsTest, ANodeHasOneText) {
  project_.PipeEndNode[3] = 30;
  EXPECT_EQ(Texts(1, model_state::kChecked).size(), 3);
}

TEST_F(DisplayItemsTest, AVerticalPipeHasNoDirection) {
  project_.PipeDirection[3] = -999;
  EXPECT_EQ(Texts(4, model_state::kChecked).size(), 2);
  EXPECT_EQ(surface_.Calls("line").size(), 3 + 2 * 2);
}

TEST_F(DisplayItemsTest, NodesOnceTurnsTheNodeNumbersOn) {
  project_.ShowNodesOnce = 1;
  EXPECT_EQ(Texts(0, model_state::kChecked).size(), 4);
  EXPECT_EQ(project_.DisplayItem, 1);
  EXPECT_EQ(project_.ShowNodesOnce, 0);
  PickDisplayItem(session_, 6);
  EXPECT_EQ(surface_.Calls("text").size(), 3);
}

// A pipe across the picture from its start at the given offset, and the two wings of its arrow
// as offsets from the middle, 6 sin 45 = 4.24 each way.
struct ArrowCase {
  const char* pipe;
  float dx;
  float dy;
  float flow;
  Point first;
  Point second;
};

TEST_F(DisplayItemsTest, ArrowsPointAlongTheFlow) {
  constexpr float k = 4.2426F;
  for (const ArrowCase& expected : {ArrowCase{"right", 100, 0, 1, {-k, k}, {-k, -k}},
                                    {"right, back", 100, 0, -1, {k, k}, {k, -k}},
                                    {"left", -100, 0.1F, 1, {k, -k}, {k, k}},
                                    {"down", 0, 100, 1, {-k, -k}, {k, -k}},
                                    {"down, back", 0, 100, 0, {-k, k}, {k, k}},
                                    {"up", 0, -100, 1, {k, k}, {-k, k}},
                                    {"down right", 50, 50, 1, {-6, 0}, {0, -6}},
                                    {"down left", -50, 50, 1, {0, -6}, {6, 0}},
                                    {"up left", -50, -50, 1, {6, 0}, {0, 6}}}) {
    // A metre is 10 units; the pipe starts at (320, 430).
    project_.PipeCount = 2;
    project_.PipeX[1] = 27;
    project_.PipeX[2] = 27 + expected.dx / 10;
    project_.PipeY[2] = -expected.dy / 10;
    project_.PipeFlow[2] = expected.flow;
    project_.PipeHead[2] = 0;
    (void)Texts(12, model_state::kCalculated);
    const Calls lines = surface_.Calls("line");
    ASSERT_EQ(lines.size(), 6) << expected.pipe;
    RecordingSurface wings;
    const Point middle{320 + expected.dx / 2, 430 + expected.dy / 2};
    const Pen pen{PaletteColour(13)};
    wings.Line({middle.x + expected.first.x, middle.y + expected.first.y}, middle, pen);
    wings.Line(middle, {middle.x + expected.second.x, middle.y + expected.second.y}, pen);
    EXPECT_EQ((Calls{lines.at(4), lines.at(5)}), wings.calls) << expected.pipe;
  }
}

}  // namespace
}  // namespace zeb::test
