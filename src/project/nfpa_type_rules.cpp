#include "project/nfpa_type_rules.h"

#include <array>
#include <string>
#include <string_view>

#include "services/design_authorities.h"
#include "services/text.h"

namespace zeb {
namespace {

// C and its factor on fitting lengths, for a material given with the C of the LPC rules.
struct MaterialRule {
  std::string_view word;
  float from_c;
  float to_c;
  float factor;
};

constexpr std::array<MaterialRule, 5> kMaterialRules = {{
    {"DUCTILE", 110.0F, 100.0F, 0.714F},
    {"PVC", 140.0F, 150.0F, 1.49F},
    {"PLASTIC", 140.0F, 150.0F, 1.49F},
    {"CEMENT", 130.0F, 140.0F, 1.33F},
    {"COPPER", 140.0F, 150.0F, 1.49F},
}};

void ReplaceC(Project& project, int type, const MaterialRule& rule) {
  if (project.TypeFileC[type] == 0.0F) {
    project.TypeFileC[type] = project.TypeC[type];
    project.TypeFileFactor[type] = project.TypeFittingFactor[type];
  }
  project.TypeC[type] = rule.to_c;
  project.TypeFittingFactor[type] = rule.factor;
}

void ApplyMaterialRules(Project& project, int type, const std::string& description) {
  for (const MaterialRule& rule : kMaterialRules) {
    const bool applies = Contains(description, rule.word) && project.TypeC[type] == rule.from_c;
    if (applies) ReplaceC(project, type, rule);
  }
}

}  // namespace

void ApplyNfpaTypeRules(Project& project, int types) {
  for (int type = 1; type <= types; ++type) {
    const std::string description = UpperCase(TrimLeft(project.PipeTypeDescriptions[type]));
    const bool schedule40 =
        project.PipeTypeRefs[type] == "S40" || Contains(description, "SCHEDULE 40");
    if (project.RuleType == kRulesNfpa && schedule40) project.Schedule40Type = type;
    ApplyMaterialRules(project, type, description);
  }
}

}  // namespace zeb
