// Makes pages and shows them in the system's Chromium.
const { execFileSync } = require("node:child_process");
const { readFileSync } = require("node:fs");
const path = require("node:path");
const { pathToFileURL } = require("node:url");
const { chromium } = require("playwright-core");

const ROOT = path.join(__dirname, "../..");
const PROJECT = path.join(__dirname, "project"); // a small one, with gaps, faults and hostile texts
const PROGRAMS = process.env.ZK_PROGRAMS;
const OUTPUT = process.env.ZK_OUTPUT;

/** Writes the page of the project at `root`; gives its file. */
function makePage(root, name) {
  const file = path.join(OUTPUT, `${name}.html`);
  execFileSync(path.join(PROGRAMS, "zkstrings"), ["--root", root, "page", "-o", file]);
  return file;
}

/** The data of a page, as its script reads them. */
function dataOf(file) {
  const html = readFileSync(file, "utf8");
  return JSON.parse(html.match(/<script type="application\/json" id="data">(.*?)<\/script>/s)[1]);
}

/** What the engine makes of the texts of the project at `root`. */
function engineTexts(root) {
  const output = execFileSync(path.join(PROGRAMS, "zk_engine_texts"), [root], {
    maxBuffer: 1 << 28,
    encoding: "utf8",
  });
  return output
    .trimEnd()
    .split("\n")
    .map((line) => JSON.parse(line));
}

async function startBrowser() {
  return chromium.launch({ executablePath: process.env.ZK_CHROMIUM ?? "/usr/bin/chromium" });
}

/** Opens `file` at `address`; the page's `wrongs` are what went wrong in it, and what it asked for besides. */
async function open(browser, file, { address = "", ...options } = {}) {
  const context = await browser.newContext({ viewport: { width: 1600, height: 1000 }, ...options });
  const page = await context.newPage();
  page.setDefaultTimeout(10_000);
  page.wrongs = [];
  page.on("pageerror", (error) => page.wrongs.push(error.message));
  page.on("console", (message) => page.wrongs.push(message.text()));
  page.on("dialog", (dialog) => page.wrongs.push(dialog.message()));
  page.on("request", (request) => {
    if (request.url().split("#")[0] !== String(pathToFileURL(file))) page.wrongs.push(request.url());
  });
  await page.goto(`${pathToFileURL(file)}${address}`);
  return page;
}

/** The keys in the list, from the top. */
const listedKeys = (page) => page.locator("#list .key > span:first-child").allTextContents();

module.exports = { ROOT, PROJECT, makePage, dataOf, engineTexts, startBrowser, open, listedKeys };
