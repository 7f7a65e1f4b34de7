// SPDX-License-Identifier: GPL-3.0-or-later
// Flags pre-rendered to PNG: Qt's SVG renderer gets many of these drawings
// wrong, so the program only ever loads the bitmaps.

import fs from "node:fs";
import path from "node:path";
import { STATES } from "./states.mjs";
import { countryFlagFile, stateFlagFile } from "./names.mjs";
import { quantizePng, svgToPng } from "./render.mjs";

const WIDTH = 640;

// Flags changed after the packages were published; our own drawings in
// overrides/ replace them.
export const STATE_OVERRIDES = ["MN", "MS", "UT"];
export const COUNTRY_OVERRIDES = ["SY"];

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
