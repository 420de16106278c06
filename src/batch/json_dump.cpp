#include "batch/json_dump.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>

#include "model/project.h"
#include "services/code_page.h"
#include "services/session.h"

namespace zeb {
namespace {

using Json = nlohmann::ordered_json;

// The shortest decimals of the single, as a double whose own shortest text they are.
Json RealValue(float value) {
  if (!std::isfinite(value)) return nullptr;
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size() - 1, value);
  *end.ptr = '\0';
  return std::strtod(digits.data(), nullptr);
}

Json ValueOf(float value) { return RealValue(value); }
Json ValueOf(Int16 value) { return static_cast<int>(value); }
Json ValueOf(const std::string& text) { return ToUtf8(text); }

template <class Range>
Json TextsOf(const Range& texts) {
  Json array = Json::array();
  for (const std::string& text : texts) array.push_back(ToUtf8(text));
  return array;
}

void AddSystemValues(Json& json, const Project& project) {
  ForEachSystemValue(project,
                     [&json](const char* name, const auto& value) { json[name] = ValueOf(value); });
  json["SuppressBoreCheck"] = project.SuppressBoreCheck;
  // Further names of the same values.
  json["AuthorityType"] = ValueOf(project.RuleType);
  json["AuthorityType2"] = ValueOf(project.RuleType);
  json["HeadCodesUsed"] = ValueOf(project.HeadCodeCount);
  json["Sched40Type"] = ValueOf(project.Schedule40Type);
  json["FileHeader"] = TextsOf(std::array{project.HeaderOrigin, project.HeaderStamp,
                                          project.HeaderCounts, project.HeaderVersion});
}

void AddSessionValues(Json& json, const Session& session) {
  json["SuppressErrors"] = session.SuppressErrors;
  json["AutoSave"] = session.AutoSave;
}

Json PipesOf(const Project& project) {
  Json pipes = Json::array();
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    Json entry{{"slot", pipe}};
    ForEachPipeRow(project, [&entry, pipe](const char* name, const auto& row) {
      entry[name] = ValueOf(row[pipe]);
    });
    pipes.push_back(std::move(entry));
  }
  return pipes;
}

Json HeadsOf(const Project& project) {
  Json heads = Json::array();
  for (int head = 1; head <= project.HeadCount; ++head) {
    Json entry{{"slot", head}};
    ForEachHeadRealRow(project, [&entry, head](const char* name, const auto& row) {
      entry[name] = ValueOf(row[head]);
    });
    entry["HeadOn"] = ValueOf(project.HeadOn[head]);
    heads.push_back(std::move(entry));
  }
  return heads;
}

Json LoopsOf(const Project& project) {
  Json loops = Json::array();
  for (int loop = 1; loop <= project.LoopCount; ++loop) {
    Json pipes = Json::array();
    for (int k = project.LoopFirst[loop]; k <= project.LoopLast[loop]; ++k) {
      pipes.push_back(static_cast<int>(project.LoopPipes[k]));
    }
    loops.push_back(std::move(pipes));
  }
  return loops;
}

Json HeadCodesOf(const Project& project) {
  Json codes = Json::array();
  for (int code = 1; code <= project.HeadCodeCount; ++code) {
    codes.push_back({{"HeadCodeLine", ToUtf8(project.HeadCodeLines[code])},
                     {"HeadCodeOrifice", RealValue(project.HeadCodeOrifice[code])},
                     {"HeadCodeK", RealValue(project.HeadCodeK[code])},
                     {"HeadCodePress", RealValue(project.HeadCodePress[code])},
                     {"HeadCodeUses", RealValue(project.HeadCodeUses[code])},
                     {"HeadCodeMinArea", RealValue(project.HeadCodeMinArea[code])},
                     {"HeadCodeMaxArea", RealValue(project.HeadCodeMaxArea[code])}});
  }
  return codes;
}

Json FaultsOf(const std::vector<CheckFault>& reported) {
  Json faults = Json::array();
  for (const CheckFault& fault : reported) {
    faults.push_back({{"number", fault.number},
                      {"location", ToUtf8(fault.location)},
                      {"problem", ToUtf8(fault.problem)},
                      {"reason", ToUtf8(fault.reason)},
                      {"correction", ToUtf8(fault.correction)},
                      {"short", ToUtf8(fault.short_line)}});
  }
  return faults;
}

Json MessagesOf(const std::vector<Message>& messages) {
  Json array = Json::array();
  for (const Message& message : messages) {
    array.push_back({{"title", ToUtf8(message.title)}, {"text", ToUtf8(message.text)}});
  }
  return array;
}

Json VelocityBucketsOf(const Project& project) {
  Json buckets = Json::array();
  for (const Int16 count : project.VelocityBuckets.Slots()) buckets.push_back(ValueOf(count));
  return buckets;
}

}  // namespace

CheckResult KeepCheckResult(const Project& project) {
  CheckResult result;
  for (int line = 1; line <= project.LineCount; ++line) {
    result.lines.push_back(project.PipeLines[line]);
  }
  result.faults = project.Faults;
  result.warning_text = project.WarningText;
  result.check_summary = project.CheckSummary;
  return result;
}

std::string DumpJson(const Session& session, const CheckResult& check,
                     const std::vector<Message>& messages) {
  const Project& project = session.project;
  Json json;
  AddSystemValues(json, project);
  AddSessionValues(json, session);
  json["lines"] = TextsOf(check.lines);
  json["pipes"] = PipesOf(project);
  json["heads"] = HeadsOf(project);
  json["loops"] = LoopsOf(project);
  json["head_codes"] = HeadCodesOf(project);
  json["VelocityBuckets"] = VelocityBucketsOf(project);
  json["errors"] = FaultsOf(check.faults);
  json["WarningText"] = ToUtf8(check.warning_text);
  json["CheckSummary"] = ToUtf8(check.check_summary);
  json["messages"] = MessagesOf(messages);
  return json.dump(1);
}

}  // namespace zeb
