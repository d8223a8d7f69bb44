// The card of one text: the text in every language, with its state and findings.
const card = document.getElementById("card");
const help = document.getElementById("help");

function copyButton(source, what) {
  const button = element("button", { type: "button", className: "copy" }, "Copy");
  button.setAttribute("aria-label", `Copy ${what}`);
  button.addEventListener("click", async () => {
    getSelection().selectAllChildren(source); // to copy by hand if the browser refuses below
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
    entry.context === "" ? "" : element("p", { className: "context", dir: "auto" }, entry.context),
    element("div", { className: "call-line" }, call, copyButton(call, "the accessor call")),
  );
}

function lengthTag(entry, language) {
  const most = Math.max(...entry.texts.map((text) => excess(language, text)));
  const sign = most > 0 ? "+" : most < 0 ? "−" : "±";
  const length = element(
    "span",
    { className: most >= 100 ? "tag long" : "tag" },
    `${sign}${Math.abs(most)} %`,
  );
  length.title = "Length compared with English, with the example values";
  return length;
}

function isMissing(entry, language) {
  return entry.texts.every((text) => language.states[text] === "m");
}

function stateTags(entry, language) {
  const states = new Set(entry.texts.map((text) => language.states[text]));
  return ["m", "u", "n"]
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

function formRow(entry, language, form) {
  const { name, counts, example } = data.forms[form];
  const text = element("td");
  showText(text, language, entry.texts[form]);
  const title = `${name}: ${counts}`;
  return element("tr", {}, element("th", { scope: "row", title }, String(example)), text);
}

function textsOf(entry, language) {
  if (!entry.counted) {
    const text = element("p");
    showText(text, language, entry.texts[0]);
    return text;
  }
  const table = element("table", { attributes: { "aria-label": `${language.english}, by count` } });
  table.dir = language.isRightToLeft ? "rtl" : "ltr";
  table.append(...data.forms.map((_, form) => formRow(entry, language, form)));
  return table;
}

function languageBlock(entry, language) {
  const findings = entry.texts.flatMap((text) => language.findingsByText.get(text) ?? []);
  const previous = new Set(entry.texts.flatMap((text) => language.previous.get(text) ?? []));
  return element(
    "article",
    { className: "language" },
    languageHead(entry, language),
    textsOf(entry, language),
    ...[...previous].map((text) => element("p", { className: "previous" }, `The English was “${text}”`)),
    findings.length > 0 ? element("ul", { className: "findings" }, ...findings.map(findingItem)) : "",
  );
}

function openCard(entry) {
  const shown = new Set([english, chosenLanguage() ?? english, ...languages]); // in this order
  const blocks = [...shown].map((language) => languageBlock(entry, language));
  card.replaceChildren(headOf(entry), element("div", { className: "languages" }, ...blocks));
  card.scrollTop = 0;
}

function showUnknown(address) {
  card.replaceChildren(
    element("a", { className: "back", href: "#" }, "All texts"),
    element("h2", { tabIndex: -1, id: "card-title" }, "No such text"),
    element("p", {}, `No text has the key “${address}”. It may be misspelled, or the text was removed.`),
  );
}
