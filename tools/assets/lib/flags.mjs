// SPDX-License-Identifier: GPL-3.0-or-later
// Flags pre-rendered to PNG: Qt's SVG renderer gets many of these drawings
// wrong, so the program only ever loads the bitmaps.

import fs from "node:fs";
import path from "node:path";
import { STATES } from "./states.mjs";
import { countryFlagFile, stateFlagFile } from "./names.mjs";
import { newYorkFlag } from "./newyork.mjs";
import { quantizePng, svgToPng, writeIfChanged } from "./render.mjs";

const WIDTH = 640;

// Flags changed after the packages were published; our own drawings in
// overrides/ replace them.
export const STATE_OVERRIDES = ["MN", "MS", "NY", "UT"];
export const COUNTRY_OVERRIDES = ["SY"];

// Overrides made from the package's own drawing with our additions: written
// into overrides/ before the flags are rendered (only when the text
// changes), so they are committed and can be read like the hand-made ones.
// Edit the maker, not the file.
const STATE_MADE = { NY: newYorkFlag };

export function makeStateOverrides(modulesDir, overridesDir) {
  for (const [abbreviation, make] of Object.entries(STATE_MADE)) {
    const state = STATES.find((s) => s.abbreviation === abbreviation);
    const packaged = path.join(modulesDir, "flag-icon", "svg", "us", state.flagIconFile);
    if (!fs.existsSync(packaged)) throw new Error(`flag source missing: ${packaged}`);
    writeIfChanged(path.join(overridesDir, `us-${abbreviation.toLowerCase()}.svg`), make(fs.readFileSync(packaged, "utf8")));
  }
}

function stateSource(state, modulesDir, overridesDir) {
  if (STATE_OVERRIDES.includes(state.abbreviation)) {
    return path.join(overridesDir, `us-${state.abbreviation.toLowerCase()}.svg`);
  }
  return path.join(modulesDir, "flag-icon", "svg", "us", state.flagIconFile);
}

function countrySource(country, modulesDir, overridesDir) {
  const code = country.iso2.toLowerCase();
  if (COUNTRY_OVERRIDES.includes(country.iso2)) return path.join(overridesDir, `${code}.svg`);
  return path.join(modulesDir, "svg-country-flags", "svg", `${code}.svg`);
}

function render(source, target, buildDir) {
  if (!fs.existsSync(source)) throw new Error(`flag source missing: ${source}`);
  const full = path.join(buildDir, path.basename(target));
  svgToPng(source, full, { width: WIDTH });
  quantizePng(full, target);
}

// Returns the list of files written, for the run summary.
export function buildFlags({ modulesDir, overridesDir, dataDir, buildDir, countries }) {
  makeStateOverrides(modulesDir, overridesDir);
  const written = [];
  for (const state of STATES) {
    const target = path.join(dataDir, stateFlagFile(state.abbreviation));
    render(stateSource(state, modulesDir, overridesDir), target, buildDir);
    written.push(target);
  }
  for (const country of countries) {
    const target = path.join(dataDir, countryFlagFile(country.record));
    render(countrySource(country, modulesDir, overridesDir), target, buildDir);
    written.push(target);
  }
  return written;
}
