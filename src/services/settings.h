#pragma once

#include <optional>
#include <string>

#include "platform/file_system.h"

namespace zeb {

// The three stores of settings: the per-user zeb.ini, the installation's ZEB_config.ini, and the
// per-program store (window positions, column widths, the pipe data folder). A store without a path
// (as in zeb-batch without --settings) answers every key with its default and drops what is set.
class Settings {
 public:
  explicit Settings(FileSystem& files) : files_(files) {}

  // The folder of zeb.ini and of the per-program store, and the folder of ZEB_config.ini.
  void Locate(const std::string& user_data_folder, const std::string& program_folder);

  // zeb.ini.
  [[nodiscard]] std::string GetIniValue(const std::string& section, const std::string& key,
                                        const std::string& default_value);
  void SetIniValue(const std::string& section, const std::string& key, const std::string& value);
  [[nodiscard]] bool HasIniValue(const std::string& section, const std::string& key);

  // The per-program store.
  [[nodiscard]] std::string GetSetting(const std::string& section, const std::string& key,
                                       const std::string& default_value);
  void SaveSetting(const std::string& section, const std::string& key, const std::string& value);

  // ZEB_config.ini, read only.
  [[nodiscard]] std::string GetConfigValue(const std::string& section, const std::string& key,
                                           const std::string& default_value);

 private:
  FileSystem& files_;
  std::string user_ini_;
  std::string program_store_;
  std::string config_ini_;
};

}  // namespace zeb
