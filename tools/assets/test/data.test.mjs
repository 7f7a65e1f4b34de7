// SPDX-License-Identifier: GPL-3.0-or-later
// Checks the committed pictures and map data the program loads: names,
// formats, sizes, and that every map point falls inside its own shape.

import { test } from "node:test";
import assert from "node:assert/strict";
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { itemText } from "../lib/datfile.mjs";
import { insideRings } from "../lib/paths.mjs";
import { STATES, INSET_STATES } from "../lib/states.mjs";
import { portraitFile } from "../lib/names.mjs";

const data = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "..", "..", "..", "data");
const read = (name) => fs.readFileSync(path.join(data, name));
const records = (name) => read(name).toString("utf8").replace(/\n$/, "").split("\n");
const countries = JSON.parse(fs.readFileSync(new URL("../countries.json", import.meta.url), "utf8"));

function pngSize(bytes) {
  assert.equal(bytes.subarray(1, 4).toString("latin1"), "PNG");
  return [bytes.readUInt32BE(16), bytes.readUInt32BE(20)];
}

test("state pictures: one map per lower state, insets for Alaska and Hawaii, a flag and an outline each", () => {
  const layout = JSON.parse(read("usmap.json"));
  for (const state of STATES) {
    const inset = INSET_STATES.includes(state.abbreviation);
    assert.equal(fs.existsSync(path.join(data, `${state.abbreviation}map.svg`)), !inset, state.abbreviation);
    const [width, height] = pngSize(read(`${state.abbreviation}flag.png`));
    assert.equal(width, 640, state.abbreviation);
    assert.ok(height > 200 && height < 640, state.abbreviation);
  }
  for (const abbreviation of INSET_STATES) {
    const rect = layout.insets[abbreviation];
    for (const variant of ["blue", "yellow"]) {
      const bmp = read(`${abbreviation.toLowerCase()}${variant}.bmp`);
      assert.equal(bmp.subarray(0, 2).toString("latin1"), "BM");
      assert.equal(bmp.readUInt32LE(14), 40, "a BITMAPINFOHEADER, readable everywhere");
      // Drawn at two pixels a frame unit.
      assert.deepEqual([bmp.readInt32LE(18), Math.abs(bmp.readInt32LE(22))], [rect.w * 2, rect.h * 2]);
    }
  }
  const svg = read("TXmap.svg").toString("utf8");
  assert.match(svg, new RegExp(`viewBox="0 0 ${layout.width} ${layout.height}"`));
});

test("insets sit inside the frame, apart from each other and from the lower 48", () => {
  const layout = JSON.parse(read("usmap.json"));
  const rects = Object.values(layout.insets);
  for (const r of rects) {
    assert.ok(r.x >= 0 && r.y >= 0 && r.x + r.w <= layout.width && r.y + r.h <= layout.height);
  }
  const [a, b] = rects;
  assert.ok(a.x + a.w <= b.x || b.x + b.w <= a.x || a.y + a.h <= b.y || b.y + b.h <= a.y, "insets overlap");
  for (const state of STATES) {
    const rings = JSON.parse(read(`${state.abbreviation}outline.json`));
    const within = (r) => rings.every((ring) => ring.every(([x, y]) => x >= r.x && x <= r.x + r.w && y >= r.y && y <= r.y + r.h));
    if (INSET_STATES.includes(state.abbreviation)) {
      assert.ok(within(layout.insets[state.abbreviation]), `${state.abbreviation} leaves its inset`);
    } else {
      for (const r of rects) {
        for (const ring of rings) {
          for (const [x, y] of ring) assert.ok(!(x > r.x && x < r.x + r.w && y > r.y && y < r.y + r.h), `${state.abbreviation} runs under an inset`);
        }
      }
    }
  }
});

test("every state's map point lies inside its own outline, and no two coincide", () => {
  const lines = records("usgeo.dat");
  assert.equal(lines.length, 50);
  const seen = new Set();
  for (const line of lines) {
    const abbreviation = itemText(line, 1);
    const x = Number(itemText(line, 14));
    const y = Number(itemText(line, 15));
    const rings = JSON.parse(read(`${abbreviation}outline.json`));
    assert.ok(insideRings(rings, x, y), `${abbreviation} (${x}, ${y})`);
    assert.ok(!seen.has(`${x},${y}`));
    seen.add(`${x},${y}`);
  }
});

test("every country's map point lies inside its outline on the world map", () => {
  const world = JSON.parse(read("world.json"));
  assert.deepEqual(Object.keys(world.countries).map(Number).sort((a, b) => a - b), countries.map((c) => c.record));
  const lines = records("wgeo.dat");
  assert.equal(lines.length, 100);
  lines.forEach((line, index) => {
    const record = index + 1;
    const x = Number(itemText(line, 11));
    const y = Number(itemText(line, 12));
    assert.ok(x >= 0 && x <= world.width && y >= 0 && y <= world.height);
    assert.ok(insideRings(world.countries[record], x, y), `record ${record} (${x}, ${y})`);
  });
});

test("country flags and portraits exist under the names the program builds", () => {
  for (const country of countries) {
    const file = `flag${String(country.record).padStart(3, "0")}.png`;
    assert.equal(pngSize(read(file))[0], 640, file);
  }
  const presidencies = records("uspres.dat").length;
  for (let n = 1; n <= presidencies; n++) {
    const gif = read(portraitFile(n));
    assert.equal(gif.subarray(0, 4).toString("latin1"), "GIF8");
    assert.deepEqual([gif.readUInt16LE(6), gif.readUInt16LE(8)], [240, 300]);
  }
  assert.equal(fs.existsSync(path.join(data, "presi001.gif")), false);
});

test("the New York override carries the E PLURIBUS UNUM scroll", () => {
  const svg = fs.readFileSync(new URL("../overrides/us-ny.svg", import.meta.url), "utf8");
  assert.match(svg, />E PLURIBUS UNUM<\/text>/);
  assert.match(svg, /id="path410"/, "the EXCELSIOR lettering of the package is kept");
});
