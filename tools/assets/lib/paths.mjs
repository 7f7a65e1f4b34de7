// SPDX-License-Identifier: GPL-3.0-or-later
// Rings of whole-number frame points: rounding, SVG path data and the
// even-odd hit test. Plain functions, no packages needed.

export function signedArea(ring) {
  let sum = 0;
  for (let i = 0, j = ring.length - 1; i < ring.length; j = i++) {
    sum += (ring[j][0] - ring[i][0]) * (ring[j][1] + ring[i][1]);
  }
  return sum / 2;
}

// Rounds a ring to whole numbers and drops the repeats rounding creates; a
// closed ring that no longer encloses any area, or a line shorter than two
// points, disappears (null).
export function roundRing(ring) {
  const out = [];
  for (const [x, y] of ring) {
    const p = [Math.round(x), Math.round(y)];
    const last = out[out.length - 1];
    if (!last || last[0] !== p[0] || last[1] !== p[1]) out.push(p);
  }
  if (ring.closed) {
    while (out.length > 1 && out[0][0] === out[out.length - 1][0] && out[0][1] === out[out.length - 1][1]) {
      out.pop();
    }
    if (out.length < 3 || signedArea(out) === 0) return null;
  } else if (out.length < 2) {
    return null;
  }
  out.closed = ring.closed;
  return out;
}

export function roundRings(rings) {
  return rings.map(roundRing).filter((r) => r !== null);
}

function joinNumbers(numbers) {
  let s = "";
  for (const n of numbers) {
    if (s !== "" && n >= 0) s += " ";
    s += String(n);
  }
  return s;
}

// Absolute move to each ring's start, then relative line steps: whole-number
// deltas keep the files small.
export function pathData(rings) {
  let d = "";
  for (const ring of rings) {
    d += "M" + joinNumbers(ring[0]);
    const steps = [];
    for (let i = 1; i < ring.length; i++) {
      steps.push(ring[i][0] - ring[i - 1][0], ring[i][1] - ring[i - 1][1]);
    }
    if (steps.length > 0) d += "l" + joinNumbers(steps);
    if (ring.closed) d += "z";
  }
  return d;
}

// Plain nested arrays for JSON: [[[x, y], ...], ...].
export function ringsForJson(rings) {
  return rings.map((ring) => ring.map(([x, y]) => [x, y]));
}

// The most inland point of a projected polygon: polylabel reads its first
// ring as the outline, so the largest ring goes first.
export function orderLargestFirst(rings) {
  return rings
    .map((ring, index) => ({ ring, index, area: Math.abs(signedArea(ring)) }))
    .sort((a, b) => b.area - a.area || a.index - b.index)
    .map((entry) => entry.ring);
}

// Even-odd point-in-rings test, the rule the program uses for outlines.
export function insideRings(rings, x, y) {
  let inside = false;
  for (const ring of rings) {
    for (let i = 0, j = ring.length - 1; i < ring.length; j = i++) {
      const [xi, yi] = ring[i];
      const [xj, yj] = ring[j];
      if (yi > y !== yj > y && x < ((xj - xi) * (y - yi)) / (yj - yi) + xi) inside = !inside;
    }
  }
  return inside;
}
