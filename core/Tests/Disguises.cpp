#include "Disguises.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "core/text/UnicodeText.h"

namespace quillseal::testing {
namespace {

constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr std::string_view likeDigits = "aeiostAEIOST";
constexpr std::string_view likeCyrillic = "aeopcxyisjABEKMHOPCTX";

using Kind = Disguise::Kind;
constexpr std::array all{
    Disguise{"zero-width", Kind::inserted, 100, {}, U"\u200B"},
    Disguise{"word-joiner", Kind::inserted, 100, {}, U"\u2060"},
    Disguise{"soft-hyphen", Kind::inserted, 100, {}, U"\u00AD"},
    Disguise{"full-width", Kind::letters, 100, letters,
             U"ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ"
             U"ａｂｃｄｅｆｇｈｉｊｋｌｍｎｏｐｑｒｓｔｕｖｗｘｙｚ"},
    Disguise{"bold", Kind::letters, 100, letters,
             U"𝐀𝐁𝐂𝐃𝐄𝐅𝐆𝐇𝐈𝐉𝐊𝐋𝐌𝐍𝐎𝐏𝐐𝐑𝐒𝐓𝐔𝐕𝐖𝐗𝐘𝐙"
             U"𝐚𝐛𝐜𝐝𝐞𝐟𝐠𝐡𝐢𝐣𝐤𝐥𝐦𝐧𝐨𝐩𝐪𝐫𝐬𝐭𝐮𝐯𝐰𝐱𝐲𝐳"},
    Disguise{"digits", Kind::letters, 100, likeDigits, U"431057431057"},
    Disguise{"few-digits", Kind::letters, 20, likeDigits, U"431057431057"},
    Disguise{"cyrillic", Kind::letters, 100, likeCyrillic, U"аеорсхуіѕјАВЕКМНОРСТХ"},
    Disguise{"few-cyrillic", Kind::letters, 20, likeCyrillic, U"аеорсхуіѕјАВЕКМНОРСТХ"},
    Disguise{"greek", Kind::letters, 50, "aoivunkptxyABEZHIKMNOPTYX", U"αοινυηκρτχγΑΒΕΖΗΙΚΜΝΟΡΤΥΧ"},
    Disguise{"marks", Kind::letters, 50, "aeiouAEIOU",
             U"a\u0300e\u0301i\u0308o\u0323u\u0330A\u0301E\u0300I\u0330O\u0308U\u0323"},
    Disguise{"dots", Kind::apart, 33, {}, U".", 85},
    Disguise{"blanks", Kind::apart, 33, {}, U" ", 85},
    Disguise{"dashes", Kind::apart, 33, {}, U"-", 85},
    Disguise{"broken", Kind::inserted, 33, {}, U"-\n", 75},
    Disguise{"circled", Kind::letters, 100, letters,
             U"ⒶⒷⒸⒹⒺⒻⒼⒽⒾⒿⓀⓁⓂⓃⓄⓅⓆⓇⓈⓉⓊⓋⓌⓍⓎⓏ"
             U"ⓐⓑⓒⓓⓔⓕⓖⓗⓘⓙⓚⓛⓜⓝⓞⓟⓠⓡⓢⓣⓤⓥⓦⓧⓨⓩ"},
    Disguise{"small-capitals", Kind::letters, 100, "abcdefghijklmnopqrtuvwyz",
             U"ᴀʙᴄᴅᴇꜰɢʜɪᴊᴋʟᴍɴᴏᴘǫʀᴛᴜᴠᴡʏᴢ", 75},
    Disguise{"brackets", Kind::inserted, 100, {}, U"<"},
    Disguise{"blanks-doubled", Kind::letters, 100, " ", U"  "},
    Disguise{"word-a-line", Kind::letters, 100, " ", U"\n"},
};

bool isLetter(char c) {
  return letters.find(c) != std::string_view::npos;
}

}  // namespace

std::string Disguise::apply(std::string_view text, std::mt19937& random) const {
  const auto happens = [&] { return random() % 100 < inHundred; };
  const std::size_t share = to.size() / std::max<std::size_t>(from.size(), 1);
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    while (at < text.size() && isLetter(text[at]))
      ++at;
    const bool isWord = at - start >= 2 && kind != Kind::letters && happens();
    const std::size_t place = isWord ? start + random() % (at - start - 1) : 0;
    at = std::max(at, start + 1);
    for (std::size_t i = start; i < at; ++i) {
      const std::size_t letter = from.find(text[i]);
      const bool isChanged = letter != std::string_view::npos && happens();
      if (!isChanged) result += text[i];
      const bool isFollowed = isWord && (kind == Kind::inserted ? i == place : i + 1 < at);
      for (const char32_t c : isChanged ? to.substr(letter * share, share) : isFollowed ? to : U"")
        unicode::append(result, c);
    }
  }
  return result;
}

std::span<const Disguise> disguises() {
  return all;
}

}  // namespace quillseal::testing
