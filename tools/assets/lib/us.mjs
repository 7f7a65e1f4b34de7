// SPDX-License-Identifier: GPL-3.0-or-later
// The United States pictures: the lower 48 in one conic frame with one map
// per state highlighted, Alaska and Hawaii as bitmap insets in the lower
// left of the same frame, click outlines, and each state's map point.

import fs from "node:fs";
import path from "node:path";
import * as topojson from "topojson-client";
import { presimplify, simplify, sphericalTriangleArea } from "topojson-simplify";
import { geoAlbers, geoCentroid, geoConicEqualArea, geoPath } from "d3-geo";
import polylabel from "polylabel";
import { STATES, INSET_STATES } from "./states.mjs";
import { insideRings, orderLargestFirst, pathData, ringsForJson, roundRings, signedArea } from "./paths.mjs";
import { projectRings } from "./project.mjs";
import { pngToBmp, svgToPng, writeIfChanged } from "./render.mjs";

export const US_FRAME = { width: 960, height: 600 };

// Below California, Arizona and western Texas, where the lower 48 leave the
// frame empty.
export const US_INSETS = {
  AK: { x: 6, y: 452, w: 236, h: 144 },
  HI: { x: 250, y: 512, w: 90, h: 84 },
};

const COLOURS = {
  background: "#eaf3fb",
  plain: "#4a86cf",
  highlight: "#ffd400",
  coast: "#1d3d6b",
  border: "#ffffff",
  insetFrame: "#8aa4c2",
};

// Triangles smaller than this many square frame units are simplified away:
// shapes stay true at twice the frame size.
const MIN_TRIANGLE_AREA = 1.0;

// Raster insets are drawn at twice the frame size so they stay sharp when
// the map is shown large.
const INSET_PIXELS_PER_UNIT = 2;

const PADDING = 8;

// States smaller than this many square frame units get a ring around them
// as well, or a pupil could not spot the highlight.
const SMALL_STATE_AREA = 400;
const RING_RADIUS = 16;

function loadTopology(modulesDir) {
  return JSON.parse(fs.readFileSync(path.join(modulesDir, "us-atlas", "states-10m.json"), "utf8"));
}

// Keeps only the polygons of a MultiPolygon geometry object that `keep`
// accepts (judged on the polygon's centroid), so raw and simplified data
// drop exactly the same islands.
function filterPolygons(topology, geometry, keep) {
  if (geometry.type !== "MultiPolygon") return geometry;
  const arcs = geometry.arcs.filter((polygonArcs) =>
    keep(geoCentroid(topojson.feature(topology, { type: "Polygon", arcs: polygonArcs }))),
  );
  return { ...geometry, arcs };
}

// Alaska without the Aleutians beyond 180 degrees; Hawaii without the small
// northwestern islands, which would shrink the main islands to specks.
const INSET_KEEP = {
  AK: ([lon]) => lon < 0,
  HI: ([lon]) => lon > -161,
};

function insetProjection(abbreviation) {
  if (abbreviation === "AK") return geoConicEqualArea().rotate([154, 0]).center([-2, 58.5]).parallels([55, 65]);
  return geoConicEqualArea().rotate([157, 0]).center([-3, 19.9]).parallels([8, 18]);
}

function fitInset(projection, feature, rect) {
  const margin = 6;
  return projection.fitExtent(
    [
      [rect.x + margin, rect.y + margin],
      [rect.x + rect.w - margin, rect.y + rect.h - margin],
    ],
    feature,
  );
}

function simplifiedAt(topology, scale) {
  // Area on the unit sphere times scale squared is the area in the frame,
  // exactly so for these equal-area projections.
  return simplify(presimplify(topology, sphericalTriangleArea), MIN_TRIANGLE_AREA / (scale * scale));
}

// The polygon of a feature with the largest area in the frame, as projected
// floating-point rings.
function largestPolygonRings(feature, projection) {
  const geometry = feature.geometry;
  const polygons = geometry.type === "Polygon" ? [geometry.coordinates] : geometry.coordinates;
  const measure = geoPath(projection);
  let best = null;
  let bestArea = -1;
  for (const coordinates of polygons) {
    const polygon = { type: "Polygon", coordinates };
    const area = measure.area(polygon);
    if (area > bestArea) {
      bestArea = area;
      best = polygon;
    }
  }
  return projectRings(best, projection);
}

export function mapPoint(feature, projection) {
  const rings = orderLargestFirst(largestPolygonRings(feature, projection));
  const [x, y] = polylabel(rings, 0.5);
  return [Math.round(x), Math.round(y)];
}

function svgDocument(width, height, viewBox, body) {
  return (
    `<?xml version="1.0" encoding="UTF-8"?>\n` +
    `<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="${width}" height="${height}" viewBox="${viewBox}">\n` +
    body +
    `</svg>\n`
  );
}

function ringedArea(rings) {
  return rings.reduce((sum, ring) => sum + Math.abs(signedArea(ring)), 0);
}

function mapSvg(nation, mesh, highlighted, point) {
  let body =
    `<rect width="${US_FRAME.width}" height="${US_FRAME.height}" fill="${COLOURS.background}"/>\n` +
    `<path fill="${COLOURS.plain}" stroke="${COLOURS.coast}" stroke-width="1" stroke-linejoin="round" d="${pathData(nation)}"/>\n` +
    `<path fill="none" stroke="${COLOURS.border}" stroke-width="0.8" stroke-linejoin="round" d="${pathData(mesh)}"/>\n`;
  if (highlighted) {
    body += `<path fill="${COLOURS.highlight}" stroke="${COLOURS.coast}" stroke-width="1.2" stroke-linejoin="round" d="${pathData(highlighted)}"/>\n`;
    if (ringedArea(highlighted) < SMALL_STATE_AREA) {
      const [x, y] = point;
      body +=
        `<circle cx="${x}" cy="${y}" r="${RING_RADIUS}" fill="none" stroke="${COLOURS.coast}" stroke-width="5"/>\n` +
        `<circle cx="${x}" cy="${y}" r="${RING_RADIUS}" fill="none" stroke="${COLOURS.highlight}" stroke-width="3"/>\n`;
    }
  }
  return svgDocument(US_FRAME.width, US_FRAME.height, `0 0 ${US_FRAME.width} ${US_FRAME.height}`, body);
}

// The inset bitmaps are drawn from geometry projected straight at pixel
// scale, so their coastlines keep the detail the whole-unit outlines lose.
function insetSvg(rect, rings, fill, k) {
  const x = rect.x * k;
  const y = rect.y * k;
  const w = rect.w * k;
  const h = rect.h * k;
  const body =
    `<rect x="${x}" y="${y}" width="${w}" height="${h}" fill="${COLOURS.background}"/>\n` +
    `<path fill="${fill}" stroke="${COLOURS.coast}" stroke-width="${0.8 * k}" stroke-linejoin="round" d="${pathData(rings)}"/>\n` +
    `<rect x="${x + k / 2}" y="${y + k / 2}" width="${w - k}" height="${h - k}" fill="none" stroke="${COLOURS.insetFrame}" stroke-width="${k}"/>\n`;
  return svgDocument(w, h, `${x} ${y} ${w} ${h}`, body);
}

// Builds every United States picture into dataDir and returns the map
// point of each state by abbreviation.
export function buildUs({ modulesDir, dataDir, buildDir }) {
  const topology = loadTopology(modulesDir);
  const collection = topology.objects.states;
  const byName = new Map(collection.geometries.map((g) => [g.properties.name, g]));
  const geometryOf = new Map();
  for (const state of STATES) {
    const geometry = byName.get(state.name);
    if (!geometry) throw new Error(`no shape for ${state.name}`);
    const keep = INSET_KEEP[state.abbreviation];
    geometryOf.set(state.abbreviation, keep ? filterPolygons(topology, geometry, keep) : geometry);
  }
  const lower48 = STATES.filter((s) => !INSET_STATES.includes(s.abbreviation)).map((s) => geometryOf.get(s.abbreviation));
  // The District of Columbia is drawn so Maryland and Virginia show no hole.
  const district = byName.get("District of Columbia");
  const mainland = [...lower48, district];

  const rawFeature = (geometry) => topojson.feature(topology, geometry);
  const projection = geoAlbers().fitExtent(
    [
      [PADDING, PADDING],
      [US_FRAME.width - PADDING, US_FRAME.height - PADDING],
    ],
    { type: "FeatureCollection", features: mainland.map(rawFeature) },
  );
  const simple = simplifiedAt(topology, projection.scale());
  const simpleFeature = (geometry) => topojson.feature(simple, geometry);

  const frameRings = new Map();
  const points = new Map();
  for (const state of STATES) {
    const geometry = geometryOf.get(state.abbreviation);
    if (INSET_STATES.includes(state.abbreviation)) continue;
    frameRings.set(state.abbreviation, roundRings(projectRings(simpleFeature(geometry), projection)));
    points.set(state.abbreviation, mapPoint(rawFeature(geometry), projection));
  }

  const nation = roundRings(projectRings(topojson.merge(simple, mainland), projection));
  const mesh = roundRings(projectRings(topojson.mesh(simple, { type: "GeometryCollection", geometries: mainland }, (a, b) => a !== b), projection));

  writeIfChanged(path.join(dataDir, "usmap.svg"), mapSvg(nation, mesh, null, null));
  const mapSizes = [];
  for (const [abbreviation, rings] of frameRings) {
    const svg = mapSvg(nation, mesh, rings, points.get(abbreviation));
    mapSizes.push(Buffer.byteLength(svg));
    writeIfChanged(path.join(dataDir, `${abbreviation}map.svg`), svg);
  }

  for (const abbreviation of INSET_STATES) {
    const rect = US_INSETS[abbreviation];
    const geometry = geometryOf.get(abbreviation);
    const insetProj = fitInset(insetProjection(abbreviation), rawFeature(geometry), rect);
    const insetSimple = simplifiedAt(topology, insetProj.scale());
    const rings = roundRings(projectRings(topojson.feature(insetSimple, geometry), insetProj));
    frameRings.set(abbreviation, rings);
    points.set(abbreviation, mapPoint(rawFeature(geometry), insetProj));
    const k = INSET_PIXELS_PER_UNIT;
    const pixelProj = insetProjection(abbreviation)
      .scale(insetProj.scale() * k)
      .translate(insetProj.translate().map((v) => v * k));
    const pixelRings = roundRings(projectRings(topojson.feature(simplifiedAt(topology, pixelProj.scale()), geometry), pixelProj));
    const lower = abbreviation.toLowerCase();
    for (const [variant, fill] of [
      ["blue", COLOURS.plain],
      ["yellow", COLOURS.highlight],
    ]) {
      const svgFile = path.join(buildDir, `${lower}${variant}.svg`);
      const pngFile = path.join(buildDir, `${lower}${variant}.png`);
      fs.writeFileSync(svgFile, insetSvg(rect, pixelRings, fill, k));
      svgToPng(svgFile, pngFile, { width: rect.w * k, height: rect.h * k });
      pngToBmp(pngFile, path.join(dataDir, `${lower}${variant}.bmp`), COLOURS.background);
    }
  }

  for (const state of STATES) {
    const rings = frameRings.get(state.abbreviation);
    const [x, y] = points.get(state.abbreviation);
    if (!insideRings(rings, x, y)) throw new Error(`map point of ${state.abbreviation} (${x}, ${y}) lies outside its outline`);
    writeIfChanged(path.join(dataDir, `${state.abbreviation}outline.json`), JSON.stringify(ringsForJson(rings)) + "\n");
  }

  const layout = { width: US_FRAME.width, height: US_FRAME.height, insets: {} };
  for (const abbreviation of INSET_STATES) layout.insets[abbreviation] = { ...US_INSETS[abbreviation] };
  writeIfChanged(path.join(dataDir, "usmap.json"), JSON.stringify(layout) + "\n");

  return { points, mapSizes };
}
