// The data that `zkstrings page` put into the page. Page.h describes its form.
const data = JSON.parse(document.getElementById("data").textContent);
const languages = data.languages;
const english = languages[0];
const translations = languages.slice(1);

const STATE_NAMES = { m: "missing", u: "untranslated", n: "needs review", t: "translated" };

languages.forEach((language, index) => {
  language.index = index;
  language.previous = new Map(language.previous);
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
  nextText += entry.counted ? data.forms.length : 1;
  const isTwin = entry.counted && keyCounts.get(entry.key) > 1;
  return {
    ...entry,
    first, // the index of its first text in each language's lists
    last: nextText - 1,
    address: isTwin ? `${entry.key}/count` : entry.key,
    family:
      [entry.counted && "counted", entry.formatted && "formatted"].filter(Boolean).join(" ") ||
      "plain",
  };
});
const entriesByAddress = new Map(entries.map((entry) => [entry.address, entry]));

/** Matches a value that the engine has filled in, with the name of its placeholder. */
const VALUE = /\uFDD0([^\uFDD0-\uFDD2]*)\uFDD1([^\uFDD0-\uFDD2]*)\uFDD2/g;

/** The percentage by which the text is longer than the English text. */
function excess(language, text) {
  const length = english.characters[text];
  return length === 0 ? 0 : Math.round((language.characters[text] / length - 1) * 100);
}

/** Whether `visit` returns true for the index of one of the entry's texts. */
function someText(entry, visit) {
  for (let text = entry.first; text <= entry.last; ++text) {
    if (visit(text)) return true;
  }
  return false;
}
