// The plural form and the placeholders of a text as the engine chooses and fills them, for values that the
// reader edits. A test holds both together over all texts.

/** The form of a counted text that is shown for `count`: an index into FORM_NAMES. */
function formOf(count) {
  if (count < 0 || count > 5) return 4;
  return Math.min(count, 3);
}

/**
 * `text` with its placeholders filled in, one pair of [name, value] after the other: a value that itself
 * contains the placeholder of a later pair is filled in. `owners` has for each code unit of the result the
 * name of the placeholder that it comes from, or "".
 */
function fill(text, values) {
  let owners = new Array(text.length).fill("");
  for (const [name, value] of values) {
    const placeholder = `%{${name}}`;
    for (let at = 0; (at = inComparableForm(text).indexOf(placeholder, at)) >= 0;) {
      const end = at + placeholder.length;
      if (continuesCharacter(text, end)) {
        ++at;
        continue;
      }
      text = text.slice(0, at) + value + text.slice(end);
      owners = owners.slice(0, at).concat(new Array(value.length).fill(name), owners.slice(end));
      at += value.length;
    }
  }
  return { text, owners };
}

/** Three signs equal ASCII ones: the Kelvin sign, the Greek question mark and the Greek varia. */
function inComparableForm(text) {
  return text.replace(/[\u212A\u037E\u1FEF]/g, (sign) => sign.normalize("NFC"));
}

/** Whether an accent stands at `at`, which makes one character with what is before it. */
function continuesCharacter(text, at) {
  if (at >= text.length) return false;
  const next = String.fromCodePoint(text.codePointAt(at));
  const LAST_ACCENT = "\u0345"; // accents stand before it in canonical order
  return next === LAST_ACCENT || !(LAST_ACCENT + next).normalize("NFD").startsWith(LAST_ACCENT);
}
