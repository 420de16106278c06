// Packs files into a zip archive that only opens with its password:
//     protect_archive OUT PASSWORD FILE...
// Every file becomes an entry of its bare name. OUT is replaced as a whole or left as it was.

#include <zip.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

namespace {

struct DiscardArchive {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using ArchiveHandle = std::unique_ptr<zip_t, DiscardArchive>;

ArchiveHandle OpenArchive(const std::filesystem::path& path) {
  int code = 0;
  ArchiveHandle archive(zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &code));
  if (!archive) {
    throw std::runtime_error("cannot write " + path.string());
  }
  return archive;
}

void AddFile(zip_t* archive, const std::filesystem::path& path) {
  zip_source_t* source = zip_source_file(archive, path.c_str(), 0, 0);
  const zip_int64_t entry =
      zip_file_add(archive, path.filename().c_str(), source, ZIP_FL_OVERWRITE | ZIP_FL_ENC_CP437);
  if (entry < 0) {
    zip_source_free(source);
    throw std::runtime_error("cannot add " + path.string() + ": " + zip_strerror(archive));
  }
  if (zip_file_set_encryption(archive, entry, ZIP_EM_AES_256, nullptr) != 0) {
    throw std::runtime_error(std::string("cannot encrypt: ") + zip_strerror(archive));
  }
}

void Pack(const std::filesystem::path& out, const char* password, std::span<char*> files) {
  std::filesystem::create_directories(out.parent_path());
  ArchiveHandle archive = OpenArchive(out);
  zip_set_default_password(archive.get(), password);
  for (const char* file : files) {
    AddFile(archive.get(), file);
  }
  if (zip_close(archive.get()) != 0) {
    throw std::runtime_error("cannot write " + out.string() + ": " + zip_strerror(archive.get()));
  }
  static_cast<void>(archive.release());  // closing has freed it
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
  if (arguments.size() < 4) {
    std::fputs("usage: protect_archive OUT PASSWORD FILE...\n", stderr);
    return 2;
  }
  try {
    Pack(arguments[1], arguments[2], arguments.subspan(3));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "protect_archive: %s\n", error.what());
    return 1;
  }
  return 0;
}
