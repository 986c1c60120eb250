import { textDigest } from "./canonical.js";
import { showResult } from "./result.js";

// Removes the text from the address bar, the tab's history and the saved session.
const fragment = location.hash.slice(1);
history.replaceState(null, "", location.pathname + location.search);

const page = document.querySelector("main").dataset;
const sign = document.getElementById("sign");
const decline = document.getElementById("decline");

// base64url without padding, of UTF-8.
function decoded(encoded) {
  const binary = atob(encoded.replaceAll("-", "+").replaceAll("_", "/"));
  const bytes = Uint8Array.from(binary, (character) => character.charCodeAt(0));
  return new TextDecoder("utf-8", { fatal: true, ignoreBOM: true }).decode(bytes);
}

function partOfFragment(name) {
  const part = fragment.split("&").find((pair) => pair.startsWith(`${name}=`));
  return part === undefined ? null : decoded(part.slice(name.length + 1));
}

async function post(path, body) {
  const response = await fetch(path, {
    method: "POST",
    headers: { "Content-Type": "application/json" },
    body: JSON.stringify(body),
  });
  const answer = await response.json();
  if (!response.ok) throw new Error(answer.error);
  return answer;
}

function finish(heading, explanation) {
  document.getElementById("heading").textContent = heading;
  document.title = `${heading} · Quillseal`;
  document.getElementById("explanation").textContent = explanation;
  document.getElementById("actions").hidden = true;
}

async function act(path, body, onSuccess) {
  sign.disabled = decline.disabled = true;
  try {
    onSuccess(await post(path, body));
  } catch (error) {
    showResult("bad", `${error.message} Try again, or start again from your text.`);
    sign.disabled = body.text_digest === undefined;
    decline.disabled = false;
  }
}

async function begin() {
  let text = null;
  let html = null;
  try {
    text = partOfFragment("t");
    html = partOfFragment("h");
  } catch {
    showResult("bad", "The text in this page's address is damaged. Start again from your text.");
    return;
  }
  if (text === null) {
    showResult("bad", "The text is missing from this page's address. Start again from your text.");
    return;
  }
  document.getElementById("text").textContent = text;
  if (html !== null) {
    document.getElementById("html").textContent = html;
    document.getElementById("formatting").hidden = false;
  }
  let digest;
  try {
    digest = await textDigest(text);
  } catch (error) {
    showResult("bad", error.message);
    return;
  }
  if (digest !== page.textDigest) {
    showResult("bad", "✗ This is not the text that the agent registered. Do not sign it.");
    return;
  }
  showResult("good", "✓ This is the text that the agent registered.");
  sign.disabled = false;
  sign.addEventListener("click", () =>
    act("/handoff/sign", { handoff_id: page.handoff, text_digest: digest }, () => {
      showResult("good", "✓ Signed.");
      finish("Signed", "Quillseal now puts the signed text back where you wrote it. You can close this tab.");
    }));
}

decline.addEventListener("click", () =>
  act("/handoff/decline", { handoff_id: page.handoff }, () => {
    showResult("", "");
    finish("Declined", "Nothing was signed. You can close this tab.");
  }));

setTimeout(() => {
  if (document.getElementById("actions").hidden) return;
  showResult("bad", "");
  finish("Expired", "This request was not signed in time. Nothing was signed. Select your text and start again.");
}, Number(page.secondsLeft) * 1000);

begin();
