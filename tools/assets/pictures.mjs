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
import { placeCountryPoints, placeStatePoints } from "./lib/points.mjs";
import { STATES } from "./lib/states.mjs";
import { writeIfChanged } from "./lib/render.mjs";

const here = path.dirname(fileURLToPath(import.meta.url));
const repo = path.resolve(here, "..", "..");
const dataDir = path.join(repo, "data");
const modulesDir = path.join(here, "node_modules");
const overridesDir = path.join(here, "overrides");
const buildDir = path.join(here, "build");

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
