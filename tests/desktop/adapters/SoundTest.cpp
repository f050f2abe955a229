// On a machine without sound, as the test makes it one, and with files that are no sounds, playing is over at once.
#include "desktop/adapters/CanberraSound.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "desktop/adapters/QtLoop.h"

namespace vantrel {
namespace {

TEST(SoundTest, what_cannot_be_heard_is_over_at_once) {
  qputenv("PULSE_SERVER", "unix:/nonexistent");
  qputenv("ALSA_CONFIG_PATH", "/nonexistent");
  const QTemporaryDir folder;
  const auto make = [&](const QString& name, const QByteArray& content) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    return QFile::encodeName(file.fileName()).toStdString();
  };
  QtLoop loop;
  CanberraSound sound(loop);
  const std::string chime = openSlotSound(folder.path().toStdString());
  EXPECT_NE(chime, "");
  const std::string none = folder.path().toStdString();
  for (const std::string& path :
       {none, none + "/none.wav", make("empty.wav", ""), make("broken.wav", "RIFF\xff\xff\xff\xffWAVEfmt "), chime}) {
    const std::uint64_t begin = loop.tickCount();
    sound.PlayWav(path);
    EXPECT_LT(loop.tickCount() - begin, 1000u) << path;
  }
}

}  // namespace
}  // namespace vantrel
