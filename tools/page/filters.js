// The filters above the list.
const controls = Object.fromEntries(
  ["search", "language", "family", "state", "longer"].map((id) => [id, document.getElementById(id)]),
);

for (const language of translations) {
  controls.language.append(new Option(`${language.native} (${language.english})`, language.index));
}

/** The language to show next to English; undefined for all languages. */
function chosenLanguage() {
  return controls.language.value === "" ? undefined : languages[controls.language.value];
}

function isFamily(entry, family) {
  return family === "" || entry.family === family || (family === "with count" && entry.counted);
}

function isInState(language, text, state) {
  const finding = (severities) =>
    (language.findingsByText.get(text) ?? []).some(({ severity }) => severities.includes(severity));
  switch (state) {
    case "":
      return true;
    case "gap":
      return language.states[text] !== "t";
    case "finding":
      return finding(["error", "warning"]);
    case "note":
      return finding(["note"]);
    default:
      return language.states[text] === state;
  }
}

/** The entries that pass all filters. */
function filtered() {
  const family = controls.family.value;
  const state = controls.state.value;
  const longer = controls.longer.value === "" ? undefined : controls.longer.valueAsNumber;
  const chosen = chosenLanguage();
  const asked = chosen ? [chosen] : languages;
  const isShown = (entry) =>
    isFamily(entry, family) &&
    asked.some((language) =>
      entry.texts.some(
        (text) =>
          isInState(language, text, state) && (longer === undefined || excess(language, text) >= longer),
      ),
    );
  return found(entries.filter(isShown), controls.search.value);
}

function isAnyFilterSet() {
  return Object.values(controls).some((control) => control.value !== "");
}
