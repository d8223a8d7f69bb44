// Whatever stands in a text is shown, and never run.
const assert = require("node:assert");
const { before, after, test } = require("node:test");
const { PROJECT, makePage, dataOf, startBrowser, open } = require("./support.js");

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
      for (const { tag, texts, finished } of languages) {
        const shown = await page.locator(`#card .language:has(h3 [lang=${tag}]) p`).textContent();
        assert.strictEqual(shown, finished[text] || texts[text], `${tag} ${key}`);
      }
      const row = page.locator("#list li", { has: page.locator(`a[href="#${key}"]`) });
      assert.ok(
        (await row.textContent()).includes(languages[german].texts[text].replace("%{STYLE}", "STYLE")),
        key,
      );
    }
    text += counted ? 5 : 1;
  }
  assert.strictEqual(await page.evaluate("typeof broken"), "undefined");
  assert.deepStrictEqual(page.wrongs, []);
});

test("Texts become no elements, and their direction stays in them", async () => {
  const page = await open(browser, file, { address: "#Turned_gnp_exe_back" });
  assert.strictEqual(
    await page.locator("img, svg, style:not(head style), iframe, [onerror], [onload]").count(),
    0,
  );
  assert.strictEqual(await page.locator("script").count(), 2);
  const isolations = await page
    .locator(".text")
    .evaluateAll((texts) => texts.map((text) => getComputedStyle(text).unicodeBidi));
  assert.ok(isolations.every((isolation) => isolation === "isolate"));
});

test("What a reader types is shown, and never run", async () => {
  const page = await open(browser, file, { address: "#Kick_username" });
  const typed = "<img src=x onerror='broken = 1'></script>";
  await page.getByLabel("username").fill(typed);
  assert.strictEqual(await page.locator("#card p[lang=en]").first().textContent(), `Kick ${typed}?`);
  await page.fill("#search", typed);
  assert.strictEqual(await page.locator("img").count(), 0);
  await page.evaluate(() => (location.hash = "<img src=x onerror=broken=1>"));
  await page.waitForSelector("#card-title:has-text('No such text')");
  assert.strictEqual(await page.evaluate("typeof broken"), "undefined");
  assert.deepStrictEqual(page.wrongs, []);
});

test("The browser refuses what is not the page's own", async () => {
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
        // told as a violation
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
