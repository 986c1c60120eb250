// Computes the canonical form of a text and its digest. It must agree with
// CryptoManager::normalizeText in every scalar: a reader's paste is compared with the digest from
// the signer's agent.

// ASCII replacements of typographic dashes, quotation marks and ellipses.
export const replacements = new Map([
  ...[..."\u2012\u2013\u2014\u2015"].map((dash) => [dash, "-"]),
  ...[..."\u2018\u2019\u201A\u201B\u02BC"].map((quote) => [quote, "'"]),
  ...[..."\u201C\u201D\u201E\u201F"].map((quote) => [quote, '"']),
  ["\u2026", "..."],
]);

// Removed characters: angle brackets, invisible controls, and white space (\p{Z} and the control
// characters for tabs and line breaks).
const dropped =
  /[<>\u00AD\u034F\u200B-\u200F\u202A-\u202E\u2060-\u206F\uFEFF\u0009-\u000D\u0085\p{Z}]/u;

// White space of every kind.
export const blank = /[\t-\r\u0085\p{Z}]/u;

export function normalizeText(text) {
  let canonical = "";
  for (const character of text.normalize("NFC")) {
    if (!dropped.test(character)) canonical += replacements.get(character) ?? character;
  }
  return canonical;
}

// Returns the digest of a canonical form in lower-case hexadecimal. Throws where the browser offers
// no cryptography: it does only over https and on localhost.
export async function canonicalDigest(canonical) {
  if (!globalThis.crypto?.subtle) {
    throw new Error("This browser compares texts only on https, or on the computer that runs the server.");
  }
  const bytes = new TextEncoder().encode(canonical);
  const digest = new Uint8Array(await crypto.subtle.digest("SHA-256", bytes));
  return Array.from(digest, (byte) => byte.toString(16).padStart(2, "0")).join("");
}

export const textDigest = (text) => canonicalDigest(normalizeText(text));
