// What the page shows, as `zkstrings page` found it; PageData.h describes the form.
const data = JSON.parse(document.getElementById("data").textContent);
const languages = data.languages;
const english = languages[0];
const translations = languages.slice(1);

const FORM_NAMES = ["zero", "one", "two", "few", "many"];
const STATE_NAMES = { m: "missing", u: "untranslated", r: "needs review", t: "translated" };

languages.forEach((language, index) => {
  language.index = index;
  language.findingsByText = new Map();
  for (const [text, severity, rule, message, line, column] of language.findings) {
    const finding = { severity, rule, message, place: `${language.file}:${line}:${column}` };
    const others = language.findingsByText.get(text);
    if (others) others.push(finding);
    else language.findingsByText.set(text, [finding]);
  }
});

const keyCounts = new Map();
for (const { key } of data.entries) keyCounts.set(key, (keyCounts.get(key) ?? 0) + 1);

let nextText = 0;
const entries = data.entries.map((entry) => {
  const first = nextText;
  nextText += entry.counted ? FORM_NAMES.length : 1;
  const isTwin = entry.counted && keyCounts.get(entry.key) > 1;
  return {
    ...entry,
    first, // its first text, in each language's list
    last: nextText - 1,
    address: isTwin ? `${entry.key}/count` : entry.key,
    family:
      [entry.counted && "counted", entry.values.length > 0 && "formatted"].filter(Boolean).join(" ") ||
      "plain",
  };
});
const entriesByAddress = new Map(entries.map((entry) => [entry.address, entry]));

/** The finished text that the engine made with the example values. */
function engineText(language, text) {
  return language.finished[text] || language.texts[text];
}

/** How much longer than the English text it is, in percent. */
function excess(language, text) {
  const length = english.characters[text];
  return length === 0 ? 0 : Math.round((language.characters[text] / length - 1) * 100);
}

/** Calls `visit` with each of the entry's texts; gives whether it said true of one. */
function someText(entry, visit) {
  for (let text = entry.first; text <= entry.last; ++text) {
    if (visit(text)) return true;
  }
  return false;
}
