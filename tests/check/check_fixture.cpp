#include "check_fixture.h"

#include "project/fault_report.h"
#include "services/text.h"
#include "support/project_text.h"

namespace zeb::test {
namespace {

constexpr const char* kPipeData =
    "ZEB,12:00\r\n"
    "2,5,4\r\n"
    "1,120,1.000,0.0460,1,MED,Steel medium\r\n"
    "2,140,1.330,0.0015,1,CU,Copper\r\n"
    "25,32,50,80,100\r\n"
    "25,32,50,80,100\r\n"
    "25,32,50,80,100\r\n"
    "27.30,36.00,53.10,80.90,105.30\r\n"
    "26.00,0.00,52.00,80.00,100.00\r\n"
    "EL,Elbow\r\n"
    "WE,Welded elbow\r\n"
    "GV,Gate valve\r\n"
    "TE,Tee\r\n"
    "0.77,1.00,1.50,2.40,0.00\r\n"
    "0.36,0.49,0.69,1.10,1.40\r\n"
    "0.00,0.00,0.38,0.63,0.81\r\n"
    "1.50,2.10,2.90,4.80,0.00\r\n"
    "2,3,5,7,10\r\n"
    "2,2,3,5,6\r\n"
    "0,0,1,1,2\r\n"
    "5,6,10,15,20\r\n";

constexpr const char* kItems =
    "Test job|---|---|---|EN 12845 Rules|---|Water|65|test.pdt|None|Most "
    "Unfavourable|1|OH3|5.00|72|"
    "---|---|---";

}  // namespace

void AddPipe(std::string& lines, int start, int end, const std::string& rest) {
  if (!lines.empty()) lines += " / ";
  lines += std::to_string(start) + ' ' + std::to_string(end) + rest;
}

CheckFixture::CheckFixture() {
  files.Put(session.folders.PdtFolder + "/TEST.PDT", kPipeData);
  SetLines(project, Split(kItems, "|"));
  for (const char* code : {"01 15.0  80.00   0.50 STD1    ", "02 10.0  57.00   0.35 LIGHT   ",
                           "03 20.0   0.00   0.50 ZERO    ", "04 20.0 242.00   0.60 LARGE   "}) {
    project.HeadCodeLines[++project.HeadCodeCount] = code;
  }
  project.ProjectPath = "[Untitled]";
  project.MaxPipes = 5019;
  project.MaxHeads = 1500;
  project.MaxLoops = 1000;
  shell.OnForm<WarningForm>("ZEBF04", [this](WarningForm& form) {
    captions.push_back(form.Caption);
    captions.size() == stop_at ? form.Canbut_Click() : form.cbut_Click();
  });
}

void CheckFixture::Check(const std::string& pipe_lines, CheckMode mode) {
  SetLines(project, Split(pipe_lines + " / END", " / "), kFirstPipeLine);
  CheckProject(session, mode);
}

std::vector<int> CheckFixture::FaultNumbers() const {
  std::vector<int> numbers;
  for (const CheckFault& fault : project.Faults) numbers.push_back(fault.number);
  return numbers;
}

}  // namespace zeb::test
