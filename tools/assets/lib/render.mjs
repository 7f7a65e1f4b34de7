// SPDX-License-Identifier: GPL-3.0-or-later
// Rasterising and compressing through the Debian tools, with options that
// keep the output byte-identical from one run to the next.

import { execFileSync } from "node:child_process";
import fs from "node:fs";

// The plain `convert` found first on PATH may not be ImageMagick.
const CONVERT = "/usr/bin/convert";

function run(program, args) {
  execFileSync(program, args, { stdio: ["ignore", "ignore", "inherit"] });
}

export function svgToPng(svgFile, pngFile, { width, height, background } = {}) {
  const args = ["--format=png", "--output", pngFile];
  if (width) args.push("--width", String(width));
  if (height) args.push("--height", String(height));
  if (width && height) args.push("--keep-aspect-ratio");
  if (background) args.push("--background-color", background);
  args.push(svgFile);
  run("rsvg-convert", args);
}

// 256-colour PNG; --strip drops metadata so reruns match.
export function quantizePng(pngIn, pngOut) {
  if (fs.existsSync(pngOut)) fs.unlinkSync(pngOut);
  run("pngquant", ["--strip", "--speed", "1", "--output", pngOut, "256", pngIn]);
}

// 8-bit palette BMP3 (ImageMagick run-length encodes it; Qt reads that).
export function pngToBmp(pngIn, bmpOut, background) {
  run(CONVERT, [pngIn, "-background", background, "-alpha", "remove", "-alpha", "off", "-colors", "256", "-type", "Palette", `BMP3:${bmpOut}`]);
}

export function pngToGif(pngIn, gifOut, colours) {
  run(CONVERT, [pngIn, "-alpha", "off", "+dither", "-colors", String(colours), `GIF:${gifOut}`]);
}

// Writes only when the bytes differ, so an unchanged picture keeps its file
// time and git sees nothing.
export function writeIfChanged(file, data) {
  const bytes = Buffer.isBuffer(data) ? data : Buffer.from(data, "utf8");
  if (fs.existsSync(file) && fs.readFileSync(file).equals(bytes)) return;
  fs.writeFileSync(file, bytes);
}
