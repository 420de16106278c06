// Any bytes as a pipe data file, under general and NFPA rules.

#include <cstddef>
#include <cstdint>
#include <string>

#include "project/pipe_data_reader.h"
#include "services/design_authorities.h"
#include "support/project_session.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static zeb::test::ProjectSession session;
  for (const int rules : {zeb::kRulesGeneral, zeb::kRulesNfpa}) {
    session.Reset();
    session.files.Put("/prog/pipedata/FUZZ.PDT",
                      std::string(reinterpret_cast<const char*>(data), size));
    session.session.project.PipeDataFile = "FUZZ.PDT";
    session.session.project.RuleType = rules;
    zeb::ReadPipeData(session.session, zeb::CheckMode::kSilent);
  }
  return 0;
}
