#include "posix/trash.h"

#include <fcntl.h>

#include <cctype>
#include <cerrno>
#include <ctime>
#include <string>
#include <string_view>
#include <system_error>

#include "model/failure.h"
#include "posix/local_time.h"
#include "posix/open_file.h"
#include "posix/system_failure.h"
#include "posix/xdg_folders.h"
#include "services/number_text.h"

namespace zeb {
namespace {

namespace fs = std::filesystem;

void MakePrivateFolder(const fs::path& folder) {
  std::error_code error;
  if (fs::create_directories(folder, error)) {
    fs::permissions(folder, fs::perms::owner_all, error);
  }
  CheckError(error.value());
}

bool IsPlain(unsigned char byte) {
  constexpr std::string_view kMarks = "/-_.~";
  return byte < 0x80 && (std::isalnum(byte) != 0 ||
                         kMarks.find(static_cast<char>(byte)) != std::string_view::npos);
}

std::string PercentEncoded(const std::string& path) {
  constexpr std::string_view kHexDigits = "0123456789ABCDEF";
  std::string encoded;
  for (const char letter : path) {
    const auto byte = static_cast<unsigned char>(letter);
    if (IsPlain(byte)) {
      encoded += letter;
    } else {
      encoded += {'%', kHexDigits[byte / 16U], kHexDigits[byte % 16U]};
    }
  }
  return encoded;
}

std::string TrashInfo(const fs::path& file) {
  const DateTime now = LocalTime(std::time(nullptr));
  const auto two = [](int value) { return FormatDigits(value, 2); };
  return "[Trash Info]\nPath=" + PercentEncoded(fs::absolute(file).native()) +
         "\nDeletionDate=" + FormatDigits(now.year, 4) + "-" + two(now.month) + "-" + two(now.day) +
         "T" + two(now.hour) + ":" + two(now.minute) + ":" + two(now.second) + "\n";
}

// Takes a name that is still free by making its info file. Names near the longest possible are cut
// to leave room for the ending.
std::string ReserveName(const fs::path& info_folder, const fs::path& file) {
  constexpr std::size_t kLongestName = 200;
  const std::string name = file.filename().native().substr(0, kLongestName);
  for (int number = 1;; ++number) {
    std::string free_name = number == 1 ? name : name + "." + PlainText(number);
    const fs::path info = info_folder / (free_name + ".trashinfo");
    try {
      OpenFile opened(info, O_WRONLY | O_CREAT | O_EXCL);
      opened.WriteAll(TrashInfo(file));
      opened.Close();
      return free_name;
    } catch (const RuntimeFailure& failure) {
      if (failure.Number() != failure::kFileAlreadyExists) throw;
    }
  }
}

// A file of another disk than the home folder's is copied.
void Move(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (error.value() == EXDEV) {
    fs::copy_file(from, to, error);
    CheckError(error.value());
    fs::remove(from, error);
    if (error) {
      std::error_code ignored;
      fs::remove(to, ignored);
    }
  }
  CheckError(error.value());
}

}  // namespace

void MoveFileToTrash(const fs::path& file) {
  std::error_code error;
  if (!fs::exists(fs::symlink_status(file, error))) throw RuntimeFailure(failure::kFileNotFound);
  const fs::path trash = DataHome() / "Trash";
  MakePrivateFolder(trash);
  MakePrivateFolder(trash / "info");
  MakePrivateFolder(trash / "files");
  const std::string name = ReserveName(trash / "info", file);
  try {
    Move(file, trash / "files" / name);
  } catch (const RuntimeFailure&) {
    fs::remove(trash / "info" / (name + ".trashinfo"), error);
    throw;
  }
}

}  // namespace zeb
