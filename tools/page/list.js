// The list of texts.
const list = document.getElementById("list");

let shownEntries = [];
let listedLanguage;
let listing = 0; // the number of the update that is adding rows
let rows = 0; // the number of rows it has added
let openLink;

function rowOf(entry) {
  if (entry.row) return entry.row;
  const text = element("span");
  showText(text, english, entry.texts.at(-1));
  entry.translation = element("span", { hidden: true });
  entry.link = element(
    "a",
    { href: `#${encodeURIComponent(entry.address)}` },
    element(
      "span",
      { className: "key" },
      element("span", {}, ...breakable(entry.key)),
      entry.counted ? element("span", { className: "tag" }, "count") : "",
    ),
    text,
    entry.translation,
  );
  entry.row = element("li", {}, entry.link);
  return entry.row;
}

function showTranslation(entry) {
  if (entry.shownLanguage === listedLanguage) return;
  entry.shownLanguage = listedLanguage;
  entry.translation.hidden = !listedLanguage;
  if (!listedLanguage) return;
  showText(entry.translation, listedLanguage, entry.texts.at(-1));
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

function showTableFindings() {
  const place = document.getElementById("table-findings");
  const findings = listedLanguage?.findingsByText.get(null) ?? [];
  place.hidden = findings.length === 0;
  place.replaceChildren(...findings.map(findingItem));
}

/** Adds the next rows of the update `of`, in batches, so that typing never waits for all rows. */
function addRows(of, batch = 100) {
  if (of !== listing) return;
  const added = shownEntries.slice(rows, rows + batch);
  rows += added.length;
  list.append(...added.map(rowOf));
  added.forEach(showTranslation);
  if (rows < shownEntries.length) setTimeout(addRows, 0, of);
}

// Paper shows all rows, even right after the list has changed.
addEventListener("beforeprint", () => addRows(listing, entries.length));

/** Shows the entries that pass the filters. */
function updateList() {
  listedLanguage = chosenLanguage();
  shownEntries = filtered();
  list.replaceChildren();
  rows = 0;
  addRows(++listing);
  list.scrollTop = 0;
  markChosenLanguage(listedLanguage);
  showTableFindings();
  const all = shownEntries.length === entries.length;
  document.getElementById("count").textContent = all
    ? `${entries.length} texts`
    : `${shownEntries.length} of ${entries.length} texts`;
  document.getElementById("nothing").hidden = shownEntries.length > 0;
  document.getElementById("reset").hidden = !isAnyFilterSet();
}

function markOpenEntry(open) {
  openLink?.removeAttribute("aria-current");
  openLink = open && rowOf(open).querySelector("a");
  openLink?.setAttribute("aria-current", "true");
}

/** Moves the focus to the next or previous text, or from the search to the first text. */
function moveInList(step) {
  const at = shownEntries.findIndex((entry) => entry.link === document.activeElement);
  const next = at < 0 ? 0 : at + step;
  if (next < 0) return controls.search.focus();
  shownEntries[next]?.link.focus();
}
