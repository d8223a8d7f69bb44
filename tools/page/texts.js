// Elements, and texts as users see them, with their values and marks in colours.

const MARKS = /(<\/?b>|\*|\n|%\{[^{}]*\})/;

/** Makes an element with properties, `attributes` and children. A string becomes text, never markup. */
function element(name, properties = {}, ...children) {
  const { attributes = {}, ...others } = properties;
  const made = Object.assign(document.createElement(name), others);
  for (const [attribute, value] of Object.entries(attributes)) made.setAttribute(attribute, value);
  made.append(...children);
  return made;
}

/** The parts of a key or call, which may wrap after each underscore. */
function breakable(name) {
  return name.split(/(?<=_)/).flatMap((part) => [part, element("wbr")]);
}

function markOrText(part) {
  if (part === "\n") {
    const sign = element("span", { className: "mark break", attributes: { "aria-hidden": "true" } });
    return [sign, element("br")];
  }
  if (part.startsWith("%{"))
    return [element("span", { className: "unfilled", title: "The app does not fill this in" }, part)];
  if (MARKS.test(part)) return [element("span", { className: "mark" }, part)];
  return part === "" ? [] : [part];
}

/** Puts a text into `place`, with its language and direction. The engine shows English where a text is missing. */
function showText(place, language, text) {
  const isMissing = language.states[text] === "m";
  const shown = isMissing ? english : language;
  place.lang = shown.tag;
  place.dir = shown.isRightToLeft ? "rtl" : "ltr";
  place.classList.add("text");
  place.classList.toggle("is-missing", isMissing);
  const parts = language.texts[text].split(VALUE); // text, name, value, text, …
  const shownParts = parts.flatMap((part, at) => {
    if (at % 3 === 0) return part.split(MARKS).flatMap(markOrText);
    return at % 3 === 1 ? [] : element("span", { className: "value", title: parts[at - 1] }, part);
  });
  place.replaceChildren(...shownParts);
}
