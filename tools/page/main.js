const pageTitle = `${app} texts`;
let openEntry;

function openAddress() {
  let address = location.hash.slice(1);
  try {
    address = decodeURIComponent(address);
  } catch {
    // The card shows the address as it is.
  }
  const before = openEntry;
  openEntry = entriesByAddress.get(address);
  document.body.classList.toggle("has-card", address !== "");
  document.title = openEntry ? `${openEntry.key} – ${pageTitle}` : pageTitle;
  if (openEntry) openCard(openEntry);
  else if (address !== "") showUnknown(address);
  else card.replaceChildren(help);
  markOpenEntry(openEntry);
  const isBrowsing = list.contains(document.activeElement) && list.checkVisibility();
  if (address !== "" && !isBrowsing) document.getElementById("card-title").focus();
  if (address === "" && before) (before.row.isConnected ? before.link : controls.search).focus();
}

function onKey(event) {
  const isTyping = event.target.matches("input, select, textarea");
  if (event.altKey || event.ctrlKey || event.metaKey) return;
  if (event.key === "/" && !isTyping) {
    event.preventDefault();
    controls.search.focus();
    controls.search.select();
  } else if (event.key === "Escape") {
    onEscape(event);
  } else if (event.key === "Enter" && event.target === controls.search) {
    shownEntries[0]?.link.click();
  } else if (
    ["ArrowDown", "ArrowUp"].includes(event.key) &&
    (event.target === controls.search || list.contains(event.target))
  ) {
    event.preventDefault();
    moveInList(event.key === "ArrowDown" ? 1 : -1);
  }
}

function onEscape(event) {
  if (event.target === controls.search && controls.search.value !== "") {
    event.preventDefault();
    controls.search.value = "";
    updateList();
  } else if (location.hash !== "") {
    location.hash = "";
  }
}

document.querySelector("h1").textContent = pageTitle;
controls.language.addEventListener("input", () => openEntry && openCard(openEntry));
controls.search.form.addEventListener("input", updateList);
controls.search.form.addEventListener("submit", (event) => event.preventDefault());
document.getElementById("reset").addEventListener("click", () => {
  controls.search.form.reset();
  updateList();
  controls.search.focus();
});
document.addEventListener("keydown", onKey);
addEventListener("hashchange", openAddress);
updateList();
openAddress();
setTimeout(() => entries.forEach(searchable)); // so that the first typed letter need not wait for it
