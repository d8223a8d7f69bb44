// The data that `zkstrings page` put into the page. Page.cpp describes its form.
const { app, forms, entries, languages } = JSON.parse(document.getElementById("data").textContent);
const [english, ...translations] = languages;

const STATE_NAMES = { t: "translated", n: "needs review", u: "untranslated", m: "missing" };

const entriesByAddress = new Map();
let nextText = 0;
for (const entry of entries) {
  entry.texts = Array.from(entry.counted ? forms : [0], () => nextText++); // their indexes in languages' lists
  entry.address = entriesByAddress.has(entry.key) ? `${entry.key}/count` : entry.key;
  entriesByAddress.set(entry.address, entry);
}

/** Matches a value that the engine has filled in, with the name of its placeholder. */
const VALUE = /\uFDD0([^\uFDD0-\uFDD2]*)\uFDD1([^\uFDD0-\uFDD2]*)\uFDD2/g;

/** The percentage by which the text is longer than the English text. */
function excess(language, text) {
  const length = english.characters[text];
  return length === 0 ? 0 : Math.round((language.characters[text] / length - 1) * 100);
}
