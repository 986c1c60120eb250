// Finds characters that are invisible or misleading, and shows a text with a visible mark for each.
// Every function is linear in the text.

import { blank, replacements } from "./canonical.js";

const lineBreak = /[\n-\r\u0085\u2028\u2029]/;

// All characters that may need a mark; for some it depends on their place.
const suspect = /[<>\u1680\u201A\u201E\u2800\uFFF9-\uFFFB\p{Cc}\p{Default_Ignorable_Code_Point}]/u;
const direction = /[\u061C\u200E\u200F\u202A-\u202E\u2066-\u2069]/;

const letterOrMark = /[\p{L}\p{M}]/u;
const joiningScript =
  /[\p{scx=Arab}\p{scx=Syrc}\p{scx=Mand}\p{scx=Nkoo}\p{scx=Mong}\p{scx=Phag}\p{scx=Deva}\p{scx=Beng}\p{scx=Guru}\p{scx=Gujr}\p{scx=Orya}\p{scx=Taml}\p{scx=Telu}\p{scx=Knda}\p{scx=Mlym}\p{scx=Sinh}\p{scx=Khmr}\p{scx=Mymr}\p{scx=Tibt}]/u;
const unspacedScript = /[\p{scx=Thai}\p{scx=Laoo}\p{scx=Khmr}\p{scx=Mymr}\p{scx=Tibt}]/u;
const picture = /\p{Extended_Pictographic}/u;
const endOfPicture = /[\p{Extended_Pictographic}\p{Emoji_Modifier}\uFE0F]/u;
const hasVariants = /[\p{Script=Han}\p{Script=Myanmar}\p{Script=Phags_Pa}\p{Sm}]/u;
const digit = /\p{Nd}/u;
const wordStart = /[\p{Z}\s([{/\u2014\u2013-]/u;

const names = new Map([
  [0x00ad, "soft hyphen"],
  [0x034f, "grapheme joiner"],
  [0x061c, "Arabic letter mark"],
  [0x1680, "Ogham space"],
  [0x200b, "zero-width space"],
  [0x200c, "zero-width non-joiner"],
  [0x200d, "zero-width joiner"],
  [0x200e, "left-to-right mark"],
  [0x200f, "right-to-left mark"],
  [0x201a, "low quotation mark"],
  [0x201e, "low quotation mark"],
  [0x202a, "left-to-right embedding"],
  [0x202b, "right-to-left embedding"],
  [0x202c, "end of a direction"],
  [0x202d, "left-to-right override"],
  [0x202e, "right-to-left override"],
  [0x2060, "word joiner"],
  [0x2066, "left-to-right isolate"],
  [0x2067, "right-to-left isolate"],
  [0x2068, "isolate"],
  [0x2069, "end of an isolate"],
  [0xfeff, "zero-width no-break space"],
]);

function codeOf(character) {
  return `U+${character.codePointAt(0).toString(16).toUpperCase().padStart(4, "0")}`;
}

// Returns "U+00AD (soft hyphen)" or the like; for a visible sign the sign itself.
export function nameOf(character) {
  if (character === "<" || character === ">") return character;
  const name = names.get(character.codePointAt(0));
  return name ? `${codeOf(character)} (${name})` : codeOf(character);
}

const isTag = (character) => character >= "\u{E0020}" && character <= "\u{E007F}";

// The flags of England, Scotland and Wales are a black flag with up to seven tags.
function isFlagTag(characters, index) {
  for (let back = 1; back <= 7; ++back) {
    const before = characters[index - back] ?? "";
    if (before === "\u{1F3F4}") return true;
    if (!isTag(before)) return false;
  }
  return false;
}

const isUnspaced = (character) => letterOrMark.test(character) && unspacedScript.test(character);
const isJoining = (character) => letterOrMark.test(character) && joiningScript.test(character);

function isInPlace(characters, index) {
  const character = characters[index];
  const before = characters[index - 1] ?? "";
  const after = characters[index + 1] ?? "";
  const code = character.codePointAt(0);
  // At the place of an opening quotation mark in German.
  const opensQuotation = before === "" || wordStart.test(before);
  switch (code) {
    case 0x201a:  // before a digit it passes for a comma
      return opensQuotation && /\p{L}/u.test(after);
    case 0x201e:  // two commas, which pass for one only between digits
      return opensQuotation && (/\p{L}/u.test(after) || (digit.test(after) && !digit.test(characters[index - 2] ?? "")));
    case 0x200b:
      return isUnspaced(before) && isUnspaced(after);
    case 0x200d:
      if (endOfPicture.test(before) && picture.test(after)) return true;
      return isJoining(before) && !/\p{N}/u.test(after);
    case 0x200c:
      return isJoining(before) && !/\p{N}/u.test(after);
    case 0xfe0e:
    case 0xfe0f:
      return picture.test(before) || (/[0-9#*]/.test(before) && after === "\u20E3");
    default:
      if ((code >= 0xfe00 && code <= 0xfe0d) || (code >= 0xe0100 && code <= 0xe01ef)) return hasVariants.test(before);
      if (code >= 0x180b && code <= 0x180f) return /\p{Script=Mongolian}/u.test(before);
      return isTag(character) && isFlagTag(characters, index);
  }
}

// Returns the fault of a character in its place, or null: "direction" (changes the reading
// direction), "bracket" (visible, but not signed), "comma" (a quotation mark that looks like a
// comma), "dash" (a blank that is drawn as a dash) or "hidden".
function faultAt(characters, index) {
  const character = characters[index];
  if (!suspect.test(character)) return null;
  if (character === "<" || character === ">") return "bracket";
  if (character === "\u1680") return "dash";
  if (blank.test(character)) return null;
  if (direction.test(character)) return "direction";
  if (isInPlace(characters, index)) return null;
  return character === "\u201A" || character === "\u201E" ? "comma" : "hidden";
}

// Splits the text into pieces: { text } with typographic signs in their signed form, and blanks as
// one space or up to two line breaks; { text, isGap } for a space between two digits, which can
// change the numbers; { text, fault, character, count } with a label for faulty characters. `text`
// is in NFC.
export function pieces(text) {
  const characters = Array.from(text);
  const result = [];
  let plain = "";
  let newest = "";  // of `plain`; reading its end each time would copy all of it
  let breaks = 0;
  let hasBlank = false;
  const flush = () => {
    if (plain !== "") result.push({ text: plain });
    plain = "";
    newest = "";
  };
  for (let index = 0; index < characters.length; ++index) {
    const character = characters[index];
    const fault = faultAt(characters, index);
    if (!fault && blank.test(character)) {
      hasBlank = true;
      if (lineBreak.test(character)) ++breaks;
      continue;
    }
    if (hasBlank && breaks === 0 && digit.test(character) && digit.test(newest)) {
      flush();
      result.push({ text: " ", isGap: true });
    } else if (hasBlank && (plain !== "" || result.length > 0)) {
      plain += "\n".repeat(Math.min(breaks, 2)) || " ";
    }
    const isBesideLast = !hasBlank;
    hasBlank = false;
    breaks = 0;
    if (!fault) {
      plain += replacements.get(character) ?? character;
      newest = character;
      continue;
    }
    const last = result.at(-1);
    if (plain === "" && isBesideLast && last?.character === character) {
      ++last.count;
      continue;
    }
    flush();
    const label = fault === "bracket" ? character : (replacements.get(character) ?? codeOf(character));
    result.push({ text: label, fault, character, count: 1 });
  }
  flush();
  return result;
}

// No reader looks at more marks, and they would slow the browser down.
const mostMarks = 500;

// Shows the pieces in an element, up to about `most` characters, so that no piece changes how
// others are shown. Returns how many characters were left out.
export function show(element, shown, most = Infinity) {
  element.replaceChildren();
  let marks = 0;
  let left = most;
  let leftOut = 0;
  const appendSpan = (className, label, title = "") => {
    const span = document.createElement("span");
    span.className = className;
    span.title = title;
    span.textContent = label;
    element.append(span);
  };
  for (const { text, isGap, fault, character, count } of shown) {
    if (left <= 0) {
      leftOut += text.length;
    } else if ((isGap || fault) && ++marks <= mostMarks) {
      if (isGap) appendSpan("gap", text);
      else appendSpan("mark", count > 1 ? `${text}×${count}` : text, nameOf(character));
    } else if (fault) {
      element.append(`[${text}]`);
    } else if (isGap) {
      element.append("␣");
    } else {
      // Do not cut a character in half.
      const end = text.codePointAt(left - 1) > 0xffff ? left + 1 : left;
      element.append(text.slice(0, end));
      leftOut += Math.max(text.length - end, 0);
    }
    left -= text.length;
  }
  return leftOut;
}
