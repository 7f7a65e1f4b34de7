// SPDX-License-Identifier: GPL-3.0-or-later
// The world map: every country on an equal-area projection without
// Antarctica, the outlines of the quiz's 100 countries, and their map points.

import fs from "node:fs";
import path from "node:path";
import * as topojson from "topojson-client";
import { presimplify, simplify, sphericalTriangleArea } from "topojson-simplify";
import { geoContains, geoEqualEarth } from "d3-geo";
import { mapPoint } from "./us.mjs";
import { insideRings, pathData, ringsForJson, roundRings } from "./paths.mjs";
import { projectRings } from "./project.mjs";
import { writeIfChanged } from "./render.mjs";

export const WORLD_FRAME = { width: 1000, height: 520 };

const COLOURS = {
  sea: "#cfe6f5",
  land: "#b9d89f",
  coast: "#55804a",
  border: "#ffffff",
};

const MIN_TRIANGLE_AREA = 0.5;
const PADDING = 6;
const ANTARCTICA = "010";
const RUSSIA = "643";
const UKRAINE = "804";
// A point on the Crimean peninsula, to find its polygon.
const CRIMEA = [34.1, 45.2];

function loadTopology(modulesDir) {
  return JSON.parse(fs.readFileSync(path.join(modulesDir, "world-atlas", "countries-110m.json"), "utf8"));
}

// The source puts Crimea in Russia; it is drawn, outlined and counted as part
// of Ukraine. Its polygon moves from one geometry object to the other and
// the shared arc across the isthmus then lies inside Ukraine.
function moveCrimeaToUkraine(topology) {
  const geometries = topology.objects.countries.geometries;
  const russia = geometries.find((g) => g.id === RUSSIA);
  const ukraine = geometries.find((g) => g.id === UKRAINE);
  if (russia.type !== "MultiPolygon") throw new Error("Russia is expected as several polygons");
  const index = russia.arcs.findIndex((arcs) => geoContains(topojson.feature(topology, { type: "Polygon", arcs }), CRIMEA));
  if (index < 0) throw new Error("no Crimean polygon found in Russia");
  const crimea = russia.arcs[index];
  russia.arcs = russia.arcs.filter((_, i) => i !== index);
  const ukrainePolygons = ukraine.type === "Polygon" ? [ukraine.arcs] : ukraine.arcs;
  const merged = topojson.mergeArcs(topology, [
    { type: "MultiPolygon", arcs: [...ukrainePolygons, crimea] },
  ]);
  ukraine.type = merged.type;
  ukraine.arcs = merged.arcs;
}

function svgDocument(body) {
  const { width, height } = WORLD_FRAME;
  return (
    `<?xml version="1.0" encoding="UTF-8"?>\n` +
    `<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="${width}" height="${height}" viewBox="0 0 ${width} ${height}">\n` +
    body +
    `</svg>\n`
  );
}

// Builds world.svg and world.json into dataDir; returns the map point of each
// record number.
export function buildWorld({ modulesDir, dataDir, countries }) {
  const topology = loadTopology(modulesDir);
  moveCrimeaToUkraine(topology);
  const shown = topology.objects.countries.geometries.filter((g) => g.id !== ANTARCTICA);
  const shownCollection = { type: "GeometryCollection", geometries: shown };
  // Centred a little east of Greenwich so the cut at the back of the globe
  // falls in the Bering Strait and leaves Chukotka with the rest of Russia.
  const projection = geoEqualEarth()
    .rotate([-11, 0])
    .fitExtent(
      [
        [PADDING, PADDING],
        [WORLD_FRAME.width - PADDING, WORLD_FRAME.height - PADDING],
      ],
      topojson.feature(topology, shownCollection),
    );
  const minWeight = MIN_TRIANGLE_AREA / (projection.scale() * projection.scale());
  const simple = simplify(presimplify(topology, sphericalTriangleArea), minWeight);

  const land = roundRings(projectRings(topojson.merge(simple, shown), projection));
  const borders = roundRings(projectRings(topojson.mesh(simple, shownCollection, (a, b) => a !== b), projection));
  const body =
    `<rect width="${WORLD_FRAME.width}" height="${WORLD_FRAME.height}" fill="${COLOURS.sea}"/>\n` +
    `<path fill="${COLOURS.land}" stroke="${COLOURS.coast}" stroke-width="0.6" stroke-linejoin="round" d="${pathData(land)}"/>\n` +
    `<path fill="none" stroke="${COLOURS.border}" stroke-width="0.6" stroke-linejoin="round" d="${pathData(borders)}"/>\n`;
  writeIfChanged(path.join(dataDir, "world.svg"), svgDocument(body));

  const byId = new Map(shown.map((g) => [g.id, g]));
  const outlines = {};
  const points = new Map();
  for (const country of countries) {
    // Every one of the quiz's countries is in the coarse data; a newer data
    // package that dropped one must be looked at, not patched over silently.
    const geometry = byId.get(country.isoNumeric);
    if (!geometry) throw new Error(`no shape for ${country.name} (${country.isoNumeric})`);
    const rings = roundRings(projectRings(topojson.feature(simple, geometry), projection));
    if (rings.length === 0) throw new Error(`${country.name} vanishes at this scale`);
    const [x, y] = mapPoint(topojson.feature(topology, geometry), projection);
    if (!insideRings(rings, x, y)) throw new Error(`map point of ${country.name} (${x}, ${y}) lies outside its outline`);
    outlines[String(country.record)] = ringsForJson(rings);
    points.set(country.record, [x, y]);
  }
  const layout = { width: WORLD_FRAME.width, height: WORLD_FRAME.height, countries: outlines };
  writeIfChanged(path.join(dataDir, "world.json"), JSON.stringify(layout) + "\n");
  return { points };
}
