#include "project/project_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/model_state.h"
#include "project/project_writer.h"
#include "support/networks.h"
#include "support/project_text.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

const Texts kTail{"END", "01 15.0  80.00   0.50 STD1    "};

struct ProjectReader : testing::Test, TestSession {
  ProjectReader() {
    project.ProductName = "ZEB";
    project.ProjectPath = "/JOBS/JOB.ZEB";
    files.PutFolder("/jobs");
  }

  void Read(const std::string& bytes) {
    files.Put("/jobs/job.zeb", bytes);
    ReadProject(session);
  }
  void Read(const Texts& head, const Texts& lines) { Read(FileText(Joined(head, lines))); }
  [[nodiscard]] Texts Lines() const {
    const auto lines = project.PipeLines.Slots();
    return {lines.begin() + 1, lines.begin() + 1 + project.LineCount};
  }
};

TEST_F(ProjectReader, LeavesAFreshProject) {
  project.HeadOn[3] = 1;
  project.PipeCount = 9;
  Read({"ORIGIN,01/02/2003 04:05:06,00100000021,3", "user,computer", "", ""},
       Joined(NumberedItems(), kTail));
  EXPECT_EQ(project.LineCount, 19);
  EXPECT_EQ(project.PipeLines[18], "item 18");
  EXPECT_EQ(project.HeadCodeCount, 1);
  EXPECT_EQ(project.HeaderStamp, "01/02/2003 04:05:06");
  EXPECT_EQ(project.HeadOn[3], 0);
  EXPECT_EQ(project.PipeCount, 0);
  EXPECT_EQ(project.ModelState, model_state::kRead);
  EXPECT_EQ(project.AddPipeTexts[8], "3");
  EXPECT_EQ(shell.titles.back(), "ZEB: JOB.ZEB");
  EXPECT_TRUE(shell.features[Feature::kSave]);
  EXPECT_FALSE(shell.busy_pointer);
  EXPECT_TRUE(dialogs.messages.empty());
}

// The same lines under every header and with every line end. A lower-case end is no END.
TEST_F(ProjectReader, TellsTheFormatsApart) {
  struct Case {
    Texts head;
    Texts expected;
  };
  const Texts body = {"a", "", " b", "   ", "end"};
  const Texts tail = {" END ", "", "01 one", "END", std::string(31, 'x')};
  const Texts kept = {"a", "", "b", "", "end", "END"};
  const Texts dropped = {"a", "b", "", "end", "END"};
  for (const Case& c : {
           Case{{"me,now,002,1"}, dropped},
           Case{{"me,now,002,2", "x", "y", "z"}, dropped},
           Case{{"me,now,002,3", "x", "y", "z"}, kept},
           Case{{"me,now,002,3X", "x", "y", "z"}, kept},
           Case{{"me,now,002,3,4", "x", "y", "z"}, kept},
           Case{{R"( "me",now, 002, "3")", "x", "y", "z"}, kept},
           Case{{"me", "now", "002", "3", "x", "y", "z"}, kept},
       }) {
    for (const char* end : {"\r\n", "\r", "\n"}) {
      Read(ReplaceAll(FileText(Joined(Joined(c.head, body), tail)), kLineBreak, end));
      EXPECT_EQ(Lines(), c.expected) << c.head[0];
      EXPECT_EQ(project.HeaderOrigin, "me") << c.head[0];
      EXPECT_EQ(project.HeadCodeLines[1], "01 one                        ") << c.head[0];
      EXPECT_EQ(project.HeadCodeLines[2], std::string(30, 'x')) << c.head[0];
    }
  }
}

TEST_F(ProjectReader, ALegacyFileKeepsAllLinesAndTakesTheLibrarysHeadCodes) {
  files.Put("/prog/Library/USER.HCL", "01 first\r\n\r\n03 a line longer than thirty characters");
  Read({"12:30,01/02/1995,x,3"}, {"a", "", " b ", "END", "after"});
  EXPECT_EQ(Lines(), (Texts{"a", "", "b", "END", "after"}));
  EXPECT_EQ(project.HeadCodeCount, 3);
  EXPECT_EQ(project.HeadCodeLines[2], "");
  EXPECT_EQ(project.HeadCodeLines[3], "03 a line longer than thirty characters");
}

TEST_F(ProjectReader, TranslatesOldAuthorityNames) {
  Texts lines = NumberedItems();
  lines[4] = "AS2118.1, Standards Australia - Fire Sprinkler";
  Read({"me,now,001,2", "", "", ""}, Joined(lines, kTail));
  EXPECT_EQ(project.PipeLines[5], "AS2118.1 : Standards Australia - Fire Sprinkler");
}

TEST_F(ProjectReader, RefusesWhatItCannotRead) {
  struct Case {
    const char* name;
    std::string bytes;
    const char* title;
  };
  const std::string rest = "\r\n\r\n\r\n\r\na\r\nEND\r\n01\r\n";
  const std::string head = "me,now,001,3\r\n\r\n\r\n\r\n";
  std::string too_many_lines = head;
  for (int line = 0; line <= kLastLine; ++line) too_many_lines += "x\r\n";
  std::string too_many_codes = head + "a\r\nEND\r\n";
  for (int code = 0; code <= kLastHeadCode; ++code) too_many_codes += "x\r\n";
  for (const Case& c : {
           Case{"empty", "", "Disk File Error"},
           Case{"ends behind END", head + "a\r\nEND\r\n", "Disk File Error"},
           Case{"version 7", "me,now,001,7" + rest, "File Error - Unknown file format"},
           Case{"no version", "me,now,001,\r\n3 High Street", "File Error - Unknown file format"},
           Case{"no number", "me,now,x01,3" + rest, "ZEB"},
           Case{"many lines", too_many_lines, "ZEB"},
           Case{"many head codes", too_many_codes, "ZEB"},
           Case{"many head codes told", "me,now,401,3" + rest, "ZEB"},
           Case{"legacy without a library", "12:30,a,b,c\r\na\r\n", "Disk File Error"},
       }) {
    dialogs.messages.clear();
    Read(c.bytes);
    EXPECT_EQ(project.LineCount, 0) << c.name;
    EXPECT_EQ(project.ModelState, model_state::kStale) << c.name;
    EXPECT_EQ(dialogs.Titles(), Texts{c.title}) << c.name;
    EXPECT_FALSE(shell.features[Feature::kSave]) << c.name;
    EXPECT_FALSE(shell.busy_pointer) << c.name;
  }
}

TEST_F(ProjectReader, TakesStrangeBytesAsTheyAre) {
  const std::string binary("a\0b\xff", 4);
  const std::string huge(2'000'000, 'x');
  Read({"me,now,001,3", "", "", ""}, {binary, huge, "c", "d", "e", "END", "1"});
  EXPECT_EQ(Lines(), (Texts{binary, huge, "c", "d", "e", "END"}));
}

// Whatever a project file is cut off at, it is read or refused, and memory stays in order.
TEST_F(ProjectReader, SurvivesAFileCutAnywhere) {
  const std::string whole = ProjectFile({"1 2 50 1.0 N", "2 3 50 1.0 N"});
  for (std::size_t size = 0; size < whole.size(); ++size) {
    Read(whole.substr(0, size));
    EXPECT_LE(project.LineCount, 21) << size;
  }
}

TEST_F(ProjectReader, StoresTwoVersionsAndBacksUpTheFile) {
  session.AutoSave = true;
  project.AutoSaveCounter = 5;  // an automatic save is due, but there is nothing to save
  const std::string bytes = ProjectFile({});
  Read(bytes);
  EXPECT_EQ(project.UndoSeq, 2);
  EXPECT_EQ(project.UndoNames[1], "As read in from disk at 09:05:07");
  EXPECT_EQ(project.UndoNames[2], project.UndoNames[1]);
  EXPECT_EQ(files.Bytes("/jobs/job.zeb"), bytes);
  EXPECT_EQ(files.Bytes("/jobs/job.ZE!"), bytes);
  EXPECT_EQ(files.Bytes("/prog/tmp/job.zeb"), bytes);
}

TEST_F(ProjectReader, ANewProjectHasNoFileToRead) {
  project.NewProjectFlag = 1;
  project.PipeLines[1] = "typed";
  ReadProject(session);
  EXPECT_EQ(project.PipeLines[1], "typed");
  EXPECT_EQ(project.ModelState, model_state::kRead);
  EXPECT_TRUE(files.AllFiles().empty());
}

}  // namespace
}  // namespace zeb::test
