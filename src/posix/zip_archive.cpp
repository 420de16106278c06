#include "posix/zip_archive.h"

#include <zip.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <memory>

#include "model/failure.h"
#include "posix/path_text.h"
#include "services/file_writing.h"

namespace zeb {
namespace {

struct FreeSource {
  void operator()(zip_source_t* source) const { zip_source_free(source); }
};
struct DiscardZip {
  void operator()(zip_t* zip) const { zip_discard(zip); }
};
struct CloseEntry {
  void operator()(zip_file_t* entry) const { zip_fclose(entry); }
};
using Source = std::unique_ptr<zip_source_t, FreeSource>;
using Zip = std::unique_ptr<zip_t, DiscardZip>;
using EntryReader = std::unique_ptr<zip_file_t, CloseEntry>;

[[noreturn]] void Fail(int zip_error) {
  switch (zip_error) {
    case ZIP_ER_WRONGPASSWD:
    case ZIP_ER_NOPASSWD:
      throw RuntimeFailure(failure::kPermissionDenied);
    case ZIP_ER_MEMORY:
      throw RuntimeFailure(failure::kOutOfMemory);
    default:
      throw RuntimeFailure(failure::kDeviceError, "The archive is damaged");
  }
}

void Check(bool done, zip_t* zip) {
  if (!done) Fail(zip_error_code_zip(zip_get_error(zip)));
}

Source SourceOf(const void* bytes, std::size_t size) {
  Source source(zip_source_buffer_create(bytes, size, 0, nullptr));
  if (!source) Fail(ZIP_ER_MEMORY);
  return source;
}

// The archive keeps a reference of its own to the source.
Zip OpenZip(const Source& source, int flags, const std::string& password) {
  zip_error_t error{};
  zip_source_keep(source.get());
  Zip zip(zip_open_from_source(source.get(), flags, &error));
  const int code = zip_error_code_zip(&error);
  zip_error_fini(&error);
  if (!zip) {
    zip_source_free(source.get());
    Fail(code);
  }
  if (!password.empty()) zip_set_default_password(zip.get(), password.c_str());
  return zip;
}

// An entry that would unpack outside the chosen folder is no honest one.
void CheckName(const std::string& name) {
  const std::filesystem::path path(name);
  bool outside = path.is_absolute();
  for (const auto& part : path) outside = outside || part == "..";
  if (outside) Fail(ZIP_ER_INVAL);
}

std::string ReadEntry(zip_t* zip, zip_uint64_t index) {
  const EntryReader entry(zip_fopen_index(zip, index, 0));
  Check(entry != nullptr, zip);
  std::string bytes;
  std::array<char, 65536> buffer{};
  while (true) {
    const zip_int64_t count = zip_fread(entry.get(), buffer.data(), buffer.size());
    if (count < 0) Fail(zip_error_code_zip(zip_file_get_error(entry.get())));
    if (count == 0) return bytes;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

void AddEntry(zip_t* zip, const ArchiveEntry& entry, bool encrypted) {
  Source source = SourceOf(entry.bytes.data(), entry.bytes.size());
  const std::string name = NativePath(entry.name);
  const zip_int64_t index =
      zip_file_add(zip, name.c_str(), source.get(), ZIP_FL_OVERWRITE | ZIP_FL_ENC_UTF_8);
  Check(index >= 0, zip);
  static_cast<void>(source.release());  // the archive's from here on
  if (!encrypted) return;
  const auto added = static_cast<zip_uint64_t>(index);
  Check(zip_file_set_encryption(zip, added, ZIP_EM_AES_256, nullptr) == 0, zip);
}

// The library writes no archive at all when there is nothing to pack.
std::string EmptyArchive() {
  constexpr std::size_t kEndRecordSize = 22;
  std::string bytes = "PK\x05\x06";
  bytes.resize(kEndRecordSize, '\0');
  return bytes;
}

std::string PackedBytes(zip_source_t* source) {
  zip_stat_t status{};
  if (zip_source_stat(source, &status) != 0 || zip_source_open(source) != 0) Fail(ZIP_ER_READ);
  std::string bytes(status.size, '\0');
  const zip_int64_t count = zip_source_read(source, bytes.data(), bytes.size());
  zip_source_close(source);
  if (count != static_cast<zip_int64_t>(bytes.size())) Fail(ZIP_ER_READ);
  return bytes;
}

std::string Packed(const std::vector<ArchiveEntry>& entries, const std::string& password) {
  if (entries.empty()) return EmptyArchive();
  const Source packed = SourceOf(nullptr, 0);
  Zip zip = OpenZip(packed, ZIP_CREATE | ZIP_TRUNCATE, password);
  for (const ArchiveEntry& entry : entries) AddEntry(zip.get(), entry, !password.empty());
  Check(zip_close(zip.get()) == 0, zip.get());
  static_cast<void>(zip.release());  // closing has freed it
  return PackedBytes(packed.get());
}

}  // namespace

std::vector<ArchiveEntry> ZipArchive::Read(const std::string& path, const std::string& password) {
  const std::string packed = files_.ReadFile(path);
  if (packed.empty()) Fail(ZIP_ER_NOZIP);  // would pass for an archive without entries
  const Source source = SourceOf(packed.data(), packed.size());
  const Zip zip = OpenZip(source, ZIP_RDONLY, password);
  std::vector<ArchiveEntry> entries;
  const zip_int64_t count = zip_get_num_entries(zip.get(), 0);
  for (zip_int64_t entry = 0; entry < count; ++entry) {
    const auto index = static_cast<zip_uint64_t>(entry);
    const char* name = zip_get_name(zip.get(), index, 0);
    Check(name != nullptr, zip.get());
    CheckName(name);
    const bool is_folder = std::string_view(name).ends_with('/');
    if (!is_folder) entries.push_back({PathText(name), ReadEntry(zip.get(), index)});
  }
  return entries;
}

void ZipArchive::Write(const std::string& path, const std::vector<ArchiveEntry>& entries,
                       const std::string& password) {
  WriteFileSafely(files_, path, Packed(entries, password));
}

}  // namespace zeb
