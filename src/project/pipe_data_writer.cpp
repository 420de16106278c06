#include "project/pipe_data_writer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

#include "services/dates.h"
#include "services/file_writing.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kSizesLines = 3;
constexpr std::size_t kRefWidth = 3;
constexpr int kWidestTwoDigits = 99;  // mm: columns of wider pipe take one more place

// A fixed field, or the whole number where the field is too narrow for it.
std::string NumberField(float value, int width, int decimals) {
  std::string field = FixedNumber(value, width, decimals);
  const bool complete = std::abs(Val(field) - value) < 1.0;
  return complete ? field : FormatDecimals(value, decimals);
}

// A text field; in quotes where a reader would not get it back otherwise.
std::string TextField(const std::string& text) {
  const bool plain =
      !text.empty() && text == Trim(text) && text.find_first_of(",\r\n\t") == std::string::npos;
  return plain ? text : '"' + text + '"';
}

class PipeDataText {
 public:
  explicit PipeDataText(const Project& project) : project_(project) {}

  std::string Build(const std::string& first_line) {
    Add(first_line);
    Add(NumberField(Whole(project_.PipeTypeCount), 2, 0) + "," +
        NumberField(Whole(project_.PipeSizeCount), 2, 0) + "," +
        NumberField(Whole(project_.ValveCount), 2, 0));
    for (int type = 1; type <= project_.PipeTypeCount; ++type) Add(TypeLine(type));
    for (int line = 0; line < kSizesLines; ++line) Add(SizesLine(line));
    for (int type = 1; type <= project_.PipeTypeCount; ++type) {
      Add(DecimalsLine([&](int size) { return project_.PipeBores[size][type]; }));
    }
    for (int valve = 1; valve <= project_.ValveCount; ++valve) Add(ValveLine(valve));
    AddLengths(project_.EqLengthsLpc);
    AddLengths(project_.EqLengthsNfpa);
    return text_;
  }

 private:
  static float Whole(int number) { return static_cast<float>(number); }

  void Add(const std::string& line) { text_ += line + std::string(kLineBreak); }

  template <class Lengths>
  void AddLengths(const Lengths& lengths) {
    for (int valve = 1; valve <= project_.ValveCount; ++valve) {
      Add(DecimalsLine([&](int size) { return lengths[valve][size]; }));
    }
  }

  [[nodiscard]] std::string TypeLine(int type) const {
    const bool replaced = project_.TypeFileC[type] != 0.0F;
    const float c = replaced ? project_.TypeFileC[type] : project_.TypeC[type];
    const float factor =
        replaced ? project_.TypeFileFactor[type] : project_.TypeFittingFactor[type];
    std::string ref = TextField(project_.PipeTypeRefs[type]);
    if (ref.size() < kRefWidth) ref.resize(kRefWidth, ' ');
    return NumberField(Whole(type), 2, 0) + "," + NumberField(c, 3, 0) + "," +
           NumberField(factor, 5, 3) + "," + NumberField(project_.TypeRoughness[type], 6, 4) + "," +
           NumberField(project_.TypeSizesLine[type], 1, 0) + "," + ref + "," +
           TextField(project_.PipeTypeDescriptions[type]);
  }

  [[nodiscard]] std::string ValveLine(int valve) const {
    return TextField(project_.ValveRefs[valve]) + "," +
           TextField(project_.ValveDescriptions[valve]);
  }

  // True for the columns whose values need one more place.
  [[nodiscard]] bool IsWideColumn(int size) const {
    return size == project_.PipeSizeCount || project_.NominalSizes[0][size] > kWidestTwoDigits;
  }

  [[nodiscard]] std::string SizesLine(int line) const {
    std::string text;
    for (int size = 1; size <= project_.PipeSizeCount; ++size) {
      const int width = IsWideColumn(size) ? 3 : 2;
      text += NumberField(Whole(project_.NominalSizes[line][size]), width, 0);
      if (size < project_.PipeSizeCount) text += "   ,";
    }
    return text;
  }

  template <class ValueAt>
  [[nodiscard]] std::string DecimalsLine(ValueAt value_at) const {
    std::string text;
    for (int size = 1; size <= project_.PipeSizeCount; ++size) {
      text += NumberField(value_at(size), IsWideColumn(size) ? 6 : 5, 2);
      if (size < project_.PipeSizeCount) text += ",";
    }
    return text;
  }

  const Project& project_;
  std::string text_;
};

}  // namespace

void WritePipeData(Session& session) {
  const std::string& path = session.project.PipeDataPath;
  const std::string backup = Left(path, static_cast<int>(path.size()) - 3) + "BAK";
  CopyFileSafely(session.platform.files, path, backup);

  const std::string first_line =
      session.InstallationName + "," + ShortTimeText(session.platform.clock.Now());
  WriteFileSafely(session.platform.files, path, PipeDataText(session.project).Build(first_line));

  const std::string line_end(kLineBreak);
  session.platform.dialogs.Show(
      {.title = path + " updated",
       .text = path + " has been updated with new pipe types/sizes with" + " a backup in " +
               backup + line_end + line_end +
               "If you want to amend any of the data, choose 'Options' from" +
               " the top menu. Click on 'OK' to continue."});
}

}  // namespace zeb
