#include "project/file_failures.h"

#include <algorithm>
#include <array>
#include <optional>

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::string_view kDriveError = "Drive File Error";
constexpr std::string_view kDiskError = "Disk File Error";

// The failures that may pass when the user has seen to the drive.
struct DriveFailure {
  int number;
  std::string_view text;
  MessageIcon icon;
  int default_button;
};

constexpr std::array kDriveFailures{
    DriveFailure{failure::kDiskNotReady,
                 "The file cannot be saved at this time as\r\nthe disk drive is not ready!\r\n",
                 MessageIcon::kWarning, 1},
    DriveFailure{failure::kPathFileAccess,
                 "File or path error occurred it might be\r\nthat the file is read only!  \r\n",
                 MessageIcon::kWarning, 1},
    DriveFailure{failure::kPathNotFound,
                 "The file path could not be found it could be\r\n"
                 "that a removable device (flash driver) or\r\n"
                 "network drive has become disconnected!  \r\n",
                 MessageIcon::kNone, 2},
    DriveFailure{failure::kDiskFull, "Disk or device is full! \r\n", MessageIcon::kNone, 1},
};

// The failures that are told in their own words.
constexpr std::array kPlainFailures{52, 53, 54, 55, 57, 58, 59, 62, 63, 67, 68, 70};

std::optional<Message> DriveMessage(int number) {
  const auto* found =
      std::find_if(kDriveFailures.begin(), kDriveFailures.end(),
                   [number](const DriveFailure& entry) { return entry.number == number; });
  if (found == kDriveFailures.end()) return std::nullopt;
  return Message{.title = std::string(kDriveError),
                 .text = std::string(found->text),
                 .icon = found->icon,
                 .buttons = MessageButtons::kRetryCancel,
                 .default_button = found->default_button};
}

Message MessageOf(const Session& session, const RuntimeFailure& failure, int line) {
  const int number = failure.Number();
  if (std::optional<Message> message = DriveMessage(number)) return *message;
  if (std::find(kPlainFailures.begin(), kPlainFailures.end(), number) != kPlainFailures.end()) {
    return {.title = std::string(kDiskError),
            .text = failure.Description(),
            .icon = MessageIcon::kWarning};
  }
  return {.title = session.project.ProductName,
          .text = failure.Description() + std::string(kLineBreak) + SignedText(number) +
                  "ZEB at line" + SignedText(line)};
}

}  // namespace

bool AskToRetry(Session& session, const RuntimeFailure& failure, int line) {
  return session.platform.dialogs.Show(MessageOf(session, failure, line)) == Answer::kRetry;
}

void LogFileFailure(Session& session, const RuntimeFailure& failure, const std::string& source,
                    int line) {
  session.log.LogError({.text = failure.Description() + SignedText(failure.Number()),
                        .source = source,
                        .line = line});
}

}  // namespace zeb
