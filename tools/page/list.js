// The list of texts.
const list = document.getElementById("list");
const listedCount = (entry) => (entry.counted ? data.counts[FORM_NAMES.length - 1] : undefined);

let shownEntries = [];
let listedLanguage;
let listing = 0; // which update of the list is at work
let rows = 0; // how many it has added
let openLink;

function rowOf(entry) {
  if (entry.row) return entry.row;
  const text = element("span");
  showText(text, entry, english, listedCount(entry));
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
  showText(entry.translation, entry, listedLanguage, listedCount(entry));
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

/** Adds the next rows of the update `of`, some at a time, so that typing need not wait for all of them. */
function addRows(of, atATime = 100) {
  if (of !== listing) return;
  const added = shownEntries.slice(rows, rows + atATime);
  rows += added.length;
  list.append(...added.map(rowOf));
  added.forEach(showTranslation);
  if (rows < shownEntries.length) setTimeout(addRows, 0, of);
}

/** Paper has all rows, also when the list is printed right after it has changed. */
addEventListener("beforeprint", () => addRows(listing, entries.length));

/** Shows the entries that the filters let through. */
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

/** Moves the focus to the next text, or the one before; from the search to the first. */
function moveInList(step) {
  const at = shownEntries.findIndex((entry) => entry.link === document.activeElement);
  const next = at < 0 ? 0 : at + step;
  if (next < 0) return controls.search.focus();
  shownEntries[next]?.link.focus();
}
