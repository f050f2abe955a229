#include "desktop/adapters/ZipArchive.h"

#include <sys/stat.h>
#include <zip.h>

#include "desktop/adapters/ZipTrouble.h"

namespace vantrel {
namespace {

constexpr std::size_t blockSize = 256 * 1024;  // bytes
constexpr zip_int64_t mostMembers = 65535;     // of what is meant to be a map

std::string openTrouble(int error) {
  switch (error) {
    case ZIP_ER_NOENT:
    case ZIP_ER_OPEN:
      return "it cannot be opened";
    case ZIP_ER_READ:
    case ZIP_ER_SEEK:
      return "it cannot be read";
    default:
      return "it is no whole zip archive";
  }
}

ZipTrouble memberTrouble(int error) {
  switch (error) {
    case ZIP_ER_CRC:
      return {ZipCode::damagedMember, "it is damaged (its CRC is wrong)"};
    case ZIP_ER_NOPASSWD:
      return {ZipCode::password, "it is encrypted"};
    case ZIP_ER_WRONGPASSWD:
      return {ZipCode::password, "the password is wrong"};
    case ZIP_ER_COMPNOTSUPP:
    case ZIP_ER_ENCRNOTSUPP:
      return {ZipCode::damagedMember, "it is packed in a way that cannot be unpacked here"};
    case ZIP_ER_READ:
    case ZIP_ER_SEEK:
    case ZIP_ER_EOF:
      return {ZipCode::damagedMember, "the archive ends in the middle of it"};
    default:
      return {ZipCode::damagedMember, "it is damaged"};
  }
}

}  // namespace

void ZipArchive::Close::operator()(zip* archive) const {
  zip_discard(archive);
}

void ZipReader::Close::operator()(zip_file* file) const {
  zip_fclose(file);
}

ZipArchive::ZipArchive(const std::string& path) {
  int error = 0;
  archive_.reset(zip_open(path.c_str(), ZIP_RDONLY, &error));
  if (!archive_) {
    throw ZipTrouble{ZipCode::noArchive, openTrouble(error), ZipReach::archive};
  }
  const zip_int64_t count = zip_get_num_entries(archive_.get(), 0);
  if (count > mostMembers) {
    throw ZipTrouble{ZipCode::noArchive, "it has too many members", ZipReach::archive};
  }
  for (zip_int64_t index = 0; index < count; ++index) {
    readMember(static_cast<std::uint64_t>(index));
  }
}

void ZipArchive::readMember(std::uint64_t index) {
  zip_stat_t status;
  zip_stat_init(&status);
  if (zip_stat_index(archive_.get(), index, 0, &status) != 0) {
    throw ZipTrouble{ZipCode::noArchive, "its list of members is damaged", ZipReach::archive};
  }
  ZipMember member{.index = index,
                   .name = status.name == nullptr ? "" : status.name,
                   .size = status.size,
                   .packedSize = status.comp_size,
                   .time = status.mtime,
                   .crc = status.crc,
                   .method = status.comp_method,
                   .isEncrypted = status.encryption_method != ZIP_EM_NONE};
  zip_uint8_t system = 0;
  zip_uint32_t attributes = 0;
  if (zip_file_get_external_attributes(archive_.get(), index, 0, &system, &attributes) == 0) {
    member.isLink = system == ZIP_OPSYS_UNIX && S_ISLNK(attributes >> 16);
  }
  members_.push_back(std::move(member));
}

std::unique_ptr<ZipReader> ZipArchive::open(const ZipMember& member, const std::string& password) const {
  const char* const word = password.empty() ? nullptr : password.c_str();
  zip_file* const file = zip_fopen_index_encrypted(archive_.get(), member.index, 0, word);
  if (file == nullptr) {
    throw memberTrouble(zip_error_code_zip(zip_get_error(archive_.get())));
  }
  return std::make_unique<ZipReader>(file, member.size);
}

bool ZipReader::read(std::string& block) {
  block.resize(blockSize);
  const zip_int64_t count = zip_fread(file_.get(), block.data(), block.size());
  if (count < 0) {
    throw memberTrouble(zip_error_code_zip(zip_file_get_error(file_.get())));
  }
  const auto length = static_cast<std::uint64_t>(count);
  if (length > left_ || (length == 0 && left_ > 0)) {
    throw ZipTrouble{ZipCode::damagedMember, "it is not as long as it says"};
  }
  left_ -= length;
  block.resize(length);
  return length > 0;
}

std::string methodName(int method) {
  return method == ZIP_CM_STORE ? "Stored" : method == ZIP_CM_DEFLATE ? "Deflated" : std::to_string(method);
}

}  // namespace vantrel
