#include "export/PageWalk.h"

#include <utility>

#include "core/Text.h"
#include "export/Entities.h"
#include "export/Tags.h"

namespace vantrel {
namespace {

constexpr std::string_view commentMark = "!--";
constexpr std::size_t lineWidth = 75;
constexpr std::size_t longestEntity = 7;  // with its semicolon

constexpr unsigned char code(char character) {
  return static_cast<unsigned char>(character);
}

}  // namespace

std::string PageWalk::text() {
  out_.reserve(page_.size());  // Most pages need less.
  while (at_ < page_.size() && !over_ && !breaks_.ending()) {
    const std::size_t before = at_;
    if (page_[at_] == '<' && !inComment_) {
      takeTag();
    } else if (inBody_) {
      takeText();
    }
    ++at_;
    breaks_.after(at_ - before);
  }
  return std::move(out_);
}

void PageWalk::takeText() {
  const char character = page_[at_];
  if (character == ' ') {
    takeSpace();
  } else if (character == '-') {
    takeDash();
  } else if (character == '&') {
    takeAmpersand();
  } else {
    sawText_ = true;
    if (code(character) > 31) {
      writeVisible(page_.substr(at_, 1));
    } else if (code(character) < 31) {
      takeSpace();
    }
  }
}

// Only here can a line become full, so a long word stays whole. In a comment or a script the space counts, too.
void PageWalk::takeSpace() {
  if (spaceDone_) {
    return;
  }
  if (!isSilent()) {
    out_ += ' ';
  }
  spaceDone_ = true;
  ++col_;
  if (col_ >= lineWidth) {
    writeLineEnd();
  }
}

// Dashes in front of the first text are no more than decoration.
void PageWalk::takeDash() {
  if (!sawText_) {
    return;
  }
  if (inComment_) {
    skipComment();
  } else {
    writeVisible("-");
  }
}

// To the end of the comment, from its first dash on. Blanks inside the closing mark do not matter.
void PageWalk::skipComment() {
  std::string_view mark = "";  // what of "--" stands before the present character
  for (; at_ < page_.size(); ++at_) {
    const char character = page_[at_];
    if (character == '>' && mark == "--") {
      inComment_ = false;
      return;
    }
    if (character == '-') {
      mark = mark.empty() ? "-" : "--";
    } else if (character != ' ') {
      mark = "";
    }
  }
  over_ = true;
}

void PageWalk::takeAmpersand() {
  const std::string_view next = page_.substr(at_ + 1, longestEntity);
  const std::size_t length = next.find_first_of(";&");
  if (length == std::string_view::npos || next[length] == '&') {
    writeVisible("&");
    return;
  }
  at_ += length + 1;
  if (!isSilent()) {
    writeVisible(decodeEntity(next.substr(0, length)));
  }
}

// Also a text that is empty counts as one: what follows it follows something.
void PageWalk::writeVisible(std::string_view text) {
  if (isSilent()) {
    return;
  }
  out_ += text;
  col_ += text.size();
  spaceDone_ = nlDone_ = blankDone_ = false;
}

void PageWalk::writeLineEnd() {
  out_ += "\r\n";
  col_ = 0;
}

void PageWalk::writeBlankLine() {
  if (!blankDone_) {
    writeLineEnd();
    writeLineEnd();
    blankDone_ = true;
  }
}

void PageWalk::takeTag() {
  if (!collectTag() || !lookBehindTag()) {
    over_ = true;
    return;
  }
  if (tag_.starts_with('/')) {
    closeTag(stripBlanks(tag_));
    return;
  }
  openTag();
}

// Goes to the end of the tag. False when the page ends with it or in it.
bool PageWalk::collectTag() {
  const std::size_t start = at_ + 1;
  const bool isComment = page_.substr(start).starts_with(commentMark);
  const std::size_t end = isComment ? start + commentMark.size() - 1 : page_.find('>', start);
  if (end >= page_.size() - 1) {
    return false;
  }
  tag_ = isComment ? commentMark : trimSpaces(page_.substr(start, end - start));
  at_ = end;
  if (!isComment && code(page_[end + 1]) < 32) {
    spaceDone_ = true;
  }
  return true;
}

// White space between two tags is dropped, and so is a line end that leads over to text. False when nothing but white
// space follows.
bool PageWalk::lookBehindTag() {
  const std::size_t last = page_.size() - 1;
  std::size_t next = at_ + 1;
  if (next >= last) {
    return false;
  }
  if (code(page_[next]) > 32) {
    return true;
  }
  while (next < last && code(page_[next]) <= 32) {
    ++next;
  }
  if (next == last) {
    return false;
  }
  spaceDone_ = page_[next] == '<' || page_[next - 1] != ' ';
  return true;
}

void PageWalk::closeTag(std::string_view tag) {
  if (tagStartsWith(tag, "/SCRIPT")) {
    inScript_ = false;
  } else if (sawText_ && tagStartsWith(tag, "/OL")) {
    inOL_ = false;
    olNumber_ = 0;
    writeBlankLine();
  } else if (sawText_ && tagStartsWith(tag, "/UL")) {
    writeBlankLine();
  }
}

}  // namespace vantrel
