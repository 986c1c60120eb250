#include "core/reading/ReadableText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>

#include "core/reading/ReadingSteps.h"
#include "core/reading/ReadingTables.h"
#include "core/text/UnicodeText.h"
#include "core/text/Utf8.h"

namespace quillseal {
namespace {

using reading::Cell;
using reading::Cells;
using reading::Contents;
using reading::Reading;
using Kind = Reading::Kind;

constexpr char32_t softHyphen = U'\u00AD';

// ---- Plain texts

enum class Byte : std::uint8_t {
  letter,
  digit,
  blank,
  lineBreak,
  point,
  hyphen,
  letterSign,
  other,
  odd
};

constexpr Byte classOf(char c) {
  if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) return Byte::letter;
  if (c >= '0' && c <= '9') return Byte::digit;
  switch (c) {
    case ' ':
    case '\t':
      return Byte::blank;
    case '\n':
    case '\r':
      return Byte::lineBreak;
    case '.':
      return Byte::point;
    case '-':
    case '_':
    case '*':
      return Byte::hyphen;
    case '@':
    case '$':
    case '|':
    case '+':
    case '!':
      return Byte::letterSign;
    case '<':
    case '>':
    case '=':
      return Byte::odd;
    default:
      return c > ' ' && c < 0x7F ? Byte::other : Byte::odd;
  }
}

constexpr std::array<Byte, 256> classesOfBytes() {
  std::array<Byte, 256> classes{};
  for (std::size_t i = 0; i < classes.size(); ++i)
    classes[i] = classOf(static_cast<char>(i));
  return classes;
}

constexpr std::array<Byte, 256> byteClasses = classesOfBytes();

/// A quick test for ordinary ASCII text with nothing to undo. May say no to some of it.
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
          // Behind a word or a number it belongs to that.
          if (position_ + 1 < text_.size() && !isSpace(at(position_ + 1))) return false;
          ++position_;
          break;
        case Byte::blank:
        case Byte::lineBreak:
          if (!passesSpace()) return false;
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

  /// White space that is one blank or needs no change.
  bool passesSpace() {
    const std::size_t start = position_;
    bool hasLineBreak = false;
    for (; position_ < text_.size() && isSpace(at(position_)); ++position_)
      hasLineBreak = hasLineBreak || at(position_) == Byte::lineBreak;
    const bool isOneBlank = position_ - start == 1 && text_[start] == ' ';
    if (!hasLineBreak) {
      startsLine_ = false;
      return isOneBlank || start == 0 || position_ == text_.size() ||
             at(start - 1) == Byte::point || text_[start - 1] == '!' || text_[start - 1] == '?';
    }
    if (words_.mayHaveMovedBlanks()) return false;
    words_ = {};
    const bool areWordsOfLines = startsLine_ && position_ < text_.size() && isLineOfOneWord();
    startsLine_ = true;
    return !areWordsOfLines;
  }

  [[nodiscard]] bool isLineOfOneWord() const {
    std::size_t end = position_;
    while (end < text_.size() && !isSpace(at(end)))
      ++end;
    while (end < text_.size() && at(end) == Byte::blank)
      ++end;
    return end == text_.size() || at(end) == Byte::lineBreak;
  }

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
    const std::size_t endOfLast = endOfWord_;
    endOfWord_ = position_;
    const bool isKnown = countWord(start, length);
    const bool isBroken = before == Byte::hyphen || (before == Byte::lineBreak && endOfLast > 0 &&
                                                     at(endOfLast) == Byte::lineBreak);
    if (isBroken && !(isKnown && wasKnown_)) return false;
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
    const bool isKnown =
        reading::classOf(smallLetters(start, length)) != reading::WordClass::unknown;
    const bool isName = length > 1 && text_[start] < 'a' && text_[start + 1] >= 'a';
    words_.add(length, isKnown, isName);
    return isKnown;
  }

  [[nodiscard]] reading::WordBytes smallLetters(std::size_t start, std::size_t length) const {
    constexpr std::uint64_t smallBits = 0x2020202020202020;
    reading::WordBytes bytes{};
    if (length <= 8 && start + 8 <= text_.size()) {
      std::memcpy(bytes.data(), &text_[start], 8);
      const std::size_t unused = 64 - 8 * length;
      if constexpr (std::endian::native == std::endian::little)
        bytes[0] = (bytes[0] | smallBits) << unused >> unused;
      else
        bytes[0] = (bytes[0] | smallBits) >> unused << unused;
      return bytes;
    }
    std::array<char, reading::longestWord> letters{};
    for (std::size_t i = 0; i < length; ++i)
      letters[i] = static_cast<char>(text_[start + i] | 0x20);
    return reading::bytesOfWord({letters.data(), length});
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
    const bool isOrdinary = after != Byte::blank || !isPartOfAmount(position_ + 1);
    return isOrdinary && after != Byte::letter && after != Byte::letterSign &&
           (after != Byte::point || position_ + 1 == text_.size());
  }

  /// Whether what follows a number and a blank may belong to it: digits, or a currency.
  [[nodiscard]] bool isPartOfAmount(std::size_t position) const {
    if (position >= text_.size()) return false;
    const Byte byte = at(position);
    if (byte == Byte::digit || byte == Byte::letterSign) return true;
    const std::string_view rest = text_.substr(position);
    for (const std::string_view name : {"dollar", "euro", "eur", "usd", "gbp", "pounds", "francs"})
      if (rest.starts_with(name)) return true;
    return byte == Byte::letter && rest[0] < 'a' && atOrBlank(position + 1) == Byte::letter &&
           rest[1] < 'a';
  }

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t endOfWord_ = 0;
  reading::KnownWords words_;  ///< with nothing but blanks between them
  bool startsLine_ = true;     ///< nothing but a word stands before in the line
  bool wasSingle_ = false;
  bool wasKnown_ = false;
};

// ---- From bytes to cells and back

/// The kinds of ASCII code points.
const std::array<Kind, 0x80>& asciiKinds() {
  static const std::array<Kind, 0x80> kinds = [] {
    std::array<Kind, 0x80> all{};
    for (std::size_t c = 0; c < all.size(); ++c)
      all[c] = reading::compiledTables.of(static_cast<char32_t>(c)).kind;
    return all;
  }();
  return kinds;
}

/// Words of wide letters with nothing but single blanks between them.
struct WideRun {
  std::size_t end = 0;
  std::size_t firstBlank = 0;  ///< zero when there is none
  std::size_t lastBlank = 0;
  reading::WideWords words;
};

/// Decodes a part of a text into cells and replaces code points that always read as something else.
class Decoder {
 public:
  /// `mergesWords`: words of wide letters need no cells of their own.
  Decoder(std::string_view text, Cells& cells, bool mergesWords)
      : text_(text), cells_(cells), mergesWords_(mergesWords) {}

  /// Returns whether any code point reads as something else.
  bool decode(std::size_t start, std::size_t end) {
    end_ = end;
    for (std::size_t position = start; position < end;) {
      if (takeWideLetters(position)) continue;
      const std::size_t first = position;
      const char32_t scalar = unicode::decodeNext(text_, position);
      if (scalar < ascii_.size() && ascii_[scalar] != Kind::invisible) {
        contents_.hasFormsByNeighbour =
            contents_.hasFormsByNeighbour || scalar == U'<' || scalar == U'>';
        const Kind kind = ascii_[scalar];
        contents_.hasLettersOrStops =
            contents_.hasLettersOrStops || kind == Kind::letter || kind == Kind::stop;
        contents_.hasLettersOrDigits =
            contents_.hasLettersOrDigits || kind == Kind::letter || kind == Kind::digit;
        add(scalar, first, position, kind, true);
        continue;
      }
      const Reading& reading = reading::compiledTables.of(scalar);
      note(reading.kind);
      if (reading.kind == Kind::same) {
        isChanged_ = true;
        addForm(reading.view(), first, position);
      } else if (reading.kind == Kind::invisible) {
        readInvisible(scalar, first, position);
      } else if (!isJoined(reading.kind, scalar) || !compose(scalar, position)) {
        // An ill-formed part reads as U+FFFD.
        add(scalar, first, position, reading.kind, scalar != U'\uFFFD');
        if (isPicture(scalar)) endOfPicture_ = position;
      }
    }
    // What was left out may have stood between letters that are set apart.
    if (isChanged_ || !mergesWords_)
      contents_.hasWideApart = contents_.hasWideApart || contents_.hasWideLetters;
    return isChanged_;
  }

  [[nodiscard]] const Contents& contents() const { return contents_; }

 private:
  [[nodiscard]] char32_t scalarAt(std::size_t position) const {
    return unicode::decodeNext(text_, position);
  }

  // ---- Wide letters

  /// Whether a wide letter starts here that reads as itself.
  [[nodiscard]] bool isWideLetterAt(std::size_t position) const {
    using unicode::ThreeBytes;
    if (position + ThreeBytes::size > end_) return false;
    const ThreeBytes three(text_.data() + position);
    constexpr std::uint32_t firstBlock = reading::firstWideLetter / reading::blockSize;
    constexpr std::uint32_t lastBlock = reading::lastWideLetter / reading::blockSize;
    const auto& tables = reading::compiledTables;
    return three.isScalar() && three.block() - firstBlock <= lastBlock - firstBlock &&
           tables.readings[tables.blocks[three.block()] * reading::blockSize + three.offset()] == 0;
  }

  [[nodiscard]] WideRun wideRunAt(std::size_t position) const {
    WideRun run;
    for (;;) {
      const std::size_t word = position;
      while (isWideLetterAt(position))
        position += unicode::ThreeBytes::size;
      run.words.add((position - word) / unicode::ThreeBytes::size,
                    reading::isHangul(scalarAt(word)));
      if (position >= end_ || text_[position] != ' ' || !isWideLetterAt(position + 1)) break;
      if (run.firstBlank == 0) run.firstBlank = position;
      run.lastBlank = position++;
    }
    run.end = position;
    return run;
  }

  /// Takes wide letters in as few cells as the steps need: none asks which letters they are, and
  /// none looks at a blank between them unless they are set apart.
  bool takeWideLetters(std::size_t& position) {
    if (!isWideLetterAt(position)) return false;
    const WideRun run = wideRunAt(position);
    contents_.hasWideLetters = true;
    const bool isOneLetter = run.end - position == unicode::ThreeBytes::size;
    if (run.words.haveUnits() || run.words.haveManyBlanks() || (isOneLetter && isOneOfMany()))
      contents_.hasWideApart = true;
    if (mergesWords_ && run.lastBlank != run.firstBlank) {
      addWide(position, run.firstBlank);
      addBlank(run.firstBlank);
      addWide(run.firstBlank + 1, run.lastBlank);
      addBlank(run.lastBlank);
      position = run.lastBlank + 1;
    }
    while (position < run.end) {
      const std::size_t word = position;
      while (position < run.end && text_[position] != ' ')
        position += unicode::ThreeBytes::size;
      addWide(word, position);
      if (position < run.end) addBlank(position++);
    }
    return true;
  }

  /// A few letters by themselves may be what signs set apart.
  bool isOneOfMany() {
    constexpr std::size_t few = 2;
    return ++lettersAlone_ > few;
  }

  void addWide(std::size_t start, std::size_t end) {
    add(scalarAt(start), start, end, Kind::other, true);
  }

  void addBlank(std::size_t at) { add(U' ', at, at + 1, Kind::blank, true); }

  // ---- Letters of several code points

  /// Whether a code point belongs to the letter before it: marks, and the later parts of a
  /// syllable of Hangul.
  [[nodiscard]] static bool isJoined(Kind kind, char32_t scalar) {
    return kind == Kind::mark || (scalar >= 0x1161 && scalar <= 0x11C2);
  }

  /// Writes a letter and what belongs to it as the one letter that they are. Marks on Latin letters
  /// may be there to hide a word, so they are left to a step.
  bool compose(char32_t joined, std::size_t end) {
    if (cells_.empty()) return false;
    const Cell last = cells_.back();
    const bool mayCompose =
        last.kind == Kind::other || last.kind == Kind::foreign || last.kind == Kind::twin;
    if (!mayCompose) return false;
    // A cell of wide letters has one or more.
    constexpr auto size = static_cast<std::uint32_t>(unicode::ThreeBytes::size);
    const bool hasMore =
        last.isCopy && reading::isWideLetter(last.scalar) && last.end - last.start > size;
    const std::uint32_t start = hasMore ? last.end - size : last.start;
    const auto letter = reading::composed(hasMore ? scalarAt(start) : last.scalar, joined);
    if (!letter) return false;
    if (hasMore)
      cells_.back().end = start;
    else
      cells_.pop_back();
    const Kind kind = reading::compiledTables.of(*letter).kind;
    add(*letter, start, end, kind, false);
    note(kind);
    noteWide(*letter);
    return isChanged_ = true;
  }

  void addForm(std::string_view form, std::size_t start, std::size_t end) {
    for (std::size_t at = 0; at < form.size();) {
      const char32_t scalar = unicode::decodeNext(form, at);
      const Kind kind = reading::compiledTables.of(scalar).kind;
      if (isJoined(kind, scalar) && compose(scalar, end)) continue;
      add(scalar, start, end, kind, false);
      note(kind);
      noteWide(scalar);
    }
  }

  // ---- Pictures, and what nobody sees

  [[nodiscard]] static bool isPicture(char32_t scalar) {
    return ((scalar >= 0x2300 && scalar < 0x27C0) || (scalar >= 0x2B00 && scalar < 0x2C00) ||
            (scalar >= 0x1F300 && scalar < 0x1FB00)) &&
           reading::compiledTables.of(scalar).kind == Kind::other;
  }

  void readInvisible(char32_t scalar, std::size_t first, std::size_t position) {
    constexpr char32_t joiner = U'\u200D';
    constexpr char32_t colours = U'\uFE0F';
    // What joins pictures to one, or asks for their colours, is a part of the picture.
    const bool isBehindPicture = first > 0 && first == endOfPicture_;
    if (isBehindPicture && scalar == colours && cells_.back().scalar != colours) {
      add(scalar, first, position, Kind::other, true);
      endOfPicture_ = position;
      return;
    }
    if (isBehindPicture && scalar == joiner && position < end_ && isPicture(scalarAt(position))) {
      add(scalar, first, position, Kind::other, true);
      return;
    }
    isChanged_ = true;
    // A soft hyphen is visible at the end of a line.
    const bool isDrawn = scalar == softHyphen && position < end_ &&
                         (text_[position] == '\n' || text_[position] == '\r');
    if (isDrawn) add(U'-', first, position, Kind::sign, false);
  }

  void note(Kind kind) {
    if (kind == Kind::accented || kind == Kind::twin || kind == Kind::same)
      contents_.hasLettersOrStops = contents_.hasLettersOrDigits = true;
    if (kind == Kind::pictograph) contents_.hasLettersOrStops = true;
    if (kind == Kind::accented || kind == Kind::twin || kind == Kind::mark)
      contents_.hasLettersBeyondAscii = true;
    if (kind == Kind::wideSign || kind == Kind::pictograph) contents_.hasFormsByNeighbour = true;
  }

  void noteWide(char32_t scalar) {
    contents_.hasWideLetters = contents_.hasWideLetters || reading::isWideLetter(scalar);
  }

  void add(char32_t scalar, std::size_t start, std::size_t end, Kind kind, bool isCopy) {
    cells_.push_back({.scalar = scalar,
                      .start = static_cast<std::uint32_t>(start),
                      .end = static_cast<std::uint32_t>(end),
                      .kind = kind,
                      .isCopy = isCopy});
  }

  std::string_view text_;
  Cells& cells_;
  bool mergesWords_;
  Contents contents_;
  std::size_t end_ = 0;
  std::size_t lettersAlone_ = 0;
  std::size_t endOfPicture_ = 0;
  bool isChanged_ = false;
  const std::array<Kind, 0x80>& ascii_ = asciiKinds();
};

/// Reads the part of a text; whether it reads otherwise than it is written.
bool readPart(std::string_view text, std::size_t start, std::size_t end, Cells& cells) {
  for (const bool mergesWords : {true, false}) {
    cells.clear();
    cells.reserve(end - start);
    Decoder decoder(text, cells, mergesWords);
    const bool isDecoded = decoder.decode(start, end);
    const Contents& contents = decoder.contents();
    if (mergesWords && contents.hasWideApart) continue;
    const bool isUndone = reading::undoDisguises(cells, contents);
    if (mergesWords && contents.hasWideLetters && isUndone) continue;
    return isDecoded || isUndone;
  }
  return false;
}

/// The end of the part of `text` that can be read alone: no step looks across a blank line, nor
/// across the end of a line where one sentence ends and the next begins.
std::size_t endOfPart(std::string_view text, std::size_t start) {
  const auto at = [&](std::size_t i) { return i < text.size() ? text[i] : '\0'; };
  for (std::size_t lineEnd = text.find('\n', start); lineEnd != std::string_view::npos;
       lineEnd = text.find('\n', lineEnd + 1)) {
    const char next = at(lineEnd + 1);
    if (next == '\n' || (next == '\r' && at(lineEnd + 2) == '\n')) return lineEnd + 1;
    const char before = lineEnd > start ? text[lineEnd - 1] : '\0';
    const bool endsSentence = before == '.' || before == '!' || before == '?';
    if (endsSentence && next >= 'A' && next <= 'Z') return lineEnd + 1;
  }
  return text.size();
}

}  // namespace

ReadableText::ReadableText(std::string_view written) : written_(written) {
  if (written.size() > std::numeric_limits<std::uint32_t>::max()) return;
  Cells cells;
  std::size_t copied = 0;
  for (std::size_t start = 0; start < written.size();) {
    const std::size_t end = endOfPart(written, start);
    if (!PlainText(written.substr(start, end - start)).isCertain()) {
      if (readPart(written, start, end, cells)) {
        copy({.start = copied, .end = start});
        for (std::size_t i = 0; i < cells.size();) {
          if (!cells[i].isCopy) {
            add(cells[i].scalar, {.start = cells[i].start, .end = cells[i].end});
            ++i;
            continue;
          }
          const std::size_t first = i++;
          while (i < cells.size() && cells[i].isCopy && cells[i].start == cells[i - 1].end)
            ++i;
          copy({.start = cells[first].start, .end = cells[i - 1].end});
        }
        copied = end;
        isAsWritten_ = false;
      }
    }
    start = end;
  }
  if (!isAsWritten_) copy({.start = copied, .end = written.size()});
}

void ReadableText::copy(Range part) {
  if (part.start == part.end) return;
  goOn(part, true);
  read_.append(written_, part.start, part.end - part.start);
}

void ReadableText::add(char32_t scalar, Range part) {
  goOn(part, false);
  unicode::append(read_, scalar);
}

void ReadableText::goOn(Range part, bool isRun) {
  const bool isNext = isRun && !anchors_.empty() && anchors_.back().isRun &&
                      part.start - anchors_.back().start == read_.size() - anchors_.back().read;
  if (!isNext)
    anchors_.push_back(
        {.read = read_.size(), .start = part.start, .end = part.end, .isRun = isRun});
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
