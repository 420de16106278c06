#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// The user's own settings: what new projects begin with, how the drawing looks, and how the program
// works.
class OptionsForm : public Form {
 public:
  explicit OptionsForm(Session& session);

  [[nodiscard]] std::string_view Name() const override { return "frmOptions"; }

  [[nodiscard]] std::vector<std::string> PipeDataFiles() const;
  [[nodiscard]] std::vector<std::string> Authorities() const;
  [[nodiscard]] static std::vector<std::string> Equations();
  [[nodiscard]] static std::vector<std::string> Temperatures();
  [[nodiscard]] std::vector<std::string> HeadCodeLibraries() const;
  [[nodiscard]] static std::vector<std::string> Backgrounds();
  [[nodiscard]] static std::vector<std::string> Themes();

  // The water's temperature matters for one of the equations only.
  void ComPLE_Click();
  // Stores everything and closes. A pipe data folder that does not exist is told, and the form
  // stays open.
  void cmdOK_Click();
  void cmdCancel_Click();

  std::string Caption = "Options";
  // New projects.
  std::string PipeData;
  std::string Authority;
  std::string Equation;
  std::string WaterTemp;
  std::string HeadCodes;
  bool WaterTempEnabled = false;
  // The drawing.
  std::string FontName;
  std::string FontSize;    // points
  std::string TextColour;  // the number of a colour as DrawingSurface has it
  std::string Background;
  std::string Theme;
  bool FontBold = false;
  bool FontItalic = false;
  // The program.
  std::string PdtFolder;
  std::string NodeStep;
  bool AutoNode = false;
  bool AutoSave = false;

 private:
  void CorrectNumbers();
  void StoreTexts();
  void StoreFlags();

  Session& session_;
};

}  // namespace zeb
