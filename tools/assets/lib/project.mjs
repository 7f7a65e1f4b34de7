// SPDX-License-Identifier: GPL-3.0-or-later
// Projected geometry as plain rings, through d3's path stream.

import { geoPath } from "d3-geo";

// Rings as d3 streams them through a projection, in frame units (floats).
// Each ring carries `closed` so polygons and border lines share one collector.
export function projectRings(geojson, projection) {
  const rings = [];
  let current = null;
  const context = {
    moveTo(x, y) {
      current = [[x, y]];
      current.closed = false;
      rings.push(current);
    },
    lineTo(x, y) {
      current.push([x, y]);
    },
    closePath() {
      current.closed = true;
    },
    arc() {},
  };
  geoPath(projection, context)(geojson);
  return rings;
}
