#pragma once

#include <string>

#include "platform/file_system.h"
#include "services/settings_keys.h"

namespace zeb {

// The three stores of settings: the per-user zeb.ini, the installation's ZEB_config.ini, and the
// per-program store (window positions, column widths, the pipe data folder). A store without a path
// (as in zeb-batch without --settings) answers every key with its default and drops what is set.
class Settings {
 public:
  explicit Settings(FileSystem& files) : files_(files) {}

  // The folder of zeb.ini and of the per-program store, and the folder of ZEB_config.ini.
  void Locate(const std::string& user_data_folder, const std::string& program_folder);

  // zeb.ini. A key that is absent answers with the default.
  [[nodiscard]] std::string GetIniValue(const SettingKey& key);
  void SetIniValue(const SettingKey& key, const std::string& value);
  [[nodiscard]] bool HasIniValue(const SettingKey& key);
  [[nodiscard]] std::string GetIniValue(const std::string& section, const std::string& key,
                                        const std::string& default_value);
  void SetIniValue(const std::string& section, const std::string& key, const std::string& value);
  [[nodiscard]] bool HasIniValue(const std::string& section, const std::string& key);

  // The per-program store.
  [[nodiscard]] std::string GetSetting(const std::string& section, const std::string& key,
                                       const std::string& default_value);
  void SaveSetting(const std::string& section, const std::string& key, const std::string& value);

  // ZEB_config.ini, read only.
  [[nodiscard]] std::string GetConfigValue(const SettingKey& key);
  [[nodiscard]] std::string GetConfigValue(const std::string& section, const std::string& key,
                                           const std::string& default_value);

 private:
  [[nodiscard]] std::string Read(const std::string& path, const std::string& section,
                                 const std::string& key, const std::string& default_value);
  void Write(const std::string& path, const std::string& section, const std::string& key,
             const std::string& value);

  FileSystem& files_;
  std::string user_ini_;
  std::string program_store_;
  std::string config_ini_;
};

}  // namespace zeb
