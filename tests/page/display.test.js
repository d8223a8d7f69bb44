// The layout, the colours and the accessibility of the page.
const assert = require("node:assert");
const { before, after, test } = require("node:test");
const axe = require("axe-core");
const { statSync } = require("node:fs");
const { ROOT, PROJECT, makePage, startBrowser, open } = require("./support.js");

let browser;
let shipped;
let small;
before(async () => {
  browser = await startBrowser();
  shipped = makePage(ROOT, "display");
  small = makePage(PROJECT, "display-small");
});
after(() => browser.close());

const ADDRESSES = ["", "#badgeCount_Badges", "#Kick_username"];
const WIDTHS = [320, 800, 1600];

test("The page of all languages stays below 3 MB", () => {
  assert.ok(statSync(shipped).size < 3_000_000);
});

test("The accessibility checker reports nothing serious", async () => {
  for (const colorScheme of ["light", "dark"]) {
    for (const width of WIDTHS) {
      for (const address of ADDRESSES) {
        const page = await open(browser, small, { address, colorScheme, viewport: { width, height: 900 } });
        await page.selectOption("#language", "2", { force: true });
        await page.evaluate(axe.source);
        const { violations } = await page.evaluate(() => window.axe.run());
        const serious = violations.filter(({ impact }) => ["serious", "critical"].includes(impact));
        const reports = serious.map(({ id, nodes }) => `${id}: ${nodes[0].html}\n${nodes[0].failureSummary}`);
        assert.deepStrictEqual(reports, [], `${colorScheme} ${width} ${address}`);
        await page.context().close();
      }
    }
  }
});

test("No part of the page is wider than the screen", async () => {
  for (const width of WIDTHS) {
    for (const file of [shipped, small]) {
      for (const address of [
        ...ADDRESSES,
        "#username_username2_and_friendCount_other_friends_were_eliminated",
      ]) {
        const page = await open(browser, file, { address, viewport: { width, height: 900 } });
        const widest = await page.evaluate(() => document.scrollingElement.scrollWidth);
        assert.ok(widest <= width, `${widest} at ${width} ${address}`);
        const cardWidth = await page.evaluate(() => [card.scrollWidth, card.clientWidth]);
        assert.ok(cardWidth[0] <= cardWidth[1], `${cardWidth} at ${width} ${address}`);
        await page.context().close();
      }
    }
  }
});

test("On a narrow screen a card replaces the list until it is closed", async () => {
  const page = await open(browser, small, { viewport: { width: 320, height: 700 } });
  assert.ok(await page.isHidden("#card"));
  await page.click("#list a >> nth=0");
  await page.waitForSelector("#card-title");
  assert.ok(await page.isHidden("#list"));
  assert.strictEqual(await page.evaluate(() => document.activeElement.id), "card-title");
  await page.click(".back");
  await page.waitForSelector("#list", { state: "visible" });
  assert.match(await page.evaluate(() => document.activeElement.textContent), /^About/);
});

test("Each text has its language and direction", async () => {
  const page = await open(browser, small, { address: "#Kick_username" });
  const Arabic = page.locator("#card p[lang=ar]");
  assert.strictEqual(await Arabic.textContent(), "هل تطرد kim؟");
  assert.strictEqual(await Arabic.evaluate((text) => getComputedStyle(text).direction), "rtl");
  const German = page.locator("#card p[lang=de]");
  assert.strictEqual(await German.evaluate((text) => getComputedStyle(text).direction), "ltr");
  const name = page.locator("#card h3 [lang=ar]");
  assert.strictEqual(await name.textContent(), "العربية");
  // On the screen, from the left: the question mark, the name, the verb.
  const [verb, mark] = await Arabic.evaluate((text) => {
    const leftOf = (node, offset) => {
      const range = document.createRange();
      range.setStart(node, offset);
      range.setEnd(node, offset + 1);
      return range.getBoundingClientRect().left;
    };
    return [leftOf(text.firstChild, 0), leftOf(text.lastChild, 0)];
  });
  const values = (of) => of.locator(".value").evaluateAll((all) => all.map((one) => one.getBoundingClientRect().left));
  const [value] = await values(Arabic);
  assert.ok(mark < value && value < verb, `${mark} ${value} ${verb}`);
  // "12/50" in Arabic text is shown with the 12 on the left, as apps show it.
  await page.evaluate(() => (location.hash = "active_limit_players"));
  await page.waitForSelector("#card-title:has-text('active')");
  const [active, limit] = await values(Arabic);
  assert.ok(active < limit, `${active} ${limit}`);
});

test("Values, marks and unfilled placeholders have different colours", async () => {
  const page = await open(browser, small, { address: "#Kick_username" });
  const color = (place) =>
    page
      .locator(place)
      .first()
      .evaluate((node) => getComputedStyle(node).color);
  assert.strictEqual(await page.locator("[lang=de] .unfilled").textContent(), "%{benutzer}");
  const colors = new Set([
    await color("#card p.text"),
    await color("#card .value"),
    await color("#card .unfilled"),
  ]);
  await page.evaluate(() => (location.hash = "b_Terms_b_Rules"));
  assert.deepStrictEqual(await page.locator("#card .language:first-child .mark").allTextContents(), [
    "<b>",
    "</b>",
    "*",
    "*",
  ]);
  colors.add(await color("#card .language:first-child .mark"));
  assert.strictEqual(colors.size, 4);
});

test("The page follows the system's dark mode", async () => {
  const lightness = async (colorScheme) => {
    const page = await open(browser, small, { colorScheme });
    const [red] = (await page.evaluate(() => getComputedStyle(document.body).backgroundColor)).match(/\d+/g);
    return Number(red);
  };
  assert.ok((await lightness("light")) > 200);
  assert.ok((await lightness("dark")) < 50);
});

test("Print shows all texts and nothing else", async () => {
  const page = await open(browser, small);
  await page.emulateMedia({ media: "print" });
  assert.ok(await page.isHidden("#filters"));
  assert.ok(await page.isVisible("#list"));
  const isCut = await page.evaluate(() => list.scrollHeight > list.clientHeight + 1);
  assert.ok(!isCut);
});
