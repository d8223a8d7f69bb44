function coverageButton(language) {
  const counts = { t: 0, n: 0, u: 0, m: 0 };
  for (const state of language.states) ++counts[state];
  const all = language.states.length;
  const percent = `${all === 0 ? 100 : Math.floor((counts.t * 100) / all)} %`;
  const bar = element("span", { className: "bar", ariaHidden: "true" });
  const summary = [];
  for (const [state, count] of Object.entries(counts).filter(([, count]) => count > 0)) {
    const part = element("span", { className: `bar-${state}` });
    part.style.flexGrow = count / all;
    bar.append(part);
    summary.push(`${count} ${STATE_NAMES[state]}`);
  }
  const problem = language.isWellFormed ? "" : "; the table cannot be read";
  return element(
    "button",
    { type: "button", title: `${language.english}: ${summary.join(", ")}${problem}`, ariaPressed: "false" },
    element("span", { className: "name", lang: language.tag, dir: "auto" }, language.native),
    element("span", { className: "percent" }, language.isWellFormed ? percent : "error"),
    bar,
  );
}

document.getElementById("summary").textContent = `${entries.length} texts in ${languages.length} languages`;
for (const [index, language] of translations.entries()) {
  language.button = coverageButton(language);
  language.button.addEventListener("click", () => {
    controls.language.value = chosenLanguage() === language ? "" : index + 1;
    controls.language.dispatchEvent(new Event("input", { bubbles: true }));
  });
  document.getElementById("coverage").append(element("li", {}, language.button));
}
