#include "support/BinaryFilesContract.h"
#include "support/FakeUnzipLibrary.h"

namespace vantrel {
namespace {

struct FakeBinaryFilesPeer {
  FakeBinaryFilesPeer() { files.makeFolder("/f"); }
  BinaryFiles& disk() { return binary; }
  std::string folder() const { return "/f"; }
  std::string content(const std::string& path) const { return files.bytes(path); }

  FakeFiles files;
  FakeBinaryFiles binary{files};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, BinaryFilesContract, FakeBinaryFilesPeer);

}  // namespace
}  // namespace vantrel
