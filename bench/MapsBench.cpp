// The installation of a map, beside the tools that everybody has: the download, the unpacking, a mirror's index.

#include <zip.h>

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

#include "SweepBench.h"
#include "desktop/adapters/DiskFiles.h"
#include "desktop/adapters/ZipUnzipLibrary.h"
#include "export/modHTML2Text.h"
#include "maps/cUnzip.h"
#include "sandbox/SandboxWorld.h"

namespace vantrel::bench {
namespace {

constexpr const char* address = "127.41.0.4";
constexpr std::size_t fileSize = 512 << 20;  // bytes
constexpr std::size_t mapSize = 256 << 20;   // bytes
constexpr int runs = 5;
constexpr int pageRuns = 15;

double secondsOf(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

bool hasTool(const char* name) {
  return !QStandardPaths::findExecutable(QString::fromLatin1(name)).isEmpty();
}

// Bytes that shrink to about a half, as a map does.
void writeMap(const std::string& path, std::size_t size) {
  std::ofstream file(path, std::ios::binary);
  std::string block(1 << 20, '\0');
  std::uint64_t state = 1;
  for (std::size_t written = 0; written < size; written += block.size()) {
    for (char& byte : block) {
      state = state * 6364136223846793005U + 1442695040888963407U;
      byte = static_cast<char>((state >> 60) + (state >> 40) % 4 * 16);
    }
    file << block;
  }
}

sandbox::WorldSettings webOnly() {
  sandbox::WorldSettings settings;
  settings.servers = 0;
  settings.masterAddress = settings.webAddress = address;
  settings.masterPort = settings.gamePort = 0;
  settings.webPort = 0;
  settings.mapBytes = 1;
  return settings;
}

void benchDownload(Report& report) {
  report.heading("Download of 512 MB");
  if (!hasTool("curl")) {
    report.exactly("curl is installed", 0, 1);
    return;
  }
  QTemporaryDir folder;
  const std::string source = folder.filePath("source").toStdString();
  const std::string target = folder.filePath("target.zip").toStdString();
  writeMap(source, fileSize);
  sandbox::SandboxWorld world(webOnly());
  world.start();
  world.webFiles().serve("/big.zip", source);
  const std::string url = "http://" + std::string(address) + ":" + std::to_string(world.webPort().value()) + "/big.zip";
  Program program({address, "", ""}, {1, 0, 0}, placesIn(folder));
  startAtOnce(program);
  program.mirror().visible.set(true);
  runEventsUntil([] { return false; }, 300);
  DownLoad& download = program.download();
  download.url = url;
  download.SaveLocation = target;
  std::vector<double> ours;
  std::vector<double> theirs;
  std::vector<double> latencies;
  resetPeakMemory();
  const double before = static_cast<double>(peakMemoryBytes());
  for (int run = 0; run < runs; ++run) {
    std::filesystem::remove(target);
    theirs.push_back(secondsOf([&] {
      QProcess::execute(QStringLiteral("curl"), {QStringLiteral("-s"), QStringLiteral("-o"),
                                                 QString::fromStdString(target), QString::fromStdString(url)});
    }));
    std::filesystem::remove(target);
    Clicker clicker(
        program.window(), [] {}, 20);
    ours.push_back(secondsOf([&] {
      download.GetFileInformation();
      download.StartDownLoad();
    }));
    const std::vector<double> seen = clicker.latencies();
    latencies.insert(latencies.end(), seen.begin(), seen.end());
  }
  report.exactly("bytes", static_cast<double>(std::filesystem::file_size(target)), fileSize);
  report.value("curl", median(theirs), "s");
  report.value("ours, with the window showing progress", median(ours), "s");
  report.target("time over that of curl", median(ours) / median(theirs), "", 1 / 0.7);
  report.target("memory above that before", (static_cast<double>(peakMemoryBytes()) - before) / 1e6, "MB", 20);
  report.target("slowest turn of the event loop", *std::max_element(latencies.begin(), latencies.end()), "ms", 50);
  program.loop().beginEnding();
}

void makeArchive(const std::string& path, const std::string& map) {
  zip_t* const archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
  zip_file_add(archive, "big.map", zip_source_file(archive, map.c_str(), 0, -1), 0);
  zip_close(archive);
}

void benchUnzip(Report& report) {
  report.heading("Unpacking of a map of 256 MB");
  if (!hasTool("unzip")) {
    report.exactly("unzip is installed", 0, 1);
    return;
  }
  QTemporaryDir folder;
  const std::string map = folder.filePath("source").toStdString();
  const std::string archive = folder.filePath("a.zip").toStdString();
  const std::string target = folder.filePath("maps").toStdString();
  writeMap(map, mapSize);
  makeArchive(archive, map);
  std::filesystem::create_directory(target);
  QtLoop loop;
  ZipUnzipLibrary library(loop);
  std::vector<double> ours;
  std::vector<double> theirs;
  std::vector<double> latencies;
  for (int run = 0; run < runs; ++run) {
    std::filesystem::remove(target + "/big.map");
    theirs.push_back(secondsOf([&] {
      QProcess::execute(QStringLiteral("unzip"), {QStringLiteral("-q"), QString::fromStdString(archive),
                                                  QStringLiteral("-d"), QString::fromStdString(target)});
    }));
    std::filesystem::remove(target + "/big.map");
    Clicker clicker(
        loop, [] {}, 20);
    ours.push_back(secondsOf([&] {
      cUnzip zip(library);
      zip.setZipFile(archive);
      zip.UnzipFolder = target;
      zip.Unzip();
    }));
    const std::vector<double> seen = clicker.latencies();
    latencies.insert(latencies.end(), seen.begin(), seen.end());
  }
  report.exactly("bytes", static_cast<double>(std::filesystem::file_size(target + "/big.map")), mapSize);
  report.value("unzip", median(theirs), "s");
  report.target("time over that of unzip", median(ours) / median(theirs), "", 1);
  report.value("slowest turn of the event loop", *std::max_element(latencies.begin(), latencies.end()), "ms");
}

std::string indexPage(std::size_t size) {
  std::string page = "<html><head><title>Index of /maps/</title></head><body><h1>Index</h1><table>";
  for (int i = 0; page.size() < size; ++i) {
    const std::string name = "map_" + std::to_string(i) + ".zip";
    page += "<tr><td valign=\"top\">&nbsp;</td><td><a href=\"" + name + "\">" + name +
            "</a></td><td align=\"right\">2024-01-01 12:00  </td><td>1.2M</td></tr>\n";
  }
  return page + "</table></body></html>\n";
}

// Each row ends where the page ends, so that whoever measures one row after the other reads the page again for each.
std::string hostilePage(std::size_t size) {
  std::string page = "<body>x";
  while (page.size() < size) {
    page += "<tr><td>&";
  }
  return page + "</td></tr>..";
}

// The least of some runs, taken in turns: whatever else the machine does meanwhile meets both.
void benchPage(Report& report, const std::string& name, const std::string& page, const std::string& fourTimes) {
  QtLoop loop;
  DiskFiles files;
  modHTML2Text reduction(loop, files);
  double once = 1e9;
  double four = 1e9;
  const auto measure = [&reduction](std::string text, double& least) {
    const double before = threadCpuSeconds();
    reduction.HtmlToText(std::move(text), "");
    least = std::min(least, threadCpuSeconds() - before);
  };
  for (int run = 0; run < pageRuns; ++run) {
    measure(page, once);
    measure(fourTimes, four);
  }
  report.target("CPU of " + name, once, "s", 1);
  report.target("that of four times as much over it", four / once, "", 4.4);
}

void benchPages(Report& report) {
  constexpr std::size_t size = 5'000'000;
  report.heading("A mirror's index of 5 MB as text");
  benchPage(report, "an index", indexPage(size), indexPage(4 * size));
  benchPage(report, "a hostile page", hostilePage(size), hostilePage(4 * size));
}

}  // namespace

void benchMaps(Report& report) {
  benchPages(report);
  benchUnzip(report);
  benchDownload(report);
}

}  // namespace vantrel::bench
