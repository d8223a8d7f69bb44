// The card of one text: the text in every language, with its state and findings.
const card = document.getElementById("card");
const help = document.getElementById("help");

function copyButton(source, what) {
  const button = element("button", { type: "button", className: "copy", ariaLabel: `Copy ${what}` }, "Copy");
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

function backLink() {
  return element("a", { className: "back", href: "#" }, "All texts");
}

function title(...children) {
  return element("h2", { tabIndex: -1, id: "card-title" }, ...children);
}

function headOf(entry) {
  const call = element("code", { className: "call" }, ...breakable(entry.call));
  return element(
    "header",
    {},
    backLink(),
    title(...breakable(entry.key)),
    element("p", { className: "family" }, entry.family.replace(" ", " and ")),
    element("p", { className: "context", dir: "auto" }, entry.context),
    element("div", { className: "call-line" }, call, copyButton(call, "the accessor call")),
  );
}

function lengthTag(entry, language) {
  const most = Math.max(...entry.texts.map((text) => excess(language, text)));
  const sign = most > 0 ? "+" : most < 0 ? "−" : "±";
  const className = most >= 100 ? "tag long" : "tag";
  const title = "Length compared with English, with the example values";
  return element("span", { className, title }, `${sign}${Math.abs(most)} %`);
}

function languageHead(entry, language) {
  const states = entry.texts.map((text) => language.states[text]);
  const tags = ["m", "u", "n"]
    .filter((state) => states.includes(state))
    .map((state) => element("span", { className: `tag state-${state}` }, STATE_NAMES[state]));
  const isMissing = states.every((state) => state === "m");
  if (language !== english && !isMissing) tags.push(lengthTag(entry, language));
  return element(
    "header",
    {},
    element("h3", {}, element("span", { lang: language.tag, dir: "auto" }, language.native)),
    element("span", { className: "english-name" }, language === english ? "" : language.english),
    ...tags,
  );
}

function textElement(name, language, text) {
  const made = element(name);
  showText(made, language, text);
  return made;
}

function formsTable(entry, language) {
  const rows = forms.map(({ name, counts, example }, form) => {
    const head = element("th", { scope: "row", title: `${name}: ${counts}` }, String(example));
    return element("tr", {}, head, textElement("td", language, entry.texts[form]));
  });
  const ariaLabel = `${language.english}, by count`;
  return element("table", { ariaLabel, dir: language.isRightToLeft ? "rtl" : "ltr" }, ...rows);
}

function languageBlock(entry, language) {
  const findings = entry.texts.flatMap((text) => language.findings[text] ?? []);
  const previous = new Set(entry.texts.flatMap((text) => language.previous[text] ?? []));
  return element(
    "article",
    { className: "language" },
    languageHead(entry, language),
    entry.counted ? formsTable(entry, language) : textElement("p", language, entry.texts[0]),
    ...[...previous].map((text) => element("p", { className: "previous" }, `The English was “${text}”`)),
    element("ul", { className: "findings" }, ...findings.map(findingItem)),
  );
}

function openCard(entry) {
  const shown = new Set([english, chosenLanguage() ?? english, ...languages]); // in this order
  const blocks = [...shown].map((language) => languageBlock(entry, language));
  card.replaceChildren(headOf(entry), element("div", { className: "languages" }, ...blocks));
  card.scrollTop = 0;
}

function showUnknown(address) {
  const reason = `No text has the key “${address}”. It may be misspelled, or the text was removed.`;
  card.replaceChildren(backLink(), title("No such text"), element("p", {}, reason));
}
