#include "services/settings.h"

#include "services/file_writing.h"
#include "services/ini_file.h"
#include "services/paths.h"

namespace zeb {
namespace {

std::string PathIn(const std::string& folder, const std::string& name) {
  return folder.empty() ? folder : AddBackSlash(folder) + name;
}

}  // namespace

void Settings::Locate(const std::string& user_data_folder, const std::string& program_folder) {
  user_ini_ = PathIn(user_data_folder, "zeb.ini");
  program_store_ = PathIn(user_data_folder, "ZEB_settings.ini");
  config_ini_ = PathIn(program_folder, "ZEB_config.ini");
}

std::string Settings::GetIniValue(const SettingKey& key) {
  return GetIniValue(std::string(key.section), std::string(key.key),
                     std::string(key.default_value));
}

void Settings::SetIniValue(const SettingKey& key, const std::string& value) {
  SetIniValue(std::string(key.section), std::string(key.key), value);
}

bool Settings::HasIniValue(const SettingKey& key) {
  return HasIniValue(std::string(key.section), std::string(key.key));
}

std::string Settings::GetIniValue(const std::string& section, const std::string& key,
                                  const std::string& default_value) {
  return Read(user_ini_, section, key, default_value);
}

void Settings::SetIniValue(const std::string& section, const std::string& key,
                           const std::string& value) {
  Write(user_ini_, section, key, value);
}

bool Settings::HasIniValue(const std::string& section, const std::string& key) {
  if (!files_.FileExists(user_ini_)) return false;
  CIniFile ini(files_);
  ini.Init(user_ini_);
  return ini.HasKey(section, key);
}

std::string Settings::GetSetting(const std::string& section, const std::string& key,
                                 const std::string& default_value) {
  return Read(program_store_, section, key, default_value);
}

void Settings::SaveSetting(const std::string& section, const std::string& key,
                           const std::string& value) {
  Write(program_store_, section, key, value);
}

std::string Settings::GetConfigValue(const SettingKey& key) {
  return GetConfigValue(std::string(key.section), std::string(key.key),
                        std::string(key.default_value));
}

std::string Settings::GetConfigValue(const std::string& section, const std::string& key,
                                     const std::string& default_value) {
  return Read(config_ini_, section, key, default_value);
}

std::string Settings::Read(const std::string& path, const std::string& section,
                           const std::string& key, const std::string& default_value) {
  if (path.empty() || !files_.FileExists(path)) return default_value;
  CIniFile ini(files_);
  ini.Init(path);
  return ini.GetStringValue(section, key, default_value);
}

void Settings::Write(const std::string& path, const std::string& section, const std::string& key,
                     const std::string& value) {
  if (path.empty()) return;
  if (!files_.FileExists(path)) {
    files_.MakeFolder(ReturnFolder(path));
    WriteFileSafely(files_, path, "");
  }
  CIniFile ini(files_);
  ini.Init(path);
  ini.SaveStringValue(section, key, value);
}

}  // namespace zeb
