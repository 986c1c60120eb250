#include <string>

#include <gtest/gtest.h>

#include "x11/WindowDocument.h"

namespace quillseal::linux {
namespace {

struct Change {
  WindowView before;
  WindowView now;
};

TEST(WindowDocumentTest, StaysTheSameWhileTheDocumentDoes) {
  const Change same[] = {
      // Saved or changed meanwhile.
      {{"*letter.txt - Mousepad"}, {"letter.txt - Mousepad"}},
      {{"letter.txt — Kate"}, {"letter.txt * — Kate"}},
      {{"● main.cpp - Visual Studio Code"}, {"main.cpp - Visual Studio Code"}},
      {{"notes.md • - Sublime Text"}, {"notes.md - Sublime Text"}},
      // Something has arrived, or was read.
      {{"(3) Inbox - Mail"}, {"Inbox - Mail"}},
      {{"(3) Discord | #general"}, {"(14) Discord | #general"}},
      {{"• Discord | #general"}, {"[99+] Discord | #general"}},
      {{" (1)  * Chat"}, {"Chat "}},
      {{"Brief \xFF"}, {"Brief \xFF"}},
      // Parts that were not known before.
      {{"", 7}, {"letter.txt", 7}},
      {{"letter.txt", 0}, {"letter.txt", 7}},
      {{}, {"letter.txt", 7}},
  };
  for (const auto& [before, now] : same)
    EXPECT_TRUE(isSameDocument(documentName(before), documentName(now)))
        << before.title << " | " << now.title;
  EXPECT_TRUE(isSameDocument("", documentName({"letter.txt", 7})));
}

TEST(WindowDocumentTest, DiffersWhenTheDocumentDoes) {
  const Change others[] = {
      {{"letter.txt - Mousepad"}, {"notes.txt - Mousepad"}},
      {{"*letter.txt - Mousepad"}, {"*notes.txt - Mousepad"}},
      {{"letter (2).txt - Mousepad"}, {"letter (3).txt - Mousepad"}},
      {{"Report (2) - Docs"}, {"Report - Docs"}},
      {{"(3) Inbox"}, {"(3) Drafts"}},
      {{"Report"}, {"Report 2"}},
      {{"Report 2"}, {"Report"}},
      {{"(draft) Inbox"}, {"(final) Inbox"}},
      {{"(2026) Taxes"}, {"() Taxes"}},
      {{"Inbox"}, {""}},
      // Another focused field of the same window, or none.
      {{"Mail", 7}, {"Mail", 8}},
      {{"Mail", 7}, {"Mail", 0}},
      {{"", 7}, {"", 8}},
  };
  for (const auto& [before, now] : others)
    EXPECT_FALSE(isSameDocument(documentName(before), documentName(now)))
        << before.title << " | " << now.title;
}

}  // namespace
}  // namespace quillseal::linux
