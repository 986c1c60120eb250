import { textDigest } from "./canonical.js";
import { showResult } from "./result.js";

const expected = document.querySelector("main").dataset.textDigest;
const field = document.getElementById("text");
let newest = 0;

// A whole signed block is pasted as often as its text alone: then what counts stands between the
// corner brackets.
function readings(pasted) {
  const framed = /『([\s\S]*)』\s*─{20}/u.exec(pasted) ?? /『([\s\S]*)』/u.exec(pasted);
  return framed ? [pasted, framed[1]] : [pasted];
}

async function compare() {
  const turn = ++newest;
  const pasted = field.value;
  if (pasted.trim() === "") {
    showResult("", "");
    return;
  }
  try {
    const digests = await Promise.all(readings(pasted).map(textDigest));
    if (turn !== newest) return;
    if (digests.includes(expected)) {
      showResult("good", "✓ This is the signed text, word for word.");
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
