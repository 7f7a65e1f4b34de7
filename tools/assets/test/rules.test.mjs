// SPDX-License-Identifier: GPL-3.0-or-later
// The pure rules of the picture tools: data-file patching, file names,
// path encoding and the portrait cards.

import { test } from "node:test";
import assert from "node:assert/strict";
import { itemSpans, itemText, mapRecords, setNumbers } from "../lib/datfile.mjs";
import { countryFlagFile, ordinal, portraitFile, stateFlagFile } from "../lib/names.mjs";
import { insideRings, pathData, roundRing, roundRings } from "../lib/paths.mjs";
import { initials, portraitCards, readPresidencies, termYears } from "../lib/portraits.mjs";
import { placeCountryPoints, placeStatePoints } from "../lib/points.mjs";
import { newYorkFlag, shieldOutline } from "../lib/newyork.mjs";

test("items of a line: quoted commas and doubled quotes stay inside one item", () => {
  const line = '"A, B","say ""hi""",12,-3.5,"x"';
  assert.equal(itemSpans(line).length, 5);
  assert.equal(itemText(line, 1), "A, B");
  assert.equal(itemText(line, 2), 'say "hi"');
  assert.equal(itemText(line, 4), "-3.5");
  assert.throws(() => itemSpans('"open,1'), /unterminated/);
  assert.throws(() => itemText("1,2", 3), /2 items/);
});

test("numbers are replaced in place and nothing else changes", () => {
  const line = '"TX","Texas, the ""Lone Star""",7,0,0';
  assert.equal(setNumbers(line, { 4: 412, 5: -3 }, 5), '"TX","Texas, the ""Lone Star""",7,412,-3');
  assert.throws(() => setNumbers(line, { 4: 1 }, 6), /expected 6 items, found 5/);
  assert.throws(() => setNumbers(line, { 1: 1 }, 5), /is a text/);
  assert.throws(() => setNumbers(line, { 4: 1.5 }, 5), /whole number/);
});

test("records keep the file's final line end and reject blank lines", () => {
  assert.equal(mapRecords("a\nb\n", (l) => l.toUpperCase()), "A\nB\n");
  assert.equal(mapRecords("a\nb", (l) => l + "!"), "a!\nb!");
  assert.throws(() => mapRecords("a\n\nb\n", (l) => l), /blank line at record 2/);
});

test("state points go to the record with the same abbreviation", () => {
  const points = new Map([
    ["AK", [10, 20]],
    ["AL", [30, 40]],
  ]);
  const fields = (abbr) => [`"${abbr}"`, '"n, x"', ...Array(11).fill('"t"'), "0", "0"].join(",");
  const text = `${fields("AL")}\n${fields("AK")}\n`;
  const out = placeStatePoints(text, points).split("\n");
  assert.ok(out[0].endsWith(",30,40") && out[0].startsWith('"AL","n, x"'));
  assert.ok(out[1].endsWith(",10,20"));
  assert.throws(() => placeStatePoints(`${fields("AL")}\n${fields("AL")}\n`, points), /appears twice/);
  assert.throws(() => placeStatePoints(`${fields("AL")}\n`, points), /holds 1 states, expected 2/);
  assert.throws(() => placeStatePoints(`${fields("ZZ")}\n`, points), /unknown state "ZZ"/);
});

test("country points go to the record of the same line number", () => {
  const line = ['"C"', '"Cap"', '"a"', '"b"', '"c"', "6", '"d"', '"e"', '"f"', '"g"', "0", "0"].join(",");
  const points = new Map([
    [1, [5, 6]],
    [2, [7, 8]],
  ]);
  assert.deepEqual(placeCountryPoints(`${line}\n${line}\n`, points).split("\n"), [
    line.replace(/0,0$/, "5,6"),
    line.replace(/0,0$/, "7,8"),
    "",
  ]);
  assert.throws(() => placeCountryPoints(`${line}\n${line}\n${line}\n`, points), /record 3 with no country/);
  assert.throws(() => placeCountryPoints(`${line}\n`, points), /holds 1 records, expected 2/);
});

test("portrait file names follow the presidency numbering", () => {
  const expected = { 1: "presi002.gif", 22: "presi023.gif", 23: "presi024.gif", 24: "presi023.gif", 25: "presi025.gif", 47: "presi047.gif" };
  for (const [n, file] of Object.entries(expected)) assert.equal(portraitFile(Number(n)), file, `presidency ${n}`);
  assert.throws(() => portraitFile(0));
  assert.equal(countryFlagFile(7), "flag007.png");
  assert.equal(countryFlagFile(100), "flag100.png");
  assert.equal(stateFlagFile("TX"), "TXflag.png");
});

test("ordinals", () => {
  const expected = { 1: "1st", 2: "2nd", 3: "3rd", 4: "4th", 11: "11th", 12: "12th", 13: "13th", 21: "21st", 22: "22nd", 23: "23rd", 111: "111th" };
  for (const [n, text] of Object.entries(expected)) assert.equal(ordinal(Number(n)), text);
});

test("rings are rounded, stripped of repeats and dropped when they collapse", () => {
  const ring = Object.assign(
    [
      [0.2, 0.1],
      [0.4, 0.3],
      [10.2, 0],
      [10, 9.6],
      [0, 0.4],
    ],
    { closed: true },
  );
  assert.deepEqual([...roundRing(ring)], [
    [0, 0],
    [10, 0],
    [10, 10],
  ]);
  const speck = Object.assign(
    [
      [0.1, 0.1],
      [0.3, 0.2],
      [0.2, 0.4],
    ],
    { closed: true },
  );
  assert.equal(roundRing(speck), null);
  const line = Object.assign(
    [
      [1, 1],
      [1.2, 1.1],
    ],
    { closed: false },
  );
  assert.equal(roundRing(line), null);
  assert.equal(roundRings([ring, speck]).length, 1);
});

test("path data: absolute start, relative whole-number steps, closed rings end in z", () => {
  const square = Object.assign(
    [
      [10, 20],
      [13, 16],
      [8, 22],
    ],
    { closed: true },
  );
  const border = Object.assign(
    [
      [-1, 5],
      [4, 5],
    ],
    { closed: false },
  );
  assert.equal(pathData([square, border]), "M10 20l3-4-5 6zM-1 5l5 0");
});

test("even-odd hit test treats an inner ring as a hole", () => {
  const outer = [
    [0, 0],
    [10, 0],
    [10, 10],
    [0, 10],
  ];
  const hole = [
    [3, 3],
    [7, 3],
    [7, 7],
    [3, 7],
  ];
  assert.equal(insideRings([outer, hole], 1, 1), true);
  assert.equal(insideRings([outer, hole], 5, 5), false);
  assert.equal(insideRings([outer, hole], 11, 5), false);
});

test("presidencies: names, years and the shared portrait of the 22nd and 24th", () => {
  const record = (name, start) => [`"${name}"`, '"f"', '"01/02/1800"', '"p"', '"q"', `"${start}"`, '"r"', '"a"', '"b"', '"c"', '"d"'].join(",");
  const names = Array.from({ length: 25 }, (_, i) => (i === 21 || i === 23 ? "Grover Cleveland" : `Person ${i + 1}`));
  const text = names.map((name, i) => record(name, `03/04/${1800 + 4 * i}`)).join("\n") + "\n";
  const presidencies = readPresidencies(text);
  assert.equal(presidencies.length, 25);
  assert.equal(termYears(presidencies, 0), "1800\u20131804");
  assert.equal(termYears(presidencies, 24), "1896\u2013present");
  const cards = portraitCards(presidencies);
  assert.equal(cards.length, 24);
  const shared = cards.find((c) => c.file === "presi023.gif");
  assert.deepEqual(shared.numbers, [22, 24]);
  assert.deepEqual(shared.terms, ["1884\u20131888", "1892\u20131896"]);
  assert.equal(cards.find((c) => c.file === "presi024.gif").name, "Person 23");
  assert.ok(!cards.some((c) => c.file === "presi001.gif"));

  names[23] = "Someone Else";
  const clash = names.map((name, i) => record(name, `03/04/${1800 + 4 * i}`)).join("\n") + "\n";
  assert.throws(() => portraitCards(readPresidencies(clash)), /presi023.gif would show both/);
  assert.throws(() => readPresidencies(record("X", "1800-03-04") + "\n"), /not MM\/DD\/YYYY/);
  assert.throws(() => readPresidencies('"X","y"\n'), /has 2 items/);
});

test("initials take the capital of each word", () => {
  assert.equal(initials("George Washington"), "GW");
  assert.equal(initials("George H. W. Bush"), "GHWB");
  assert.equal(initials("Martin Van Buren"), "MVB");
});

test("New York: the shield's outer outline is the first outline of path434, and a changed drawing is refused", () => {
  const svg = '<svg><metadata/><path id="path434" d="m1 2h3v4h-3m0.5 0.5h2"/></svg>';
  assert.equal(shieldOutline(svg), "m1 2h3v4h-3z");
  assert.throws(() => newYorkFlag(svg), /path20 not found/);
  assert.throws(() => shieldOutline("<svg></svg>"), /path434 not found/);
});
