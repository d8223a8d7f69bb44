// The data that `zkstrings page` put into the page. Page.cpp describes its form.
const data = JSON.parse(document.getElementById("data").textContent);
const languages = data.languages;
const english = languages[0];
const translations = languages.slice(1);

const STATE_NAMES = { m: "missing", u: "untranslated", n: "needs review", t: "translated" };

languages.forEach((language, index) => {
  language.index = index;
  language.previous = new Map(language.previous);
  const findings = language.findings.map(([text, severity, rule, message, line, column]) => {
    return { text, severity, rule, message, place: `${language.file}:${line}:${column}` };
  });
  language.findingsByText = Map.groupBy(findings, ({ text }) => text);
});

const plainKeys = new Set(data.entries.filter(({ counted }) => !counted).map(({ key }) => key));

let nextText = 0;
const entries = data.entries.map((entry) => {
  const isTwin = entry.counted && plainKeys.has(entry.key);
  return {
    ...entry,
    texts: Array.from({ length: entry.counted ? data.forms.length : 1 }, () => nextText++), // in languages' lists
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
