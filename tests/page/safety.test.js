// Tests that texts are shown, whatever they contain, and never run.
const assert = require("node:assert");
const { before, after, test } = require("node:test");
const { PROJECT, makePage, dataOf, unmarked, startBrowser, open } = require("./support.js");

let browser;
let file;
before(async () => {
  browser = await startBrowser();
  file = makePage(PROJECT, "safety");
});
after(() => browser.close());

test("Hostile texts show as themselves in the list and on their cards", async () => {
  const page = await open(browser, file);
  const { entries, languages } = dataOf(file);
  const german = languages.findIndex(({ tag }) => tag === "de");
  await page.selectOption("#language", String(german));
  let text = 0;
  for (const { key, counted } of entries) {
    const isHostile = /broken|Turned|Isolated|Up_to|DATA/.test(key);
    if (isHostile) {
      await page.evaluate((address) => (location.hash = address), key);
      await page.waitForFunction(
        (title) => document.getElementById("card-title")?.textContent === title,
        key,
      );
      for (const { tag, texts } of languages) {
        const shown = await page.locator(`#card .language:has(h3 [lang=${tag}]) p`).textContent();
        assert.strictEqual(shown, unmarked(texts[text]), `${tag} ${key}`);
      }
      const row = page.locator("#list li", { has: page.locator(`a[href="#${key}"]`) });
      assert.ok((await row.textContent()).includes(unmarked(languages[german].texts[text])), key);
    }
    text += counted ? 5 : 1;
  }
  assert.strictEqual(await page.evaluate("typeof broken"), "undefined");
  assert.deepStrictEqual(page.problems, []);
});

test("Texts never become elements, and their direction never leaks", async () => {
  const page = await open(browser, file, { address: "#Turned_gnp_exe_back" });
  assert.strictEqual(
    await page.locator("img, svg, style:not(head style), iframe, [onerror], [onload]").count(),
    0,
  );
  assert.strictEqual(await page.locator("script").count(), 2);
  await page.fill("#search", "<img src=x onerror=broken=1>");
  await page.evaluate(() => (location.hash = "<img src=x onerror=broken=1>"));
  await page.waitForSelector("#card-title:has-text('No such text')");
  assert.strictEqual(await page.locator("img").count(), 0);
  await page.evaluate(() => (location.hash = "Be_quick"));
  await page.waitForSelector("#card .context");
  assert.strictEqual(await page.locator("img").count(), 0);
  const isolations = await page
    .locator(".text")
    .evaluateAll((texts) => texts.map((text) => getComputedStyle(text).unicodeBidi));
  assert.ok(isolations.every((isolation) => isolation === "isolate"));
});

test("The browser refuses everything that the page does not contain", async () => {
  const page = await open(browser, file);
  const refused = await page.evaluate(async () => {
    const violations = [];
    addEventListener("securitypolicyviolation", ({ effectiveDirective }) =>
      violations.push(effectiveDirective),
    );
    const add = (name, properties) =>
      document.body.append(Object.assign(document.createElement(name), properties));
    const attempt = (act) => {
      try {
        act();
      } catch {
        // reported as a violation
      }
    };
    attempt(() => add("img", { src: "https://zktrivia.example/a.png" }));
    attempt(() => add("link", { rel: "stylesheet", href: "https://zktrivia.example/a.css" }));
    attempt(() => add("iframe", { src: "https://zktrivia.example/" }));
    attempt(() => add("style", { textContent: "body { display: none }" }));
    attempt(() => add("script", { textContent: "broken = 1" }));
    attempt(() => (document.body.innerHTML = "<p>"));
    await fetch("https://zktrivia.example/").catch(() => {});
    await new Promise((done) => setTimeout(done, 200));
    return violations;
  });
  for (const directive of [
    "img-src",
    "style-src-elem",
    "frame-src",
    "connect-src",
    "require-trusted-types-for",
  ]) {
    assert.ok(refused.includes(directive), `${directive} of ${refused}`);
  }
  assert.strictEqual(await page.evaluate("typeof broken"), "undefined");
});
