#include "sandbox/IndexPages.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace vantrel::sandbox {
namespace {

// The characters beside letters and digits that the servers leave as they are in a link, and the digits of the others.
constexpr std::string_view kPlainForNginx = "-._~";
constexpr std::string_view kPlainForApache = "$-_.+!*'(),:@&=/~";
constexpr const char* kCapitalDigits = "0123456789ABCDEF";
constexpr const char* kSmallDigits = "0123456789abcdef";
constexpr std::size_t kNginxNameWidth = 50;
constexpr std::size_t kApacheNameWidth = 23;

bool isLetterOrDigit(char character) {
  return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
         (character >= 'a' && character <= 'z');
}

std::string escapedLink(const std::string& text, std::string_view plain, const char* digits) {
  std::string result;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (isLetterOrDigit(character) || plain.find(character) != std::string_view::npos) {
      result += character;
    } else {
      result += {'%', digits[byte >> 4], digits[byte & 15]};
    }
  }
  return result;
}

std::string timeText(std::time_t time, const char* format) {
  std::tm parts{};
  gmtime_r(&time, &parts);
  std::array<char, 64> text{};
  return {text.data(), std::strftime(text.data(), text.size(), format, &parts)};
}

std::string rightAligned(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + text;
}

std::string withSlash(const WebEntry& entry) {
  return entry.name + (entry.isFolder ? "/" : "");
}

std::string parentOf(const std::string& path) {
  return path.substr(0, path.find_last_of('/', path.size() - 2) + 1);
}

std::string nginxLine(const WebEntry& entry) {
  const std::string link = escapedLink(entry.name, kPlainForNginx, kCapitalDigits) + (entry.isFolder ? "/" : "");
  std::string name = entry.name.substr(0, kNginxNameWidth - 3);
  std::string end = "..&gt;</a>";
  if (entry.name.size() <= kNginxNameWidth) {
    name = withSlash(entry).substr(0, kNginxNameWidth);
    end = "</a>" + std::string(kNginxNameWidth - name.size(), ' ');
  }
  return "<a href=\"" + link + "\">" + escapedHtml(name) + end + " " + timeText(entry.changed, "%d-%b-%Y %H:%M ") +
         rightAligned(entry.isFolder ? "-" : std::to_string(entry.size), 19) + "\r\n";
}

std::string nginxPage(const std::string& path, const std::vector<WebEntry>& entries) {
  const std::string title = "Index of " + escapedHtml(path);
  std::string html = "<html>\r\n<head><title>" + title + "</title></head>\r\n<body>\r\n<h1>" + title +
                     "</h1><hr><pre><a href=\"../\">../</a>\r\n";
  for (const WebEntry& entry : entries) {
    html += nginxLine(entry);
  }
  return html + "</pre><hr></body>\r\n</html>\r\n";
}

// A size in four characters, such as "973K", "1.2M" or " 15M".
std::string apacheSize(std::uint64_t size) {
  std::array<char, 32> text{};
  if (size < 973) {
    std::snprintf(text.data(), text.size(), "%3d ", static_cast<int>(size));
    return text.data();
  }
  const char* unit = "KMGTPE";
  std::uint64_t rest = 0;
  for (rest = size & 1023, size >>= 10; size >= 973; size >>= 10, ++unit) {
    rest = size & 1023;
  }
  if (size < 9 || (size == 9 && rest < 973)) {
    const std::uint64_t tenths = (rest * 5 + 256) / 512;
    std::snprintf(text.data(), text.size(), "%d.%d%c", static_cast<int>(size + tenths / 10),
                  static_cast<int>(tenths % 10), *unit);
  } else {
    std::snprintf(text.data(), text.size(), "%3d%c", static_cast<int>(size + (rest >= 512 ? 1 : 0)), *unit);
  }
  return text.data();
}

struct ApacheIcon {
  const char* file;
  const char* text;
};

ApacheIcon iconOf(const WebEntry& entry) {
  if (entry.isFolder) {
    return {"folder", "[DIR]"};
  }
  return entry.name.ends_with(".zip") ? ApacheIcon{"compressed", "[   ]"} : ApacheIcon{"unknown", "[   ]"};
}

std::string apacheTop(const std::string& path) {
  const std::string title = "Index of " + escapedHtml(path.size() > 1 ? path.substr(0, path.size() - 1) : path);
  return "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 3.2 Final//EN\">\n<html>\n <head>\n  <title>" + title +
         "</title>\n </head>\n <body>\n<h1>" + title + "</h1>\n";
}

std::string apacheEnd(const Endpoint& server) {
  return "<address>Apache/2.4.57 (Debian) Server at " + server.ip() + " Port " + std::to_string(server.port) +
         "</address>\n</body></html>\n";
}

std::string apacheLink(const WebEntry& entry) {
  return "<a href=\"" + escapedHtml(escapedLink(withSlash(entry), kPlainForApache, kSmallDigits)) + "\">";
}

std::string apacheTable(const std::string& path, const std::vector<WebEntry>& entries, const Endpoint& server) {
  constexpr const char* rule = "   <tr><th colspan=\"5\"><hr></th></tr>\n";
  std::string html =
      apacheTop(path) +
      "  <table>\n   <tr><th valign=\"top\"><img src=\"/icons/blank.gif\" alt=\"[ICO]\"></th>"
      "<th><a href=\"?C=N;O=D\">Name</a></th><th><a href=\"?C=M;O=A\">Last modified</a></th>"
      "<th><a href=\"?C=S;O=A\">Size</a></th><th><a href=\"?C=D;O=A\">Description</a></th></tr>\n" +
      rule + "<tr><td valign=\"top\"><img src=\"/icons/back.gif\" alt=\"[PARENTDIR]\"></td><td><a href=\"" +
      parentOf(path) + "\">Parent Directory</a></td><td>&nbsp;</td><td align=\"right\">  - </td><td>&nbsp;</td></tr>\n";
  for (const WebEntry& entry : entries) {
    const ApacheIcon icon = iconOf(entry);
    html += std::string("<tr><td valign=\"top\"><img src=\"/icons/") + icon.file + ".gif\" alt=\"" + icon.text +
            "\"></td><td>" + apacheLink(entry) + escapedHtml(withSlash(entry)) + "</a></td><td align=\"right\">" +
            timeText(entry.changed, "%Y-%m-%d %H:%M  ") + "</td><td align=\"right\">" +
            (entry.isFolder ? "  - " : apacheSize(entry.size)) + "</td><td>&nbsp;</td></tr>\n";
  }
  return html + rule + "</table>\n" + apacheEnd(server);
}

std::string apacheLines(const std::string& path, const std::vector<WebEntry>& entries, const Endpoint& server) {
  std::string html = apacheTop(path) +
                     "<pre><img src=\"/icons/blank.gif\" alt=\"Icon \"> <a href=\"?C=N;O=D\">Name</a>" +
                     std::string(kApacheNameWidth - 4, ' ') +
                     " <a href=\"?C=M;O=A\">Last modified</a>      <a href=\"?C=S;O=A\">Size</a>  "
                     "<a href=\"?C=D;O=A\">Description</a><hr><img src=\"/icons/back.gif\" alt=\"[PARENTDIR]\"> "
                     "<a href=\"" +
                     parentOf(path) + "\">Parent Directory</a>" + std::string(kApacheNameWidth - 16, ' ') +
                     "                     -   \n";
  for (const WebEntry& entry : entries) {
    const ApacheIcon icon = iconOf(entry);
    std::string name = withSlash(entry);
    if (name.size() > kApacheNameWidth) {
      name = name.substr(0, kApacheNameWidth - 3) + "..>";
    }
    html += std::string("<img src=\"/icons/") + icon.file + ".gif\" alt=\"" + icon.text + "\"> " + apacheLink(entry) +
            escapedHtml(name) + "</a>" + std::string(kApacheNameWidth - name.size(), ' ') + " " +
            timeText(entry.changed, "%Y-%m-%d %H:%M  ") + (entry.isFolder ? "  - " : apacheSize(entry.size)) + "  \n";
  }
  return html + "<hr></pre>\n" + apacheEnd(server);
}

// Kilobytes at least, with one decimal: "123.4K".
std::string lighttpdSize(std::uint64_t size) {
  const char* unit = "KMGTPE";
  std::uint64_t tenths = size * 10 / 1024;
  for (; tenths > 10 * 1023; ++unit) {
    tenths /= 1024;
  }
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + *unit;
}

std::string lighttpdLine(const WebEntry& entry) {
  const std::string link = escapedLink(entry.name, kPlainForNginx, kCapitalDigits);
  const std::string cells =
      "</td><td class=\"m\">" + timeText(entry.changed, "%Y-%b-%d %H:%M:%S") + "</td><td class=\"s\">";
  const std::string name = escapedHtml(entry.name) + "</a>";
  if (entry.isFolder) {
    return "<tr class=\"d\"><td class=\"n\"><a href=\"" + link + "/\">" + name + "/" + cells +
           "- &nbsp;</td><td class=\"t\">Directory</td></tr>\n";
  }
  const char* type = entry.name.ends_with(".zip") ? "application/zip" : "application/octet-stream";
  return "<tr><td class=\"n\"><a href=\"" + link + "\">" + name + cells + lighttpdSize(entry.size) +
         "</td><td class=\"t\">" + type + "</td></tr>\n";
}

std::string lighttpdPage(const std::string& path, const std::vector<WebEntry>& entries) {
  const std::string title = "Index of " + escapedHtml(path);
  std::string html = "<!DOCTYPE html>\n<html>\n<head>\n<title>" + title +
                     "</title>\n<style type=\"text/css\">\na, a:active {text-decoration: none; color: blue;}\n"
                     "td {font: 90% monospace;}\n</style>\n</head>\n<body>\n<h2>" +
                     title +
                     "</h2>\n<div class=\"list\">\n<table summary=\"Directory Listing\" cellpadding=\"0\" "
                     "cellspacing=\"0\">\n<thead><tr><th class=\"n\">Name</th><th class=\"m\">Last Modified</th>"
                     "<th class=\"s\">Size</th><th class=\"t\">Type</th></tr></thead>\n<tbody>\n"
                     "<tr class=\"d\"><td class=\"n\"><a href=\"../\">..</a>/</td><td class=\"m\">&nbsp;</td>"
                     "<td class=\"s\">- &nbsp;</td><td class=\"t\">Directory</td></tr>\n";
  for (const WebEntry& entry : entries) {
    html += lighttpdLine(entry);
  }
  return html + "</tbody>\n</table>\n</div>\n<div class=\"foot\">lighttpd/1.4.69</div>\n</body>\n</html>\n";
}

}  // namespace

std::string escapedHtml(const std::string& text) {
  std::string result;
  for (const char character : text) {
    switch (character) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      default:
        result += character;
    }
  }
  return result;
}

IndexPage indexPage(const std::string& path, const std::vector<WebEntry>& entries, const Endpoint& server) {
  if (path.starts_with("/apache/")) {
    return {apacheTable(path, entries, server), "text/html;charset=UTF-8"};
  }
  if (path.starts_with("/apache-pre/")) {
    return {apacheLines(path, entries, server), "text/html;charset=UTF-8"};
  }
  if (path.starts_with("/lighttpd/")) {
    return {lighttpdPage(path, entries), "text/html; charset=utf-8"};
  }
  return {nginxPage(path, entries), "text/html"};
}

}  // namespace vantrel::sandbox
