const MARKS = /(<\/?b>|\*|\n|%\{[^{}]*\})/;

/** Makes an element with properties and children. A string becomes text, never markup. */
function element(name, properties = {}, ...children) {
  const made = Object.assign(document.createElement(name), properties);
  made.append(...children);
  return made;
}

/** The parts of a key or call, which may wrap after each underscore. */
function breakable(name) {
  return name.split(/(?<=_)/).flatMap((part) => [part, element("wbr")]);
}

function markOrText(part) {
  if (part === "\n") return [element("span", { className: "mark break", ariaHidden: "true" }), element("br")];
  if (part.startsWith("%{"))
    return [element("span", { className: "unfilled", title: "The app does not fill this in" }, part)];
  return [MARKS.test(part) ? element("span", { className: "mark" }, part) : part];
}

/** Puts a text into `place`, with its language and direction. The engine shows English where a text is missing. */
function showText(place, language, text) {
  const isMissing = language.states[text] === "m";
  const shown = isMissing ? english : language;
  place.lang = shown.tag;
  place.dir = shown.isRightToLeft ? "rtl" : "ltr";
  place.className = isMissing ? "text is-missing" : "text";
  const parts = language.texts[text].split(VALUE); // text, name, value, text, …
  const shownParts = parts.flatMap((part, at) => {
    if (at % 3 === 0) return part.split(MARKS).flatMap(markOrText);
    return at % 3 === 1 ? [] : element("span", { className: "value", title: parts[at - 1] }, part);
  });
  place.replaceChildren(...shownParts);
}
