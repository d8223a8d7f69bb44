// One text as a player sees it, with its placeholders and marks in colours.

const MARKS = /(<\/?b>|\*|\n|%\{[^{}]*\})/;

/** The runs of `filled`, each of one placeholder or of none. */
function runsOf({ text, owners }) {
  const runs = [];
  for (let begin = 0; begin < text.length;) {
    let end = begin + 1;
    while (end < text.length && owners[end] === owners[begin]) ++end;
    runs.push({ text: text.slice(begin, end), owner: owners[begin] });
    begin = end;
  }
  return runs;
}

function markOrText(part) {
  if (part === "\n") {
    const sign = element("span", { className: "mark break", attributes: { "aria-hidden": "true" } });
    return [sign, element("br")];
  }
  if (part.startsWith("%{"))
    return [element("span", { className: "unfilled", title: "Filled in by nobody" }, part)];
  if (MARKS.test(part)) return [element("span", { className: "mark" }, part)];
  return part === "" ? [] : [part];
}

function valuesFor(entry, language, count, edits) {
  return entry.values.map(([name, value]) => {
    if (edits.has(name)) return [name, edits.get(name)];
    if (value === null) return [name, String(count)];
    return [name, Array.isArray(value) ? value[language.index] : value];
  });
}

/** The text of `entry` for `count`, filled in with the example values, or those of `edits` where it has them. */
function filledText(entry, language, count, edits) {
  const form = entry.counted ? formOf(count) : 0;
  const text = entry.first + form;
  const result = fill(language.texts[text], valuesFor(entry, language, count, edits));
  const isExample =
    !entry.values.some(([name]) => edits.has(name)) && (!entry.counted || count === data.counts[form]);
  if (!isExample || result.text === engineText(language, text)) return result;
  return { text: engineText(language, text), owners: [] }; // the engine has the last word
}

/** Puts that text into `place`, in its language and direction. Players see English where a text is missing. */
function showText(place, entry, language, count, edits = new Map()) {
  const isMissing = language.states[entry.first + (entry.counted ? formOf(count) : 0)] === "m";
  const shown = isMissing ? english : language;
  place.lang = shown.tag;
  place.dir = shown.isRightToLeft ? "rtl" : "ltr";
  place.classList.add("text");
  place.classList.toggle("is-missing", isMissing);
  const parts = runsOf(filledText(entry, language, count, edits)).flatMap(({ text, owner }) =>
    owner
      ? [element("span", { className: "value", title: owner }, text)]
      : text.split(MARKS).flatMap(markOrText),
  );
  place.replaceChildren(...parts);
}
