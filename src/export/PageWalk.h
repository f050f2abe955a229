// One walk over the characters of a page, and the text that it leaves behind.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "export/EventBreaks.h"
#include "export/RowMeasure.h"

namespace vantrel {

class PageWalk {
 public:
  // All of it must outlive this.
  PageWalk(std::string_view page, Loop& loop) : page_(page), breaks_(loop), rows_(page, breaks_) {}

  // To be called once. Many a page is cut short on purpose: an unfinished tag, comment or row ends the text.
  std::string text();

 private:
  enum class Match { start, whole, named };
  struct TagRule {
    std::string_view name;
    Match match;
    void (PageWalk::*act)();
    bool isFor(std::string_view tag) const;
  };
  static const TagRule tagRules[];

  // Texts.
  bool isSilent() const { return inComment_ || inScript_; }
  void takeText();
  void takeDash();
  void takeAmpersand();
  void takeSpace();
  void skipComment();
  void writeVisible(std::string_view text);
  void writeLineEnd();
  void writeBlankLine();

  // Tags.
  void takeTag();
  bool collectTag();
  bool lookBehindTag();
  void closeTag(std::string_view tag);
  void openTag();
  void takeTitle();
  void beginBody();
  void beginParagraph();
  void beginRow();
  void beginCell();
  void breakLine();
  void beginOption();
  void beginScript();
  void beginComment();
  void beginOrderedList();
  void beginList();
  void beginItem();

  std::string_view page_;
  EventBreaks breaks_;
  RowMeasure rows_;
  std::size_t at_ = 0;
  std::string_view tag_;
  std::string out_;
  bool over_ = false;

  bool inBody_ = false;
  bool inComment_ = false;
  bool inScript_ = false;
  bool sawText_ = false;    // in the body, also where nothing is written
  bool spaceDone_ = false;  // further white space is dropped
  bool nlDone_ = false;     // a line end was just written
  bool blankDone_ = false;  // a blank line was just written
  std::size_t col_ = 0;
  bool inOL_ = false;
  std::size_t olNumber_ = 0;
  bool shortRow_ = false;  // its cells share one line
  bool cellSeen_ = false;
};

}  // namespace vantrel
