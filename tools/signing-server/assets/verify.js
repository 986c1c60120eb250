import { nameOf, pieces, show } from "./marks.js";
import { differences, found, obstacle } from "./paste.js";

// The server's data about the record; null when the record was changed.
const record = JSON.parse(document.querySelector("main").dataset.record);
const field = document.getElementById("text");
const result = document.getElementById("result");
const match = document.getElementById("match");
let newest = 0;

function paragraph(text, className = "") {
  const element = document.createElement("p");
  element.className = className;
  element.textContent = text;
  return element;
}

// `tone` is a class in the style sheet; `reasons` follow the headline as a list.
function showVerdict(tone, headline, { reasons = [], explanation = "" } = {}) {
  const list = document.createElement("ul");
  list.append(
    ...reasons.map((reason) => {
      const item = document.createElement("li");
      item.textContent = reason;
      return item;
    }),
  );
  result.className = `verdict ${tone}`;
  result.replaceChildren(
    paragraph(headline, "headline"),
    ...(reasons.length > 0 ? [list] : []),
    ...(explanation === "" ? [] : [paragraph(explanation)]),
  );
}

// Unlike a text, a record is signed with its angle brackets.
function recordPieces(value) {
  return pieces(value.normalize("NFC")).map((piece) =>
    piece.fault === "bracket" ? { text: piece.text.repeat(piece.count) } : piece);
}

const cannotTell = "This page cannot tell you whether your message is genuine";

const kinds = {
  device: [],
  demonstration: ["This record is only a demonstration. No key was used, and it is evidence of nothing."],
  browser: [
    "No device signed this text. Somebody who had the signing page open pressed “Sign”; the record does not show who that was.",
  ],
};

function reasonsInRecord(identity, scope) {
  const reasons = [...kinds[record.kind]];
  if (record.isExpired) reasons.push(`The record has expired. It was valid until ${record.expires}.`);
  if (record.isOffDate) {
    reasons.push(`The signer gave the date ${record.issued}, but this server recorded it on ${record.recorded}.`);
  }
  if (identity.some(({ fault }) => fault)) reasons.push("The name in the record holds hidden signs.");
  if (scope.some(({ fault }) => fault)) reasons.push("The medium in the record holds hidden signs.");
  return reasons;
}

const mostNames = 6;

function namesOf(faulty) {
  const names = [...new Set(faulty.map(({ character }) => nameOf(character)))];
  return names.slice(0, mostNames).join(", ") + (names.length > mostNames ? " and others" : "");
}

const faults = [
  ["direction", (names) =>
    `It holds hidden signs that turn the reading direction around: ${names}. Your mail may show amounts, dates or names in another order than they were signed.`],
  ["bracket", (names) => `These signs are not part of what was signed, so anyone may have added or removed them: ${names}`],
  ["comma", (names) => `A quotation mark in it looks like a comma: ${names}.`],
  ["dash", (names) => `A space in it may be shown as a dash: ${names}.`],
  ["hidden", (names) => `It holds hidden characters: ${names}.`],
];

function reasonsInPaste({ above, below }, textPieces) {
  // Angle brackets are no fault here: they may surround the link, and `differences` compares them.
  const around = [above, below].flatMap(pieces).filter(({ fault }) => fault !== "bracket");
  const shown = [...textPieces, ...around];
  const reasons = [];
  for (const [kind, sentence] of faults) {
    const faulty = shown.filter(({ fault }) => fault === kind);
    if (faulty.length > 0) reasons.push(sentence(namesOf(faulty)));
  }
  const link = `${location.origin}/verify/${record.id}`;
  const { stamp, place, extra } = differences(below, { scope: record.scope, issued: record.issued, link });
  if (above.trim() !== "") reasons.push("What stands above the text is not signed.");
  if (stamp) {
    reasons.push("The lines below the text were changed: medium and date are not those of the record. The right ones are below.");
  }
  if (place) reasons.push(`The link in your message leads elsewhere: to ${place}.`);
  if (extra) reasons.push("There is more below the text than belongs there, and it is not signed.");
  return reasons;
}

const identityNotes = {
  device: ["given by this server, not checked", "Nobody checked whose device it is."],
  demonstration: ["", "It is nobody’s signature."],
  browser: ["", "The record does not show who pressed “Sign”."],
};

// A browser takes seconds to lay out the longest text, so the verdict is shown first.
const mostAtFirst = 20_000;

function showLong(element, more, shown) {
  const leftOut = show(element, shown, mostAtFirst);
  more.hidden = leftOut === 0;
  more.textContent = `Show the rest of the text (${leftOut.toLocaleString("en")} more characters)`;
  more.onclick = () => {
    show(element, shown);
    more.hidden = true;
  };
}

function showMatch({ canonical }, shown) {
  const hasDirection = shown.text.some(({ fault }) => fault === "direction");
  const [named, nameless] = identityNotes[record.kind];
  const content = document.getElementById("matching").content.cloneNode(true);
  const place = (name) => content.querySelector(`[data-shows="${name}"]`);
  place("text").dir = hasDirection ? "ltr" : "auto";
  showLong(place("text"), place("text-more"), shown.text);
  const [characters, more] = ["characters", "characters-more"].map(place);
  content.querySelector("details").addEventListener("toggle", () => showLong(characters, more, pieces(canonical)), { once: true });
  place("legend").textContent = [
    shown.text.some(({ fault }) => fault) ? "What stands in a frame is hidden in a mail, looks like something else or is not signed." : "",
    shown.text.some(({ isGap }) => isGap) ? "A space between two digits is marked: it may have stood elsewhere." : "",
  ].join(" ").trim();
  for (const name of ["identity", "scope"]) show(place(name), shown[name]);
  place("identityNote").textContent = shown.identity.length > 0 ? named : nameless;
  match.replaceChildren(content);
}

async function compare() {
  const turn = ++newest;
  const pasted = field.value.trim();
  if (pasted === "") {
    match.replaceChildren();
    showVerdict("unknown", "Nothing has been compared yet");
    return;
  }
  const reason = obstacle(pasted);
  try {
    const part = reason === "" ? await found(pasted, record.textDigest) : null;
    if (turn !== newest) return;
    match.replaceChildren();
    if (reason !== "") {
      showVerdict("unknown", cannotTell, { explanation: reason });
    } else if (part === null) {
      showVerdict("bad", "This is not the text that was signed", {
        explanation:
          "A letter, a number or a sign differs, or something is missing or was added. Do not rely on this message. If you copied a part of it only, paste the whole, from 『 down to the link.",
      });
    } else {
      const shown = {
        text: pieces(part.text),
        identity: recordPieces(record.identity),
        scope: recordPieces(record.scope),
      };
      const reasons = [...reasonsInRecord(shown.identity, shown.scope), ...reasonsInPaste(part, shown.text)];
      if (reasons.length > 0) {
        showVerdict("caution", "The words match, but …", { reasons });
      } else {
        const isAlone = part.below.trim() === "";
        showVerdict("good", "The words match", {
          explanation:
            "This text was signed with the key of a registered device. The record is unchanged and has not expired." +
            (isAlone ? " You did not paste the lines below it, so they were not compared." : ""),
        });
      }
      showMatch(part, shown);
    }
  } catch (error) {
    if (turn === newest) showVerdict("unknown", cannotTell, { explanation: error.message });
  }
}

if (record) {
  document.getElementById("paste").hidden = false;
  field.addEventListener("input", compare);
  // A browser that restores a form after a reload fires no event.
  compare();
}
