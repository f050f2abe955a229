#include "desktop/adapters/CanberraSound.h"

#include <canberra.h>
#include <dlfcn.h>
#include <link.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QFile>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string_view>
#include <vector>

namespace vantrel {
namespace {

constexpr std::chrono::seconds longestSound(10);
constexpr off_t largestFile = 4 << 20;
constexpr int look = 10;  // milliseconds between two looks whether the sound is over

bool isSmallFile(const std::string& path) {
  struct stat file {};
  return ::stat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode) && file.st_size <= largestFile;
}

// A driver of the library has a thread, which the library does not see to its end before it unloads the driver: the
// thread would run on where there is no code any more. So a driver that has been loaded stays.
void keepDriversLoaded() {
  std::vector<std::string> drivers;
  const auto note = [](dl_phdr_info* object, std::size_t, void* list) {
    if (std::string_view(object->dlpi_name).find("libcanberra") != std::string_view::npos) {
      static_cast<std::vector<std::string>*>(list)->emplace_back(object->dlpi_name);
    }
    return 0;
  };
  ::dl_iterate_phdr(note, &drivers);
  for (const std::string& driver : drivers) {
    if (void* const handle = ::dlopen(driver.c_str(), RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE)) {
      ::dlclose(handle);
    }
  }
}

// One sound, played on one thread and perhaps broken off by another.
class Playing {
 public:
  // Comes back when the sound has ended, when it cannot be played and when it is broken off; but a sound server that
  // hangs may hold it for half a minute.
  void run(const std::string& path) {
    ca_context* context = nullptr;
    if (ca_context_create(&context) != CA_SUCCESS) {
      return;
    }
    if (begin(context, path)) {
      keepDriversLoaded();
      std::unique_lock lock(mutex_);
      changed_.wait_for(lock, longestSound, [this] { return isOver_; });
    }
    ca_context_destroy(context);
  }

  // From any thread.
  void end() {
    const std::lock_guard lock(mutex_);
    isOver_ = true;
    changed_.notify_all();
  }

 private:
  // A sound that has a file and no name is not replaced by one of the desktop's theme.
  bool begin(ca_context* context, const std::string& path) {
    ca_proplist* properties = nullptr;
    if (ca_proplist_create(&properties) != CA_SUCCESS) {
      return false;
    }
    ca_proplist_sets(properties, CA_PROP_APPLICATION_NAME, "Vantrel CE");
    ca_proplist_sets(properties, CA_PROP_CANBERRA_CACHE_CONTROL, "never");
    const auto ended = [](ca_context*, std::uint32_t, int, void* playing) { static_cast<Playing*>(playing)->end(); };
    const bool isBegun = ca_proplist_sets(properties, CA_PROP_MEDIA_FILENAME, path.c_str()) == CA_SUCCESS &&
                         ca_context_play_full(context, 0, properties, ended, this) == CA_SUCCESS;
    ca_proplist_destroy(properties);
    return isBegun;
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  bool isOver_ = false;
};

std::string bytes(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

}  // namespace

// Events run in the waits, and one of them may take this object away: only copies are used from there on.
void CanberraSound::PlayWav(const std::string& path) {
  const auto playing = std::make_shared<Playing>();
  if (loop_.ending() || !isSmallFile(path) || !errand_.begin([playing, path] { playing->run(path); })) {
    return;
  }
  Loop& loop = loop_;
  const Errand errand = errand_;
  const std::uint64_t begin = loop.tickCount();
  constexpr auto longest = static_cast<std::uint64_t>(std::chrono::milliseconds(longestSound).count());
  while (errand.isUnderWay() && !loop.ending() && loop.tickCount() - begin < longest) {
    loop.wait(look);
  }
  playing->end();
}

std::string openSlotSound(const std::string& appDir) {
  const std::string own = bytes(QCoreApplication::applicationDirPath());
  for (const std::string& folder : {appDir, own, own + "/../share/vantrel-ce"}) {
    std::string path = folder + "/sounds/open-slot.wav";
    if (isSmallFile(path)) {
      return path;
    }
  }
  return {};
}

}  // namespace vantrel
