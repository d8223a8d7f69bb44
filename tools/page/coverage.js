// The progress of each language, as bars at the top.

function coverageOf(language) {
  const counts = { t: 0, n: 0, u: 0, m: 0 };
  for (const state of language.states) ++counts[state];
  const all = language.states.length;
  return { counts, all, percent: all === 0 ? 100 : Math.floor((counts.t * 100) / all) };
}

function coverageBar({ counts, all }) {
  const bar = element("span", { className: "bar", attributes: { "aria-hidden": "true" } });
  for (const [state, count] of Object.entries(counts)) {
    if (count === 0) continue;
    const part = element("span", { className: `bar-${state}` });
    part.style.flexGrow = count / all;
    bar.append(part);
  }
  return bar;
}

function coverageButton(language, choose) {
  const coverage = coverageOf(language);
  const summary = Object.entries(coverage.counts)
    .filter(([, count]) => count > 0)
    .map(([state, count]) => `${count} ${STATE_NAMES[state]}`)
    .join(", ");
  const button = element(
    "button",
    {
      type: "button",
      title: `${language.english}: ${summary}${language.isWellFormed ? "" : "; the table cannot be read"}`,
      attributes: { "aria-pressed": "false" },
    },
    element("span", { className: "name", lang: language.tag, dir: "auto" }, language.native),
    element("span", { className: "for-readers" }, ` (${language.english})`),
    element("span", { className: "percent" }, language.isWellFormed ? `${coverage.percent} %` : "error"),
    coverageBar(coverage),
  );
  button.addEventListener("click", () => choose(language));
  return button;
}

/** Shows the bars. A click on one calls `choose` with its language. */
function showCoverage(choose) {
  document.getElementById("summary").textContent = `${entries.length} texts in ${languages.length} languages`;
  const list = document.getElementById("coverage");
  for (const language of translations) {
    language.coverageButton = coverageButton(language, choose);
    list.append(element("li", {}, language.coverageButton));
  }
}

function markChosenLanguage(chosen) {
  for (const language of translations) {
    language.coverageButton.setAttribute("aria-pressed", String(language === chosen));
  }
}
