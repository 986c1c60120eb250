#include "Cases.h"
#include "x11/WindowDocument.h"

namespace quillseal::linux {
namespace {

TEST(WindowDocumentTest, TellsDocumentsApart) {
  for (const auto& [title, focus, titleNow, focusNow, isSame] :
       testing::cases<std::string, std::uint32_t, std::string, std::uint32_t, bool>())
    EXPECT_EQ(isSameDocument(documentName({title, focus}), documentName({titleNow, focusNow})),
              isSame)
        << title << " | " << titleNow;
  EXPECT_TRUE(isSameDocument(documentName({"Brief \xFF"}), documentName({"Brief \xFF"})));
  EXPECT_TRUE(isSameDocument("", documentName({"letter.txt", 7})));
}

}  // namespace
}  // namespace quillseal::linux
