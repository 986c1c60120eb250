import { textDigest } from "./canonical.js";
import { showResult } from "./result.js";

const expected = document.querySelector("main").dataset.textDigest;
const field = document.getElementById("text");
let newest = 0;

// The lines below a signed text, as plain text and as what mail programs make of the HTML.
const stamp =
  /^\s*(?:─{20}\s*)?🛡\uFE0F?\s*QUILLSEAL\s[^\n]* · [^\n]*(?:\n\s*Check this signature →\s*\S*)?\s*$/u;

// What the paste may mean, with the words for each. A whole signed block is pasted as often as its
// text alone: then what counts stands between the corner brackets, and nothing else is signed.
function readings(pasted) {
  const whole = { text: pasted, tone: "good", message: "✓ This is the signed text, word for word." };
  const framed = /『([\s\S]*)』\s*(?:─{20}|🛡)/u.exec(pasted) ?? /『([\s\S]*)』/u.exec(pasted);
  if (!framed) return [whole];
  const [, text] = framed;
  const before = pasted.slice(0, framed.index);
  const after = pasted.slice(framed.index + `『${text}』`.length);
  const message = "✓ What stands between 『 and 』 is the signed text.";
  const isAlone = before.trim() === "" && (after.trim() === "" || stamp.test(after));
  return isAlone
    ? [whole, { text, tone: "good", message }]
    : [whole, { text, tone: "caution", message: `${message} Text outside the brackets is not signed.` }];
}

async function compare() {
  const turn = ++newest;
  const pasted = field.value;
  if (pasted.trim() === "") {
    showResult("", "");
    return;
  }
  try {
    const candidates = readings(pasted);
    const digests = await Promise.all(candidates.map(({ text }) => textDigest(text)));
    if (turn !== newest) return;
    const match = candidates[digests.indexOf(expected)];
    if (match) {
      showResult(match.tone, match.message);
    } else {
      showResult("bad", "✗ This is not the text that was signed. A word, a number or a sign differs, or something is missing.");
    }
  } catch (error) {
    if (turn === newest) showResult("bad", error.message);
  }
}

field.addEventListener("input", compare);
// A browser that brings a form back after a reload fires no event.
compare();
