// Splits a reader's paste into the text and the lines above and below it. Every function is linear
// in the paste.

import { blank, canonicalDigest, normalizeText } from "./canonical.js";

export const longestPaste = 200_000;  // characters
const longestStack = 300;  // marks on one letter; sorting more takes a browser too long

// Returns why the paste cannot be compared; empty when it can.
export function obstacle(pasted) {
  const limit = longestPaste.toLocaleString("en");
  const tooLong = `It is too long: at most ${limit} characters can be compared here.`;
  if (pasted.length > 2 * longestPaste) return tooLong;
  let count = 0;
  let stack = 0;
  for (const character of pasted) {
    ++count;
    stack = character >= "\u0300" && /\p{M}/u.test(character) ? stack + 1 : 0;
    if (stack > longestStack) return `It piles more than ${longestStack} accents on one letter.`;
  }
  return count > longestPaste ? tooLong : "";
}

// Removes a mail program's "> " if every line has it.
function unquoted(text) {
  const lines = text.split("\n");
  const depthOf = (line) => {
    let depth = 0;
    for (const character of line) {
      if (character === ">") ++depth;
      else if (!blank.test(character)) break;
    }
    return depth;
  };
  const written = lines.filter((line) => line.trim() !== "");
  const depth = written.reduce((least, line) => Math.min(least, depthOf(line)), Infinity);
  if (depth === 0 || depth === Infinity) return text;
  const without = (line) => {
    let left = depth;
    let index = 0;
    while (left > 0 && index < line.length) {
      if (line[index++] === ">") --left;
    }
    return line.slice(index);
  };
  // In a single line such as "> 12 percent", ">" more likely means "more than".
  if (written.length === 1 && !without(written[0]).trim().startsWith("『")) return text;
  return lines.map(without).join("\n");
}

function positions(text, sign) {
  const found = [];
  for (let at = text.indexOf(sign); at >= 0; at = text.indexOf(sign, at + 1)) found.push(at);
  return found;
}

// Returns where the text may begin and end, as ordinals of 『 and 』: the outermost ones, and those
// before a stamp. That is enough for every block that is not meant to confuse, and few enough to
// try all. An ordinal of -1 means the start or end of the paste, if a bracket was not copied.
function frames(text, opened, closed) {
  const outermost = (marks) => [...marks.keys()].filter((i) => i < 3 || i >= marks.length - 3);
  const before = (position) => closed.findLastIndex((at) => at < position);
  const stamps = [text.indexOf("QUILLSEAL"), text.lastIndexOf("QUILLSEAL")];
  const closings = [...stamps.map(before), ...outermost(closed).reverse()].filter((i) => i >= 0);
  const pairs = (opened.length > 0 ? outermost(opened) : [-1]).flatMap((opening) =>
    (closed.length > 0 ? [...new Set(closings)] : [-1]).map((closing) => [opening, closing]));
  return pairs.filter(([opening, closing]) =>
    opening < 0 ? closing >= 0 : closing < 0 || opened[opening] < closed[closing]);
}

// Returns the part of the paste with this digest, and the lines above and below it; null when there
// is none. Readers paste a whole signed block as often as its text alone.
export async function found(pasted, digest) {
  const text = unquoted(pasted.normalize("NFC"));
  const canonical = normalizeText(text);
  if ((await canonicalDigest(canonical)) === digest) return { text, canonical, above: "", below: "" };
  // The canonical form keeps the corner brackets, so the nth there is the nth here.
  const [opened, closed] = ["『", "』"].map((sign) => positions(text, sign));
  const [openedThere, closedThere] = ["『", "』"].map((sign) => positions(canonical, sign));
  for (const [opening, closing] of frames(text, opened, closed)) {
    const part = canonical.slice((openedThere[opening] ?? -1) + 1, closedThere[closing]);
    if ((await canonicalDigest(part)) !== digest) continue;
    const begin = opened[opening] ?? -1;
    const end = closed[closing] ?? text.length;
    return {
      text: text.slice(begin + 1, end),
      canonical: part,
      above: text.slice(0, Math.max(begin, 0)),
      below: text.slice(end + 1),
    };
  }
  return null;
}

// Mail programs rewrap lines and drop the emoji variation selector.
function squeezed(text) {
  let result = "";
  for (const character of text.normalize("NFC")) {
    if (character !== "\uFE0F" && !blank.test(character)) result += character;
  }
  return result;
}

const label = squeezed("Check this signature →");
const samePlace = "another page of this server";

// Returns where the first address in the lines below a text leads, other than `link`; null when
// there is none.
function otherPlace(below, link) {
  const after = below.slice(below.lastIndexOf("→") + 1);  // a medium may have an arrow of its own
  for (const word of after.split(/[\s<>()[\]|]/)) {
    if (!word.includes(":") || word === link || !URL.canParse(word)) continue;
    const { host, protocol } = new URL(word);
    if (host !== "") return host === new URL(link).host ? samePlace : host;
    if (protocol === "javascript:" || protocol === "data:") return protocol;
  }
  return null;
}

// Returns how the lines below a text differ from the agent's: { stamp } for another medium or date,
// { place } for another link, { extra } for additional text.
export function differences(below, { scope, issued, link }) {
  let rest = squeezed(below);
  const take = (expected) => {
    if (!rest.startsWith(expected)) return false;
    rest = rest.slice(expected.length);
    return true;
  };
  take("─".repeat(20));
  if (rest === "") return {};
  const hasShield = take("🛡");
  if (!take("QUILLSEAL")) return hasShield ? { stamp: true } : { extra: true };
  const stamp = squeezed(`${scope} · ${issued}`);
  // The formatted block has a line break where the plain one has a dot.
  if (!take(`·${stamp}`) && !take(stamp)) {
    const at = rest.indexOf(label);
    if (at < 0) return { stamp: true };
    rest = rest.slice(at);
    return { stamp: true, ...linkDifferences() };
  }
  return linkDifferences();

  function linkDifferences() {
    if (rest === "") return {};
    take("[");
    if (!take(label)) return { extra: true };
    take("]");
    if (rest === "") return {};
    // The link, possibly several times: some mail programs write out the target of each linked
    // word.
    let links = 0;
    const address = squeezed(link);
    for (let taken = true; taken; ) {
      taken = ["", "<>", "[]", "()"].some(([open = "", close = ""]) => take(open + address + close));
      if (taken) ++links;
    }
    const place = otherPlace(below, link);
    // An address may be broken in two, but not within its host: then the first half would be
    // another address.
    if (rest === "" && (place === null || place === samePlace)) return {};
    if (place === null && links > 0) return { extra: true };
    return { place: place ?? "another place" };
  }
}
