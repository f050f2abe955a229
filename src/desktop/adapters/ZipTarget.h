// The folder that an archive is unpacked into. All goes by the opened folder, never by its path again, no link in it is
// followed, and nothing in it has its name before it is whole.
#pragma once

#include <cstdint>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "desktop/adapters/ZipTrouble.h"

namespace vantrel {

// An open file or folder; closed with it.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(other.number_) { other.number_ = -1; }
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor();
  void swap(Descriptor& other) noexcept { std::swap(number_, other.number_); }
  int get() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

 private:
  int number_;
};

// A file under a name of its own beside the place where it is to lie; gone with this object unless it was placed. Its
// lock tells other copies of the program that it is no left-over.
class ZipPartFile {
 public:
  // Throws ZipTrouble, as all of it does. `folder` must outlive this.
  explicit ZipPartFile(const Descriptor& folder);
  ZipPartFile(const ZipPartFile&) = delete;
  ZipPartFile& operator=(const ZipPartFile&) = delete;
  ~ZipPartFile();

  void write(std::string_view bytes);
  // Gives it its time and, when it is large, waits until it is on the disk.
  void finish(std::time_t time);

 private:
  friend class ZipTarget;
  bool isAlone();

  const Descriptor& folder_;
  std::string name_;
  Descriptor file_;
  std::int64_t size_ = 0;
  std::int64_t sent_ = 0;  // of that, what the disk was asked to write
  bool isPlaced_ = false;
};

enum class IfThere { keep, replace };

class ZipTarget {
 public:
  using Parts = std::vector<std::string>;

  // What is there under the name of a place, capitals apart.
  struct Found {
    std::string name;
    std::time_t time = 0;
  };

  // Throws ZipTrouble when it is missing or is no folder.
  explicit ZipTarget(const std::string& folder);

  // What a run that was killed has left.
  void removeLeftOvers();
  std::uint64_t freeBytes() const;
  std::optional<Found> find(const Parts& place);
  // With all its parents.
  void makeFolder(const Parts& folder) { open(folder, folder.size(), Missing::make); }
  std::unique_ptr<ZipPartFile> begin() const { return std::make_unique<ZipPartFile>(root_); }
  // Gives the finished file its name, that of `found` when there is one, and makes its folders. False when it was to
  // keep what is there and something is.
  bool place(ZipPartFile& file, const Parts& place, const std::optional<Found>& found, IfThere ifThere);

 private:
  using Names = std::unordered_map<std::string, std::string>;  // by the folded name
  enum class Missing { leave, make };

  Descriptor open(const Parts& parts, std::size_t count, Missing missing);
  Names& namesIn(const std::string& key, const Descriptor& folder);

  Descriptor root_;
  std::unordered_map<std::string, Names> names_;  // of the folders that were looked into, by their folded paths
};

}  // namespace vantrel
