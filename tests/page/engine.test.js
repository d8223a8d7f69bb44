// The page shows what the engine makes of a text, also for values that the reader puts in.
const assert = require("node:assert");
const { readFileSync } = require("node:fs");
const path = require("node:path");
const test = require("node:test");
const vm = require("node:vm");
const { ROOT, PROJECT, makePage, dataOf, engineTexts } = require("./support.js");

const script = vm.createContext({});
vm.runInContext(readFileSync(path.join(ROOT, "tools/page/fill.js"), "utf8"), script);

for (const [name, root] of Object.entries({ shipped: ROOT, hostile: PROJECT })) {
  test(`Every text of the ${name} project is filled in as the engine does`, () => {
    const data = dataOf(makePage(root, name));
    const firsts = [];
    let next = 0;
    for (const entry of data.entries) {
      firsts.push(next);
      next += entry.counted ? 5 : 1;
    }
    const texts = engineTexts(root);
    assert.ok(texts.length > data.entries.length * data.languages.length);
    for (const [language, index, count, values, text] of texts) {
      const form = count === null ? 0 : script.formOf(count);
      const place = firsts[index] + form;
      const { texts: templates, finished } = data.languages[language];
      const { key, values: examples } = data.entries[index];
      const about = `${data.languages[language].tag} ${key} ${count} ${JSON.stringify(values)}`;
      const filled = script.fill(templates[place], values);
      assert.strictEqual(filled.text, text, about);
      assert.strictEqual(filled.owners.length, text.length, about);

      const shown = examples.map(([name, value]) => [
        name,
        Array.isArray(value) ? value[language] : (value ?? `${count}`),
      ]);
      const isExample = JSON.stringify(shown) === JSON.stringify(values);
      if (isExample && (count === null || count === data.counts[form])) {
        assert.strictEqual(finished[place] || templates[place], text, about);
      }
    }
  });
}
