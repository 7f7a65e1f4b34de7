// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the comma-separated data files just far enough to replace single
// numeric items in place, leaving every other byte of the file untouched.

// Start and end offsets of each item of one line; commas inside quoted
// texts (with "" as an escaped quote) do not split items.
export function itemSpans(line) {
  const spans = [];
  let start = 0;
  let quoted = false;
  for (let i = 0; i < line.length; i++) {
    const c = line[i];
    if (c === '"') {
      if (quoted && line[i + 1] === '"') {
        i++;
      } else {
        quoted = !quoted;
      }
    } else if (c === "," && !quoted) {
      spans.push([start, i]);
      start = i + 1;
    }
  }
  if (quoted) throw new Error(`unterminated quoted text in: ${line}`);
  spans.push([start, line.length]);
  return spans;
}

// Text of item `field` (1-based), without its quotes when it is a text.
export function itemText(line, field) {
  const spans = itemSpans(line);
  if (field > spans.length) throw new Error(`line has ${spans.length} items, wanted item ${field}`);
  const raw = line.slice(spans[field - 1][0], spans[field - 1][1]);
  if (raw.startsWith('"')) return raw.slice(1, -1).replaceAll('""', '"');
  return raw;
}

// Replaces numeric items: `values` maps field number (1-based) to a whole
// number. The line must hold exactly `expectedItems` items, so a record of
// the wrong shape is reported instead of being patched in the wrong place.
export function setNumbers(line, values, expectedItems) {
  const spans = itemSpans(line);
  if (spans.length !== expectedItems) {
    throw new Error(`expected ${expectedItems} items, found ${spans.length} in: ${line}`);
  }
  let out = line;
  const fields = Object.keys(values)
    .map(Number)
    .sort((a, b) => b - a);
  for (const field of fields) {
    const value = values[field];
    if (!Number.isInteger(value)) throw new Error(`item ${field} must be a whole number, got ${value}`);
    const [s, e] = spans[field - 1];
    if (out.slice(s, e).startsWith('"')) throw new Error(`item ${field} is a text, not a number: ${line}`);
    out = out.slice(0, s) + String(value) + out.slice(e);
  }
  return out;
}

// Applies `change(line, index)` to each record of a file's text; the file
// form has LF line ends and no blank lines, and a final LF is kept as found.
export function mapRecords(text, change) {
  const hasFinalNewline = text.endsWith("\n");
  const lines = (hasFinalNewline ? text.slice(0, -1) : text).split("\n");
  const out = lines.map((line, index) => {
    if (line === "") throw new Error(`blank line at record ${index + 1}`);
    return change(line, index);
  });
  return out.join("\n") + (hasFinalNewline ? "\n" : "");
}
