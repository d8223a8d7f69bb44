// Makes pages and shows them in the system's Chromium.
const { execFileSync } = require("node:child_process");
const { readFileSync } = require("node:fs");
const path = require("node:path");
const { pathToFileURL } = require("node:url");
const { chromium } = require("playwright-core");

const ROOT = path.join(__dirname, "../..");
const PROJECT = path.join(__dirname, "project"); // a small one, with gaps, mistakes and hostile texts
const PROGRAMS = process.env.ZK_PROGRAMS;
const OUTPUT = process.env.ZK_OUTPUT;

/** Writes the page of the project at `root` and returns its path. */
function makePage(root, name) {
  const file = path.join(OUTPUT, `${name}.html`);
  execFileSync(path.join(PROGRAMS, "zkstrings"), ["--root", root, "page", "-o", file]);
  return file;
}

/** The data of a page, as its script reads it. */
function dataOf(file) {
  const html = readFileSync(file, "utf8");
  return JSON.parse(html.match(/<script type="application\/json" id="data">(.*?)<\/script>/s)[1]);
}

/** A text of the data without the marks around its values. */
const unmarked = (text) => text.replace(/\uFDD0[^\uFDD1]*\uFDD1([^\uFDD2]*)\uFDD2/g, "$1");

async function startBrowser() {
  return chromium.launch({ executablePath: process.env.ZK_CHROMIUM });
}

/** Opens `file` at `address`. The page's `problems` lists its errors, its messages and what it tries to load. */
async function open(browser, file, { address = "", ...options } = {}) {
  const context = await browser.newContext({ viewport: { width: 1600, height: 1000 }, ...options });
  const page = await context.newPage();
  page.setDefaultTimeout(10_000);
  page.problems = [];
  page.on("pageerror", (error) => page.problems.push(error.message));
  page.on("console", (message) => page.problems.push(message.text()));
  page.on("dialog", (dialog) => page.problems.push(dialog.message()));
  page.on("request", (request) => {
    if (request.url().split("#")[0] !== String(pathToFileURL(file))) page.problems.push(request.url());
  });
  await page.goto(`${pathToFileURL(file)}${address}`);
  return page;
}

/** The keys in the list, from the top. */
const listedKeys = (page) => page.locator("#list .key > span:first-child").allTextContents();

module.exports = { ROOT, PROJECT, makePage, dataOf, unmarked, startBrowser, open, listedKeys };
