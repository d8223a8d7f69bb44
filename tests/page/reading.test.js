// Tests what writers, translators and testers do with the page.
const assert = require("node:assert");
const { before, after, test } = require("node:test");
const { ROOT, PROJECT, makePage, startBrowser, open, listedKeys } = require("./support.js");

let browser;
let shipped;
let small;
before(async () => {
  browser = await startBrowser();
  shipped = makePage(ROOT, "reading");
  small = makePage(PROJECT, "reading-small");
});
after(() => browser.close());

test("The search finds a text by any part of it, the best match first", async () => {
  const page = await open(browser, shipped);
  const searches = {
    active_limit_players: "active_limit_players", // the key
    "12/50 players": "active_limit_players", // what a screen shows
    "7/9 PLAYERS": "active_limit_players",
    "Are you sure you want to kick robin?": "Are_you_sure_you_want_to_kick_username",
    "want to kick robin": "Are_you_sure_you_want_to_kick_username", // a part
    "Möchtest du robin wirklich rausw": "Are_you_sure_you_want_to_kick_username", // another language, still being typed
    "mochtest du robin wirklich raus": "Are_you_sure_you_want_to_kick_username", // without accents
    "warm up and win coins": "In_the_meantime_warm_up_nand_win_coins", // over a line break
    "%{active}/%{limit}": "active_limit_players",
    "Abzeichen keine Noch": "badgeCount_Badges", // words in any order
  };
  for (const [typed, key] of Object.entries(searches)) {
    await page.fill("#search", typed);
    assert.strictEqual((await listedKeys(page))[0], key, typed);
  }
  await page.fill("#search", "no such text anywhere");
  assert.deepStrictEqual(await listedKeys(page), []);
  assert.ok(await page.isVisible("#nothing"));
  await page.click("#reset");
  assert.match(await page.textContent("#count"), /^\d+ texts$/);
  assert.deepStrictEqual(page.problems, []);
});

test("Filters leave the matching texts", async () => {
  const page = await open(browser, small);
  const German = "2";
  const Arabic = "1";
  const cases = [
    [{ "#family": "counted" }, ["Coins"]],
    [{ "#family": "counted formatted" }, ["badgeCount_Badges"]],
    [{ "#family": "with count" }, ["badgeCount_Badges", "Coins"]],
    [
      { "#family": "formatted" },
      ["active_limit_players", "DATA_and_STYLE", "first_beats_second", "Kick_username"],
    ],
    [{ "#language": German, "#state": "m" }, ["badgeCount_Badges"]],
    [{ "#language": German, "#state": "u" }, ["First_line_nSecond_line"]],
    [{ "#language": German, "#state": "n" }, ["Be_quick"]],
    [{ "#language": German, "#state": "gap" }, ["badgeCount_Badges", "Be_quick", "First_line_nSecond_line"]],
    [
      { "#language": German, "#state": "finding", "#family": "formatted" },
      ["first_beats_second", "Kick_username"],
    ],
    [{ "#language": Arabic, "#state": "m" }, []],
    [{ "#language": German, "#longer": "200" }, ["badgeCount_Badges"]],
    [{ "#language": German, "#longer": "200", "#family": "plain" }, []],
  ];
  for (const [filters, keys] of cases) {
    for (const id of ["#family", "#state", "#language"]) await page.selectOption(id, filters[id] ?? "");
    await page.fill("#longer", filters["#longer"] ?? "");
    assert.deepStrictEqual(await listedKeys(page), keys, JSON.stringify(filters));
  }
});

test("A bar shows the progress of a language and selects it", async () => {
  const page = await open(browser, small);
  const bars = page.locator("#coverage button");
  assert.deepStrictEqual(await bars.locator(".percent").allTextContents(), ["70 %", "88 %", "error"]);
  assert.match(
    await bars.nth(1).getAttribute("title"),
    /^German: 24 translated, 1 needs review, 1 untranslated, 1 missing$/,
  );
  await bars.nth(1).click();
  assert.strictEqual(await bars.nth(1).getAttribute("aria-pressed"), "true");
  assert.strictEqual(await page.locator("#list [lang=de]").first().textContent(), "Über uns");
  await bars.nth(1).click();
  assert.strictEqual(await page.locator("#list [lang=de]:visible").count(), 0);
  await page.selectOption("#language", "3");
  assert.match(await page.textContent("#table-findings"), /expected ";".*fr\.lproj\/Localizable\.strings:2:/);
});

test("A card shows one text in every language and plural form", async () => {
  const page = await open(browser, small, { address: "#badgeCount_Badges" });
  const rows = (language) => page.locator(`#card table[aria-label^="${language}"] tr`).allInnerTexts();
  assert.deepStrictEqual(await rows("English"), [
    "0\tNo Badges yet",
    "1\t1 Badge",
    "2\t2 Badges",
    "4\t4 Badges",
    "11\t11 Badges",
  ]);
  assert.deepStrictEqual(await rows("Arabic"), [
    "0\tلا شارات بعد",
    "1\tشارة واحدة",
    "2\tشارتان",
    "4\t4 شارات",
    "11\tعدد الشارات: 11",
  ]);
  assert.strictEqual((await rows("German"))[3], "4\t4 Badges"); // missing, so English
  assert.match(
    await page.locator(".language", { hasText: "German" }).locator("header").innerText(),
    /missing/,
  );
  assert.match(
    await page.locator(".language", { hasText: "Arabic" }).locator(".findings").innerText(),
    /unused-placeholder/,
  );
  assert.strictEqual(await page.locator("#card th[title='few: 3 to 5']").count(), 4);
});

test("A card shows the text's comment and limit, and the English text before a change", async () => {
  const page = await open(browser, small, { address: "#Be_quick" });
  const context = await page.textContent("#card .context");
  assert.strictEqual(context, 'A shout at the end. <img src=x onerror="broken = 9">. At most 12 characters.');
  assert.match(await page.innerText(".language:has([lang=de]) header"), /needs review/);
  assert.strictEqual(await page.textContent(".previous"), "The English was “Be <b>swift</b>!”");
});

test("An address opens the card of its text or reports that there is none", async () => {
  const page = await open(browser, small, { address: "#Coins/count" });
  assert.strictEqual(await page.locator("#card table").count(), 4);
  await page.evaluate(() => (location.hash = "Coins"));
  await page.waitForSelector("#card p.text");
  await page.evaluate(() => (location.hash = "%E0%A4%A"));
  await page.waitForSelector("#card-title:has-text('No such text')");
  assert.match(await page.textContent("#card"), /“%E0%A4%A”/);
  assert.deepStrictEqual(page.problems, []);
});

test("The button copies the accessor call", async () => {
  const page = await open(browser, small, {
    address: "#active_limit_players",
    permissions: ["clipboard-read", "clipboard-write"],
  });
  await page.getByRole("button", { name: "Copy the accessor call" }).click();
  await page.waitForSelector("text=Copied");
  assert.strictEqual(
    await page.evaluate(() => navigator.clipboard.readText()),
    "myapp::Guestbook::active_limit_players(active, limit)",
  );
});

test("Everything can be reached from the keyboard", async () => {
  const page = await open(browser, small);
  const focused = () => page.evaluate(() => document.activeElement.id || document.activeElement.textContent);
  await page.keyboard.press("/");
  assert.strictEqual(await focused(), "search");
  await page.keyboard.type("spieler");
  await page.keyboard.press("ArrowDown");
  assert.match(await focused(), /^active_limit_players/);
  await page.keyboard.press("ArrowUp");
  assert.strictEqual(await focused(), "search");
  await page.keyboard.press("Enter");
  await page.waitForSelector("#card p.text");
  assert.strictEqual(await page.title(), "active_limit_players – Guest <b>Book</b> texts");
  await page.keyboard.press("Escape"); // closes the card
  await page.waitForSelector("#card .help");
  assert.match(await focused(), /^active_limit_players/);
  await page.keyboard.press("/");
  await page.keyboard.press("Escape"); // clears the search
  assert.strictEqual(await page.inputValue("#search"), "");
  for (let i = 0; i < 3; ++i) await page.keyboard.press("ArrowDown");
  assert.match(await focused(), /^b_Terms_b_Rules/);
});
