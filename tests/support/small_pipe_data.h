#pragma once

#include <string>
#include <vector>

namespace zeb::test {

// A faultless pipe data file of two types, three sizes and two valves, whose lines can be replaced.
class SmallPipeData {
 public:
  // Replaces a line, counted from 0 for the date.
  void Set(int line, const std::string& text) { lines_.at(static_cast<std::size_t>(line)) = text; }

  [[nodiscard]] std::string With(int line, const std::string& text) {
    Set(line, text);
    return Text();
  }

  [[nodiscard]] std::string Text() const {
    std::string text;
    for (const std::string& line : lines_) text += line + "\r\n";
    return text;
  }

 private:
  std::vector<std::string> lines_ = {
      "ZEB,12:00",
      "2,3,2",
      "1,120,1.000,0.0460,1,MED,Steel medium",
      "2,140,1.330,0.0015,2,CU,Copper tube",
      "25,50,100",
      "28,54,108",
      "32,63,125",
      "27.30,53.10,105.30",
      "26.20,51.60,0.00",
      "EL,Elbow",
      "TE,Tee",
      "0.77,1.50,3.00",
      "1.50,2.90,6.10",
      "2,5,10",
      "5,10,20",
  };
};

}  // namespace zeb::test
