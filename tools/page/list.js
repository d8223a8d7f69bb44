const list = document.getElementById("list");

let shownEntries = [];
let listedLanguage;
let openLink;

for (const entry of entries) {
  const text = element("span");
  showText(text, english, entry.texts.at(-1));
  const key = element("span", { className: "key" }, element("span", {}, ...breakable(entry.key)));
  if (entry.counted) key.append(element("span", { className: "tag" }, "count"));
  entry.translation = element("span", { hidden: true });
  entry.link = element("a", { href: `#${encodeURIComponent(entry.address)}` }, key, text, entry.translation);
  entry.row = element("li", {}, entry.link);
}

function findingItem({ severity, rule, message, place }) {
  return element(
    "li",
    { className: `finding ${severity}` },
    element("strong", {}, severity),
    ` ${message} `,
    element("code", {}, `${place} [${rule}]`),
  );
}

/** Shows the texts of `language` next to the English ones, and the findings for its table. Without one, hides them. */
function showLanguage(language) {
  listedLanguage = language;
  for (const { translation, texts } of entries) {
    translation.hidden = !language;
    if (language) showText(translation, language, texts.at(-1));
  }
  for (const one of translations) one.button.ariaPressed = String(one === language);
  const findings = language?.findings.table ?? [];
  document.getElementById("table-findings").replaceChildren(...findings.map(findingItem));
}

/** Shows the entries that pass the filters. */
function updateList() {
  if (listedLanguage !== chosenLanguage()) showLanguage(chosenLanguage());
  shownEntries = filtered();
  list.replaceChildren(...shownEntries.map(({ row }) => row));
  list.scrollTop = 0;
  const all = shownEntries.length === entries.length ? "" : `${shownEntries.length} of `;
  document.getElementById("count").textContent = `${all}${entries.length} texts`;
  document.getElementById("reset").hidden = [...controls].every(({ value }) => value === "");
}

function markOpenEntry(open) {
  openLink?.removeAttribute("aria-current");
  openLink = open?.link;
  openLink?.setAttribute("aria-current", "true");
}

/** Moves the focus to the next or previous text, or from the search to the first text. */
function moveInList(step) {
  const at = shownEntries.findIndex((entry) => entry.link === document.activeElement);
  const next = at < 0 ? 0 : at + step;
  if (next < 0) return controls.search.focus();
  shownEntries[next]?.link.focus();
}
