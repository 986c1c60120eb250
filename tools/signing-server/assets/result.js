// Shows the result of a comparison; `tone` is a class in the style sheet.
export function showResult(tone, message) {
  const result = document.getElementById("result");
  result.className = `result ${tone}`;
  result.textContent = message;
}
