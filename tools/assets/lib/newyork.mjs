// SPDX-License-Identifier: GPL-3.0-or-later
// The flag of New York as flown since 2020: the flag-icon drawing with the
// "E PLURIBUS UNUM" scroll added below the shield, above the EXCELSIOR
// scroll. flags.mjs writes the result to overrides/us-ny.svg.
//
// In the package's drawing the tip of the shield touches the EXCELSIOR
// scroll, so the new scroll needs room. The transformation is small and
// works on the drawing's own elements, whose ids are fixed in the pinned
// version:
//   1. the whole drawing is kept as it is;
//   2. the shield (the first outline of path434) is painted over with the
//      field colour and drawn again, squeezed upwards from its top edge so
//      that its tip rises by SHIELD_LIFT;
//   3. the new scroll, a white band with black lettering centred on the
//      shield's axis, fills the room between the raised tip and the
//      EXCELSIOR scroll;
//   4. the crown at Liberty's feet, which lay over the shield's lower left
//      border, is drawn again on top, so it also lies over the new scroll's
//      left end.
// Everything else (the supporters, the eagle, the globe, EXCELSIOR) stays
// where the package draws it.

const FIELD = "#002a86";
const SHIELD_TOP = 162.82;
const SHIELD_TIP = 375.24;
export const SHIELD_LIFT = 28;

// The crown's filled parts; its outlines share the long stroke paths
// path450, path452 and path454 with other figures, so those are drawn again
// only inside CROWN_BOX.
const CROWN_PARTS = [
  "path210", "path212", "path298", "path304", "path306", "path308",
  "path360", "path362", "path364", "path366", "path368", "path370", "path372",
  "path374", "path376", "path378", "path380", "path382", "path384", "path386", "path388",
];
const CROWN_OUTLINES = ["path450", "path452", "path454"];
const CROWN_BOX = { x: 360, y: 333, width: 34, height: 35 };

// The new scroll: a white band with swallow-tailed ends, centred on the
// shield's axis (x = 450). It is drawn before the crown, so its left end
// passes behind the crown; the lettering stays clear of it.
const MOTTO = "E PLURIBUS UNUM";
const SCROLL = "M382 349.5 Q450 344.5 518 349.5 L511 358 L518 366.5 Q450 361.5 382 366.5 L389 358 Z";

function attribute(svg, id, name) {
  const element = new RegExp(`<path id="${id}"[^>]*>`).exec(svg);
  if (!element) throw new Error(`New York flag: element ${id} not found; the package's drawing changed`);
  const value = new RegExp(`\\s${name}="([^"]*)"`).exec(element[0]);
  if (!value) throw new Error(`New York flag: ${id} has no ${name}`);
  return value[1];
}

// The outer outline of the shield: the first closed outline of path434.
export function shieldOutline(svg) {
  const d = attribute(svg, "path434", "d");
  const second = d.indexOf("m", 1);
  return (second < 0 ? d : d.slice(0, second)) + "z";
}

// Everything the package draws, without its metadata.
function drawing(svg) {
  const start = svg.indexOf("</metadata>");
  const end = svg.lastIndexOf("</svg>");
  if (start < 0 || end < 0) throw new Error("New York flag: unexpected layout of the package's drawing");
  return svg.slice(start + "</metadata>".length, end).trim();
}

export function newYorkFlag(packageSvg) {
  for (const id of ["path20", ...CROWN_PARTS, ...CROWN_OUTLINES]) attribute(packageSvg, id, "d");
  if (attribute(packageSvg, "path20", "fill") !== FIELD) throw new Error("New York flag: the field is not the expected blue");
  const outline = shieldOutline(packageSvg);
  const k = (SHIELD_TIP - SHIELD_LIFT - SHIELD_TOP) / (SHIELD_TIP - SHIELD_TOP);
  const squeeze = `translate(0 ${SHIELD_TOP}) scale(1 ${k.toFixed(5)}) translate(0 ${-SHIELD_TOP})`;
  const box = CROWN_BOX;
  const ink = 'stroke="#000" stroke-width=".69593" stroke-linejoin="round"';
  return `<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: MIT AND GPL-3.0-or-later -->
<!-- Flag of New York (2020): flag-icon 2.5.0 svg/us/new_york.svg (MIT, Copyright (c) 2014 Steven Skelton) with the shield raised and the E PLURIBUS UNUM scroll added. -->
<!-- Written by tools/assets/lib/newyork.mjs when make-pictures runs: edit that, not this file. -->
<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" version="1.1" width="900" height="450" viewBox="0 0 900 450">
<defs>
<clipPath id="ny-shield"><path d="${outline}"/></clipPath>
<clipPath id="ny-crown"><rect x="${box.x}" y="${box.y}" width="${box.width}" height="${box.height}"/></clipPath>
<g id="ny-arms">
${drawing(packageSvg)}
</g>
</defs>
<use xlink:href="#ny-arms"/>
<path d="${outline}" fill="${FIELD}" stroke="${FIELD}" stroke-width="2"/>
<g transform="${squeeze}">
<g clip-path="url(#ny-shield)"><use xlink:href="#ny-arms"/></g>
<use xlink:href="#path434"/>
</g>
<path d="${SCROLL}" fill="#ffffff" ${ink}/>
<text x="450" y="359.6" text-anchor="middle" font-family="DejaVu Serif" font-stretch="condensed" font-weight="bold" font-size="10.5" fill="#000000">${MOTTO}</text>
${CROWN_PARTS.map((id) => `<use xlink:href="#${id}"/>`).join("\n")}
<g clip-path="url(#ny-crown)">${CROWN_OUTLINES.map((id) => `<use xlink:href="#${id}"/>`).join("")}</g>
</svg>
`;
}
