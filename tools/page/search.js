// Searches keys and texts in all languages, including by what a screen shows: "12/50 players" finds
// "%{active}/%{limit} players".

/** `text` without what a search ignores: capitals, accents, marks, kinds of quotes and spaces. */
function folded(text) {
  return text
    .replace(/<\/?b>|\*/g, "")
    .normalize("NFKD")
    .replace(/[\u0300-\u036F\u200E\u200F\u061C\u202A-\u202E\u2066-\u2069]/g, "")
    .replace(/[‘’]/g, "'")
    .replace(/[“”„«»]/g, '"')
    .replace(/\s+/g, " ")
    .toLowerCase();
}

const PLACEHOLDER = /%\{[\p{L}\p{N}]+\}/u;

/** The key, texts and patterns that the search compares with, made on first use. */
function searchable(entry) {
  if (entry.searchable) return entry.searchable;
  const marked = new Set(languages.flatMap((language) => entry.texts.map((text) => language.texts[text])));
  const templates = [...marked].map((text) => text.replace(VALUE, "%{$1}"));
  const texts = new Set([...templates, ...[...marked].map((text) => text.replace(VALUE, "$2"))].map(folded));
  const patterns = templates.map((template) => template.split(PLACEHOLDER).map(folded));
  entry.searchable = { key: entry.key.toLowerCase(), texts: `\n${[...texts].join("\n")}\n`, patterns };
  return entry.searchable;
}

/** The length of the longest suffix of `text` that is a prefix of `begin`. */
function overlap(text, begin) {
  for (let length = Math.min(text.length, begin.length); length > 0; --length) {
    if (begin.startsWith(text.slice(text.length - length))) return length;
  }
  return 0;
}

/**
 * The number of characters of `query` that are not values, if `query` is a part of the text with any values; 0 if
 * it is not. `pieces` are the parts of the text around its placeholders.
 */
function ownCharacters(query, pieces) {
  let best = 0;
  for (let first = 0; first + 1 < pieces.length; ++first) {
    let at = overlap(pieces[first], query);
    let own = at;
    for (let next = first + 1; next < pieces.length && at < query.length; ++next) {
      const piece = pieces[next];
      const found = piece === "" ? -1 : query.indexOf(piece, at + 1);
      if (found < 0) {
        own += overlap(query.slice(at + 1), piece); // the query ends within the value, or within this piece
        at = query.length;
      } else {
        own += piece.length;
        at = found + piece.length;
      }
    }
    if (at === query.length) best = Math.max(best, own);
  }
  return best;
}

/** How well the entry matches; 0 for no match. */
function score(entry, query, words) {
  const { key, texts, patterns } = searchable(entry);
  if (key === query) return 6;
  if (texts.includes(`\n${query}\n`)) return 5;
  if (key.startsWith(query)) return 4;
  if (texts.includes(query) || key.includes(query)) return 3;
  if (words.length > 1 && words.every((word) => texts.includes(word) || key.includes(word))) return 2;
  const own = Math.max(...patterns.map((pieces) => ownCharacters(query, pieces)));
  const ENOUGH = 3;
  return own >= ENOUGH && own * 3 >= query.length ? 1 + own / query.length : 0;
}

/** The entries of `some` that match what was typed, the best first. */
function found(some, typed) {
  const query = folded(typed).trim();
  if (query === "") return some;
  const words = query.split(" ");
  return some
    .map((entry) => ({ entry, score: score(entry, query, words) }))
    .filter((result) => result.score > 0)
    .sort((one, other) => other.score - one.score)
    .map((result) => result.entry);
}
