#include "Quillseal/ReadableText.h"

#include <algorithm>
#include <array>
#include <limits>

#include "Quillseal/ReadingSteps.h"
#include "Quillseal/ReadingTables.h"
#include "Quillseal/UnicodeText.h"
#include "Quillseal/Utf8.h"

namespace quillseal {
namespace {

using reading::Cell;
using reading::Cells;
using reading::Contents;
using reading::Reading;
using Kind = Reading::Kind;

constexpr char32_t softHyphen = U'\u00AD';

// ---- Plain texts

enum class Byte : std::uint8_t { letter, digit, blank, lineBreak, point, hyphen, letterSign, other, odd };

constexpr std::array<Byte, 256> byteClasses = [] {
  std::array<Byte, 256> classes{};
  for (std::size_t i = 0; i < classes.size(); ++i) {
    const auto c = static_cast<char>(i);
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    classes[i] = isLetter                                          ? Byte::letter
                 : c >= '0' && c <= '9'                            ? Byte::digit
                 : c == ' ' || c == '\t'                           ? Byte::blank
                 : c == '\n' || c == '\r'                          ? Byte::lineBreak
                 : c == '.'                                        ? Byte::point
                 : c == '-' || c == '_' || c == '*'                ? Byte::hyphen
                 : c == '@' || c == '$' || c == '|' || c == '+' || c == '!' ? Byte::letterSign
                 : i > ' ' && i < 0x7F && c != '<' && c != '>' && c != '='      ? Byte::other
                                                                   : Byte::odd;
  }
  return classes;
}();

/// Decides quickly that an ordinary text of ASCII has nothing to undo; may say no for some of them.
class PlainText {
 public:
  explicit PlainText(std::string_view text) : text_(text) {}

  [[nodiscard]] bool isCertain() {
    while (position_ < text_.size()) {
      const Byte byte = at(position_);
      if (byte != Byte::letter && byte != Byte::blank) {
        if (words_.mayHaveMovedBlanks()) return false;
        words_ = {};
      }
      switch (byte) {
        case Byte::letter:
          if (!passesWord()) return false;
          break;
        case Byte::digit:
          if (!passesNumber()) return false;
          break;
        case Byte::point:
          // Behind a word or a number it is looked at with them.
          if (position_ + 1 < text_.size() && !isSpace(at(position_ + 1))) return false;
          ++position_;
          break;
        case Byte::odd:
          return false;
        default:
          ++position_;
      }
    }
    return !words_.mayHaveMovedBlanks();
  }

 private:
  [[nodiscard]] Byte at(std::size_t position) const {
    return byteClasses[static_cast<unsigned char>(text_[position])];
  }
  [[nodiscard]] Byte atOrBlank(std::size_t position) const {
    return position < text_.size() ? at(position) : Byte::blank;
  }
  static bool isSpace(Byte byte) { return byte == Byte::blank || byte == Byte::lineBreak; }

  bool passesWord() {
    const std::size_t start = position_;
    while (position_ < text_.size() && at(position_) == Byte::letter)
      ++position_;
    const std::size_t length = position_ - start;
    const bool isFirst = start == 0;
    const Byte before = isFirst ? Byte::blank : at(start - 1);
    const Byte after = atOrBlank(position_);
    if (before == Byte::letterSign || after == Byte::digit) return false;
    if (after == Byte::letterSign && atOrBlank(position_ + 1) == Byte::letter) return false;
    const bool isSingle = length == 1;
    if (isSingle && wasSingle_ && start - endOfWord_ <= 3) return false;
    wasSingle_ = isSingle;
    endOfWord_ = position_;
    const bool isKnown = countWord(start, length);
    if (before == Byte::hyphen && !(isKnown && wasKnown_)) return false;
    wasKnown_ = isKnown;
    if (after == Byte::hyphen && !endsLineProperly(position_ + 1)) return false;
    return after != Byte::point || passesPoint(start, length);
  }

  /// The line must not end behind a hyphen.
  [[nodiscard]] bool endsLineProperly(std::size_t position) const {
    while (position < text_.size() && at(position) == Byte::blank)
      ++position;
    return position >= text_.size() || at(position) != Byte::lineBreak;
  }

  bool countWord(std::size_t start, std::size_t length) {
    if (length > reading::longestWord) {
      words_.add(length, false, false);
      return false;
    }
    std::array<char, reading::longestWord> letters{};
    for (std::size_t i = 0; i < length; ++i)
      letters[i] = static_cast<char>(text_[start + i] | 0x20);
    const bool isKnown = reading::isWord(tables_, {letters.data(), length});
    const bool isName = length > 1 && text_[start] < 'a' && text_[start + 1] >= 'a';
    words_.add(length, isKnown, isName);
    return isKnown;
  }

  [[nodiscard]] bool passesPoint(std::size_t start, std::size_t length) {
    const Byte next = atOrBlank(position_ + 1);
    if (!isSpace(next) && text_[position_ + 1] != '"') return false;
    if (reading::mayBeAbbreviation(text_.data() + start, length)) return false;
    ++position_;
    return true;
  }

  bool passesNumber() {
    while (position_ < text_.size() && at(position_) == Byte::digit)
      ++position_;
    const Byte after = atOrBlank(position_);
    return after != Byte::letter && after != Byte::letterSign &&
           (after != Byte::point || position_ + 1 == text_.size());
  }

  std::string_view text_;
  const reading::Tables& tables_ = reading::tables();
  std::size_t position_ = 0;
  std::size_t endOfWord_ = 0;
  reading::KnownWords words_;  ///< with nothing but blanks between them
  bool wasSingle_ = false;
  bool wasKnown_ = false;
};

// ---- From bytes to cells and back

/// Code points with what they always read as.
class Decoder {
 public:
  Decoder(std::string_view text, Cells& cells, Contents& contents)
      : text_(text), cells_(cells), contents_(contents) {
    for (std::size_t c = 0; c < ascii_.size(); ++c)
      ascii_[c] = tables_.of(static_cast<char32_t>(c)).kind;
  }

  /// Whether any code point reads as something else.
  bool decode() {
    cells_.reserve(text_.size());
    bool isChanged = false;
    for (std::size_t position = 0; position < text_.size();) {
      const std::size_t start = position;
      const char32_t scalar = unicode::decodeNext(text_, position);
      const Reading& reading = tables_.of(scalar);
      const Kind kind = scalar < ascii_.size() ? ascii_[scalar] : reading.kind;
      note(kind, scalar);
      if (kind == Kind::same) {
        isChanged = true;
        for (const char letter : reading.view())
          add(static_cast<char32_t>(letter), start, position,
              ascii_[static_cast<unsigned char>(letter)]);
      } else if (kind == Kind::invisible) {
        isChanged = true;
        // A soft hyphen is drawn where the line ends.
        const bool isDrawn = scalar == softHyphen && position < text_.size() &&
                             (text_[position] == '\n' || text_[position] == '\r');
        if (isDrawn) add(U'-', start, position, Kind::sign);
      } else {
        add(scalar, start, position, kind);
      }
    }
    return isChanged;
  }

 private:
  void note(Kind kind, char32_t scalar) {
    switch (kind) {
      case Kind::accented:
      case Kind::twin:
      case Kind::mark:
        contents_.hasLettersBeyondAscii = true;
        break;
      case Kind::wideSign:
      case Kind::pictograph:
        contents_.hasFormsByNeighbour = true;
        break;
      default:
        if (scalar == U'<' || scalar == U'>') contents_.hasFormsByNeighbour = true;
    }
  }

  void add(char32_t scalar, std::size_t start, std::size_t end, Kind kind) {
    cells_.push_back({.scalar = scalar,
                      .start = static_cast<std::uint32_t>(start),
                      .end = static_cast<std::uint32_t>(end),
                      .kind = kind});
  }

  std::string_view text_;
  Cells& cells_;
  Contents& contents_;
  const reading::Tables& tables_ = reading::tables();
  std::array<Kind, 0x80> ascii_{};
};

}  // namespace

ReadableText::ReadableText(std::string_view written) : written_(written) {
  if (written.size() > std::numeric_limits<std::uint32_t>::max()) return;
  if (PlainText(written).isCertain()) return;

  Cells cells;
  Contents contents;
  bool isChanged = Decoder(written, cells, contents).decode();
  isChanged = reading::undoDisguises(cells, contents) || isChanged;
  if (!isChanged) return;

  isAsWritten_ = false;
  read_.reserve(written.size());
  for (const Cell& cell : cells) {
    const std::size_t start = read_.size();
    unicode::append(read_, cell.scalar);
    const std::string_view read = std::string_view(read_).substr(start);
    const bool isCopy = read == written.substr(cell.start, cell.end - cell.start);
    const bool goesOn = isCopy && !anchors_.empty() && anchors_.back().isRun &&
                        cell.start - anchors_.back().start == start - anchors_.back().read;
    if (!goesOn)
      anchors_.push_back({.read = start, .start = cell.start, .end = cell.end, .isRun = isCopy});
  }
}

const ReadableText::Anchor& ReadableText::anchorAt(std::size_t read) const {
  const auto behind = std::upper_bound(
      anchors_.begin(), anchors_.end(), read,
      [](std::size_t position, const Anchor& anchor) { return position < anchor.read; });
  return *std::prev(behind);
}

ReadableText::Range ReadableText::written(Range read) const {
  if (isAsWritten_) return read;
  if (anchors_.empty()) return {.start = 0, .end = written_.size()};
  if (read.start >= read_.size()) return {.start = written_.size(), .end = written_.size()};
  const Anchor& first = anchorAt(read.start);
  const std::size_t start = first.isRun ? first.start + (read.start - first.read) : first.start;
  if (read.end <= read.start) return {.start = start, .end = start};
  const Anchor& last = anchorAt(read.end - 1);
  const std::size_t end = last.isRun ? last.start + (read.end - last.read) : last.end;
  return {.start = start, .end = std::max(start, end)};
}

}  // namespace quillseal
