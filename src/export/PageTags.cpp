// What an opening tag does.
#include <algorithm>
#include <iterator>

#include "export/PageWalk.h"
#include "export/Tags.h"

namespace vantrel {
namespace {

constexpr std::string_view cellGap = "   ";
constexpr std::string_view bullet = "\x95 ";
constexpr std::size_t itemMarkWidth = 2;  // a number counts like a bullet, however long it is

}  // namespace

// No tag answers to two of them.
const PageWalk::TagRule PageWalk::tagRules[] = {
    {"TITLE", Match::start, &PageWalk::takeTitle},    {"BODY", Match::start, &PageWalk::beginBody},
    {"P", Match::named, &PageWalk::beginParagraph},   {"TR", Match::named, &PageWalk::beginRow},
    {"TD", Match::named, &PageWalk::beginCell},       {"TH", Match::named, &PageWalk::beginCell},
    {"BR", Match::whole, &PageWalk::breakLine},       {"TABLE", Match::start, &PageWalk::breakLine},
    {"OPTION", Match::named, &PageWalk::beginOption}, {"SCRIPT", Match::named, &PageWalk::beginScript},
    {"!--", Match::start, &PageWalk::beginComment},   {"OL", Match::named, &PageWalk::beginOrderedList},
    {"UL", Match::named, &PageWalk::beginList},       {"LI", Match::named, &PageWalk::beginItem},
};

bool PageWalk::TagRule::isFor(std::string_view tag) const {
  switch (match) {
    case Match::start:
      return tagStartsWith(tag, name);
    case Match::whole:
      return tagIs(tag, name);
    case Match::named:
      return tagIsNamed(tag, name);
  }
  return false;
}

void PageWalk::openTag() {
  const auto* const rule =
      std::find_if(std::begin(tagRules), std::end(tagRules), [this](const TagRule& each) { return each.isFor(tag_); });
  if (rule != std::end(tagRules)) {
    (this->*rule->act)();
  }
}

// The title is text also in front of the body.
void PageWalk::takeTitle() {
  const std::size_t start = at_ + 1;
  const std::size_t end = std::min(page_.find('<', start), page_.size() - 1);
  out_ += page_.substr(start, end - start);
  at_ = end - 1;
  if (!inScript_) {
    out_ += "\r\n\r\n";
  }
  col_ = 0;
  blankDone_ = true;
}

void PageWalk::beginBody() {
  inBody_ = inBody_ || !inScript_;
}

void PageWalk::beginParagraph() {
  if (!inScript_ && sawText_) {
    writeBlankLine();
  }
}

void PageWalk::beginRow() {
  if (inScript_) {
    return;
  }
  const RowLength length = rows_.lengthBehind(at_);
  if (length == RowLength::unfinished) {
    over_ = true;
    return;
  }
  shortRow_ = length == RowLength::oneLine;
  writeLineEnd();
  nlDone_ = true;
  cellSeen_ = false;
}

// The column is left as it is.
void PageWalk::beginCell() {
  if (!shortRow_) {
    out_ += "\r\n";
    nlDone_ = true;
    return;
  }
  if (cellSeen_) {
    out_ += cellGap;
  }
  cellSeen_ = true;
}

void PageWalk::breakLine() {
  if (sawText_ && !nlDone_) {
    writeLineEnd();
    nlDone_ = true;
  }
}

void PageWalk::beginOption() {
  writeLineEnd();
  out_ += '\t';
}

void PageWalk::beginScript() {
  inScript_ = true;
}

// In front of the body a comment needs no care, for no text counts there.
void PageWalk::beginComment() {
  inComment_ = inBody_;
}

void PageWalk::beginOrderedList() {
  inOL_ = true;
  beginList();
}

void PageWalk::beginList() {
  writeLineEnd();
  writeLineEnd();
}

void PageWalk::beginItem() {
  writeLineEnd();
  if (inOL_) {
    ++olNumber_;
    out_ += std::to_string(olNumber_) + ". ";
  } else {
    out_ += bullet;
  }
  col_ += itemMarkWidth;
}

}  // namespace vantrel
