#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillseal {

/// A text as a person reads it, for a second screening: without characters that nobody sees, with
/// plain letters for those that look like them, words that are set apart or broken made whole, and
/// without the points that end no sentence. See docs/screening.md.
///
/// Reading takes linear time. What is readable stays as it is, so a reading reads as itself.
class ReadableText {
 public:
  /// `written` is UTF-8 and must outlive the object, which refers to it.
  explicit ReadableText(std::string_view written);

  /// Whether there is nothing to undo: `text` is then the text as it was written.
  [[nodiscard]] bool isAsWritten() const { return isAsWritten_; }

  [[nodiscard]] std::string_view text() const { return isAsWritten_ ? written_ : read_; }

  struct Range {
    std::size_t start = 0;  ///< bytes
    std::size_t end = 0;

    bool operator==(const Range&) const = default;
  };

  /// Where the part `read` of `text()` stands in the text as it was written.
  [[nodiscard]] Range written(Range read) const;

 private:
  /// From `read` on, bytes follow each other as in the written text, or one character stands for
  /// the bytes from `start` to `end`.
  struct Anchor {
    std::size_t read = 0;
    std::size_t start = 0;
    std::size_t end = 0;
    bool isRun = false;
  };

  /// Parts of the written text that come next in the reading: as they are, as one character, and
  /// in the map.
  void copy(Range part);
  void add(char32_t scalar, Range part);
  void goOn(Range part, bool isRun);
  [[nodiscard]] const Anchor& anchorAt(std::size_t read) const;

  std::string_view written_;
  std::string read_;
  std::vector<Anchor> anchors_;
  bool isAsWritten_ = true;
};

}  // namespace quillseal
