// Large files and archives on the disk in memory. An archive is a text: a line for each member, "name=content".
#pragma once

#include <memory>
#include <string>

#include "core/Text.h"
#include "platform/BinaryFiles.h"
#include "platform/Failure.h"
#include "platform/UnzipLibrary.h"
#include "support/FakeFiles.h"

namespace vantrel {

class FakeBinaryFiles : public BinaryFiles {
 public:
  explicit FakeBinaryFiles(FakeFiles& files) : files_(files) {}

  std::unique_ptr<BinaryFile> openForBinary(const std::string& path, std::uint64_t position) override {
    const std::string before = files_.bytes(path);
    files_.replace(path, before);
    return std::make_unique<Handle>(files_, path, before, position);
  }
  bool makeSureDirectoryPathExists(const std::string& folder) override {
    files_.makeFolder(folder.substr(0, folder.find_last_not_of(pathSeparator) + 1));
    return true;
  }

 private:
  struct Handle : BinaryFile {
    Handle(FakeFiles& f, std::string p, std::string b, std::uint64_t at)
        : files(f), path(std::move(p)), bytes(std::move(b)), place(at) {}
    void write(std::string_view more) override {
      bytes.replace(std::min(place, bytes.size()), more.size(), more);
      place += more.size();
      files.replace(path, bytes);
    }
    void close() override {}

    FakeFiles& files;
    std::string path;
    std::string bytes;
    std::size_t place;
  };

  FakeFiles& files_;
};

struct FakeUnzipLibrary : UnzipLibrary {
  explicit FakeUnzipLibrary(FakeFiles& f) : files(f) {}

  UnzipResult unzip(const std::vector<std::string>& include, const std::vector<std::string>& /*exclude*/,
                    const UnzipOptions& options, const UnzipCallbacks& callbacks) override {
    asked = options;
    included = include;
    if (!problem.empty() || !files.stamp(options.zipFile)) {
      return {2, problem.empty() ? "There is no archive." : problem};
    }
    for (const std::string& member : split(files.bytes(options.zipFile), '\n')) {
      const std::size_t end = member.find('=');
      if (end == std::string::npos) {
        return {2, "It is no archive."};
      }
      const std::string name = member.substr(0, end);
      if (options.list) {
        UnzipMember row;
        row.name = name;
        row.size = 1000;
        row.ratio = 40;
        row.flags = 64;
        callbacks.message(row);
      } else {
        callbacks.print("x/" + name);
        const std::string path = options.unzipFolder + pathSeparator + name;
        if (!files.stamp(path)) {
          files.replace(path, member.substr(end + 1));
        }
      }
    }
    return {};
  }
  UnzipVersion version() const override { return {1, 2, 3, "fake"}; }

  FakeFiles& files;
  UnzipOptions asked;
  std::vector<std::string> included;
  std::string problem;
};

}  // namespace vantrel
