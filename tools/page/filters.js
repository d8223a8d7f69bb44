const controls = document.getElementById("filters").elements;

for (const [index, { native, english: name }] of translations.entries()) {
  controls.language.append(new Option(`${native} (${name})`, index + 1));
}

/** The language to show next to English; undefined for all languages. */
function chosenLanguage() {
  return translations[controls.language.value - 1];
}

const SEVERITIES = { finding: ["error", "warning"], note: ["note"] };

function isInState(language, text, state) {
  if (state in SEVERITIES)
    return language.findings[text]?.some(({ severity }) => SEVERITIES[state].includes(severity));
  return state === "" || (state === "gap" ? language.states[text] !== "t" : language.states[text] === state);
}

/** The entries that pass all filters. */
function filtered() {
  const [family, state] = [controls.family.value, controls.state.value];
  const longer = controls.longer.value === "" ? -Infinity : controls.longer.valueAsNumber;
  const asked = chosenLanguage() ? [chosenLanguage()] : languages;
  const isShown = (entry) =>
    (["", entry.family].includes(family) || (family === "with count" && entry.counted)) &&
    asked.some((language) =>
      entry.texts.some((text) => isInState(language, text, state) && excess(language, text) >= longer),
    );
  return found(entries.filter(isShown), controls.search.value);
}
