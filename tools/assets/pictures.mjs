// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the maps, outlines, flags and portraits in data/ and writes the map
// points into the geography data files. Run through make-pictures, which
// installs what this needs.
//
//   node pictures.mjs [us] [world] [flags] [portraits]   (no argument: all)

import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { buildUs } from "./lib/us.mjs";
import { buildWorld } from "./lib/world.mjs";
import { buildFlags } from "./lib/flags.mjs";
import { buildPortraits } from "./lib/portraits.mjs";
import { itemText, mapRecords, setNumbers } from "./lib/datfile.mjs";
import { STATES } from "./lib/states.mjs";
import { writeIfChanged } from "./lib/render.mjs";

const here = path.dirname(fileURLToPath(import.meta.url));
const repo = path.resolve(here, "..", "..");
const dataDir = path.join(repo, "data");
const modulesDir = path.join(here, "node_modules");
const overridesDir = path.join(here, "overrides");
const buildDir = path.join(here, "build");

const US_FIELDS = 15;
const WORLD_FIELDS = 12;

// Writes each state's point into items 14 and 15 of its usgeo.dat record,
// found by the abbreviation in item 1.
export function placeStatePoints(text, points) {
  const seen = new Set();
  const out = mapRecords(text, (line, index) => {
    const abbreviation = itemText(line, 1);
    const point = points.get(abbreviation);
    if (!point) throw new Error(`usgeo.dat record ${index + 1}: unknown state "${abbreviation}"`);
    if (seen.has(abbreviation)) throw new Error(`usgeo.dat: ${abbreviation} appears twice`);
    seen.add(abbreviation);
    return setNumbers(line, { 14: point[0], 15: point[1] }, US_FIELDS);
  });
  if (seen.size !== points.size) throw new Error(`usgeo.dat holds ${seen.size} states, expected ${points.size}`);
  return out;
}

// Writes each country's point into items 11 and 12 of the record whose line
// number is its record number.
export function placeCountryPoints(text, points) {
  let count = 0;
  const out = mapRecords(text, (line, index) => {
    const point = points.get(index + 1);
    if (!point) throw new Error(`wgeo.dat has a record ${index + 1} with no country`);
    count++;
    return setNumbers(line, { 11: point[0], 12: point[1] }, WORLD_FIELDS);
  });
  if (count !== points.size) throw new Error(`wgeo.dat holds ${count} records, expected ${points.size}`);
  return out;
}

function updateDat(name, place, points) {
  const file = path.join(dataDir, name);
  if (!fs.existsSync(file)) throw new Error(`${file} is missing: the map points are written into it`);
  writeIfChanged(file, place(fs.readFileSync(file, "utf8"), points));
}

function main(args) {
  const parts = args.length > 0 ? args : ["us", "world", "flags", "portraits"];
  for (const part of parts) {
    if (!["us", "world", "flags", "portraits"].includes(part)) throw new Error(`unknown part "${part}"`);
  }
  fs.mkdirSync(buildDir, { recursive: true });
  const countries = JSON.parse(fs.readFileSync(path.join(here, "countries.json"), "utf8"));

  if (parts.includes("us")) {
    const { points, mapSizes } = buildUs({ modulesDir, dataDir, buildDir });
    updateDat("usgeo.dat", placeStatePoints, points);
    const average = Math.round(mapSizes.reduce((a, b) => a + b, 0) / mapSizes.length);
    console.log(`us: ${mapSizes.length} state maps (average ${average} bytes), usmap.svg, 4 insets, ${STATES.length} outlines`);
  }
  if (parts.includes("world")) {
    const { points } = buildWorld({ modulesDir, dataDir, countries });
    updateDat("wgeo.dat", placeCountryPoints, points);
    console.log(`world: world.svg, world.json with ${points.size} countries`);
  }
  if (parts.includes("flags")) {
    const written = buildFlags({ modulesDir, overridesDir, dataDir, buildDir, countries });
    console.log(`flags: ${written.length} PNG files`);
  }
  // Last: the portraits read the presidents file that is written alongside.
  if (parts.includes("portraits")) {
    const cards = buildPortraits({ dataDir, buildDir });
    console.log(`portraits: ${cards.length} GIF files`);
  }
}

if (process.argv[1] && path.resolve(process.argv[1]) === fileURLToPath(import.meta.url)) {
  try {
    main(process.argv.slice(2));
  } catch (error) {
    console.error(`make-pictures: ${error.message}`);
    process.exit(1);
  }
}
