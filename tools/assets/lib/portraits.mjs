// SPDX-License-Identifier: GPL-3.0-or-later
// Portrait cards for the presidents: a framed cameo with the initials, the
// number, the name and the years served, one GIF per file name the program
// asks for. A school may drop a real portrait in under the same name.

import fs from "node:fs";
import path from "node:path";
import { itemSpans, itemText, mapRecords } from "./datfile.mjs";
import { ordinal, portraitFile } from "./names.mjs";
import { pngToGif, svgToPng } from "./render.mjs";

export const CARD = { width: 240, height: 300 };
const PRESIDENT_FIELDS = 11;

const COLOURS = {
  paper: "#f6f1e4",
  frame: "#1f2f4f",
  gold: "#b8914a",
  cameo: "#dde5ee",
  ink: "#1f2f4f",
  soft: "#5a6478",
};

// One entry per presidency, in order: name and the year the term began.
export function readPresidencies(text) {
  const presidencies = [];
  mapRecords(text, (line, index) => {
    const count = itemSpans(line).length;
    if (count !== PRESIDENT_FIELDS) throw new Error(`presidency ${index + 1} has ${count} items, not ${PRESIDENT_FIELDS}`);
    const start = itemText(line, 6);
    const match = /^\d\d\/\d{1,2}\/(\d{4})$/.exec(start);
    if (!match) throw new Error(`presidency ${index + 1}: term start "${start}" is not MM/DD/YYYY`);
    presidencies.push({ number: index + 1, name: itemText(line, 1), startYear: Number(match[1]) });
    return line;
  });
  return presidencies;
}

export function initials(name) {
  return name
    .split(/\s+/)
    .filter((word) => /^[A-Z]/.test(word))
    .map((word) => word[0])
    .join("");
}

// Years of one presidency: to the start of the next, or open for the last.
export function termYears(presidencies, index) {
  const start = presidencies[index].startYear;
  const next = presidencies[index + 1];
  return next ? `${start}\u2013${next.startYear}` : `${start}\u2013present`;
}

// What each portrait file shows. Two presidencies of the same man share a
// file; the card then names both numbers and both terms.
export function portraitCards(presidencies) {
  const cards = new Map();
  presidencies.forEach((presidency, index) => {
    const file = portraitFile(presidency.number);
    const card = cards.get(file);
    if (card) {
      if (card.name !== presidency.name) {
        throw new Error(`${file} would show both ${card.name} and ${presidency.name}`);
      }
      card.numbers.push(presidency.number);
      card.terms.push(termYears(presidencies, index));
    } else {
      cards.set(file, { file, name: presidency.name, numbers: [presidency.number], terms: [termYears(presidencies, index)] });
    }
  });
  return [...cards.values()];
}

function escapeXml(text) {
  return text.replaceAll("&", "&amp;").replaceAll("<", "&lt;").replaceAll(">", "&gt;");
}

// Serif capitals run at roughly 0.62 em, lower case narrower; a size that
// keeps the line inside the card is enough here.
function fittingSize(text, preferred, width) {
  const estimate = text.length * 0.58 * preferred;
  return estimate <= width ? preferred : Math.floor((preferred * width) / estimate);
}

export function cardSvg(card) {
  const { width, height } = CARD;
  const numberLine =
    card.numbers.length === 1 ? `${ordinal(card.numbers[0])} President` : `${card.numbers.map(ordinal).join(" and ")} President`;
  const yearsLine = card.terms.join(", ");
  const letters = initials(card.name);
  const letterSize = letters.length <= 2 ? 50 : letters.length === 3 ? 38 : 28;
  const cx = width / 2;
  const text = (y, size, weight, fill, content) =>
    `<text x="${cx}" y="${y}" font-family="DejaVu Serif" font-size="${size}" font-weight="${weight}" fill="${fill}" text-anchor="middle">${escapeXml(content)}</text>\n`;
  const body =
    `<rect width="${width}" height="${height}" fill="${COLOURS.paper}"/>\n` +
    `<rect x="4" y="4" width="${width - 8}" height="${height - 8}" fill="none" stroke="${COLOURS.frame}" stroke-width="6"/>\n` +
    `<rect x="12" y="12" width="${width - 24}" height="${height - 24}" fill="none" stroke="${COLOURS.gold}" stroke-width="1.5"/>\n` +
    text(38, fittingSize(numberLine, 16, 200), "bold", COLOURS.ink, numberLine) +
    `<ellipse cx="${cx}" cy="128" rx="64" ry="76" fill="${COLOURS.cameo}" stroke="${COLOURS.gold}" stroke-width="6"/>\n` +
    `<ellipse cx="${cx}" cy="128" rx="57" ry="69" fill="none" stroke="${COLOURS.frame}" stroke-width="1.5"/>\n` +
    text(128 + letterSize * 0.36, letterSize, "bold", COLOURS.ink, letters) +
    text(236, fittingSize(card.name, 19, 204), "bold", COLOURS.ink, card.name) +
    text(264, fittingSize(yearsLine, 15, 204), "normal", COLOURS.soft, yearsLine);
  return (
    `<?xml version="1.0" encoding="UTF-8"?>\n` +
    `<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width="${width}" height="${height}" viewBox="0 0 ${width} ${height}">\n` +
    body +
    `</svg>\n`
  );
}

export function buildPortraits({ dataDir, buildDir }) {
  const datFile = path.join(dataDir, "uspres.dat");
  if (!fs.existsSync(datFile)) throw new Error(`${datFile} is needed for the portrait names and years`);
  const cards = portraitCards(readPresidencies(fs.readFileSync(datFile, "utf8")));
  for (const card of cards) {
    const stem = card.file.replace(/\.gif$/, "");
    const svgFile = path.join(buildDir, `${stem}.svg`);
    const pngFile = path.join(buildDir, `${stem}.png`);
    fs.writeFileSync(svgFile, cardSvg(card));
    svgToPng(svgFile, pngFile);
    pngToGif(pngFile, path.join(dataDir, card.file), 64);
  }
  return cards;
}
