// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the map points into the geography data files.

import { itemText, mapRecords, setNumbers } from "./datfile.mjs";

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
