// One text with everything about it.
const card = document.getElementById("card");
const edits = new Map(); // the values that the reader has put in, by placeholder

function countsIn(typed) {
  return (typed.match(/-?\d+/g) ?? []).slice(0, 12).map(Number);
}

function copyButton(source, what) {
  const button = element("button", { type: "button", className: "copy" }, "Copy");
  button.setAttribute("aria-label", `Copy ${what}`);
  button.addEventListener("click", async () => {
    getSelection().selectAllChildren(source); // so that it can be copied by hand where the browser forbids it
    try {
      await navigator.clipboard.writeText(source.textContent);
      button.textContent = "Copied";
    } catch {
      button.textContent = "Selected";
    }
    setTimeout(() => (button.textContent = "Copy"), 1500);
  });
  return button;
}

function headOf(entry) {
  const call = element("code", { className: "call" }, ...breakable(entry.call));
  const back = element("a", { className: "back", href: "#" }, "All texts");
  return element(
    "header",
    {},
    back,
    element("h2", { tabIndex: -1, id: "card-title" }, ...breakable(entry.key)),
    element("p", { className: "family" }, entry.family.replace(" ", " and ")),
    element("div", { className: "call-line" }, call, copyButton(call, "the accessor call")),
  );
}

function valueField(name, value, onInput) {
  const input = element("input", {
    type: "text",
    value,
    maxLength: 200,
    autocomplete: "off",
    spellcheck: false,
    dir: "auto",
  });
  input.addEventListener("input", () => onInput(input.value));
  return element("label", {}, element("span", {}, name), input);
}

/** The fields for the example values; `onChange` is called after each edit with the counts to show. */
function valuesForm(entry, onChange) {
  let counts = data.counts;
  const fields = entry.values
    .filter(([, value]) => value !== null)
    .map(([name, value]) =>
      valueField(name, edits.get(name) ?? (Array.isArray(value) ? value[0] : value), (typed) => {
        edits.set(name, typed);
        onChange(counts);
      }),
    );
  if (entry.counted) {
    const onCounts = (typed) => {
      counts = countsIn(typed);
      onChange(counts);
    };
    fields.push(valueField("count", counts.join(" "), onCounts));
  }
  if (fields.length === 0) return "";
  const reset = element("button", { type: "button" }, "Reset");
  reset.addEventListener("click", () => {
    edits.clear();
    openCard(entry);
  });
  const title = element("h3", { id: "values-title" }, "Example values");
  const form = element(
    "form",
    { className: "values", attributes: { "aria-labelledby": "values-title" } },
    title,
    ...fields,
    reset,
  );
  form.addEventListener("submit", (event) => event.preventDefault());
  return form;
}

function lengthTag(entry, language) {
  let most = -Infinity;
  someText(entry, (text) => void (most = Math.max(most, excess(language, text))));
  const sign = most > 0 ? "+" : most < 0 ? "−" : "±";
  const length = element(
    "span",
    { className: most >= 100 ? "tag long" : "tag" },
    `${sign}${Math.abs(most)} %`,
  );
  length.title = "Length beside English, with the example values";
  return length;
}

function isMissing(entry, language) {
  return !someText(entry, (text) => language.states[text] !== "m");
}

function stateTags(entry, language) {
  const states = new Set();
  someText(entry, (text) => void states.add(language.states[text]));
  return ["m", "u", "r"]
    .filter((state) => states.has(state))
    .map((state) => element("span", { className: `tag state-${state}` }, STATE_NAMES[state]));
}

function languageHead(entry, language) {
  return element(
    "header",
    {},
    element("h3", {}, element("span", { lang: language.tag, dir: "auto" }, language.native)),
    element("span", { className: "english-name" }, language === english ? "" : language.english),
    ...stateTags(entry, language),
    language === english || isMissing(entry, language) ? "" : lengthTag(entry, language),
  );
}

function countRow(entry, language, count) {
  const text = element("td");
  showText(text, entry, language, count, edits);
  return element(
    "tr",
    {},
    element("th", { scope: "row", title: FORM_NAMES[formOf(count)] }, String(count)),
    text,
  );
}

function textsOf(entry, language, counts) {
  if (!entry.counted) {
    const text = element("p");
    showText(text, entry, language, undefined, edits);
    return text;
  }
  const table = element("table", { attributes: { "aria-label": `${language.english}, by count` } });
  table.dir = language.isRightToLeft ? "rtl" : "ltr";
  table.append(...counts.map((count) => countRow(entry, language, count)));
  return table;
}

function languageBlock(entry, language) {
  const findings = [];
  someText(entry, (text) => void findings.push(...(language.findingsByText.get(text) ?? [])));
  const place = element("div");
  const block = element("article", { className: "language" }, languageHead(entry, language), place);
  if (findings.length > 0)
    block.append(element("ul", { className: "findings" }, ...findings.map(findingItem)));
  return { block, show: (counts) => place.replaceChildren(textsOf(entry, language, counts)) };
}

function openCard(entry) {
  const first = [english, chosenLanguage() ?? english]; // the others follow
  const blocks = [...new Set([...first, ...languages])].map((language) => languageBlock(entry, language));
  const show = (counts) => blocks.forEach((block) => block.show(counts));
  show(data.counts);
  const grid = element("div", { className: "languages" }, ...blocks.map(({ block }) => block));
  card.replaceChildren(headOf(entry), valuesForm(entry, show), grid);
  card.scrollTop = 0;
}

function showUnknown(address) {
  card.replaceChildren(
    element("a", { className: "back", href: "#" }, "All texts"),
    element("h2", { tabIndex: -1, id: "card-title" }, "No such text"),
    element("p", {}, `Nothing has the key “${address}”. It may have been removed, or spelled otherwise.`),
  );
}

function showHelp() {
  const keys = [
    ["/", "search"],
    ["↑ ↓", "from text to text"],
    ["Enter", "open one"],
    ["Esc", "back"],
  ];
  const rows = keys.flatMap(([key, use]) => [
    element("dt", {}, element("kbd", {}, key)),
    element("dd", {}, use),
  ]);
  card.replaceChildren(
    element(
      "div",
      { className: "help" },
      element("p", {}, "Choose a text to see it in every language."),
      element("dl", {}, ...rows),
    ),
  );
}
