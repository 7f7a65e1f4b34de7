// SPDX-License-Identifier: GPL-3.0-or-later
// File names and captions the program looks pictures up by.

function threeDigits(n) {
  return String(n).padStart(3, "0");
}

// Presidency 24 is the second term of the man who was the 22nd president and
// shares his portrait; below it the numbering is shifted by one.
export function portraitFile(presidency) {
  if (!Number.isInteger(presidency) || presidency < 1) throw new Error(`bad presidency ${presidency}`);
  if (presidency < 24) return `presi${threeDigits(presidency + 1)}.gif`;
  if (presidency === 24) return "presi023.gif";
  return `presi${threeDigits(presidency)}.gif`;
}

export function countryFlagFile(record) {
  return `flag${threeDigits(record)}.png`;
}

export function stateFlagFile(abbreviation) {
  return `${abbreviation}flag.png`;
}

export function ordinal(n) {
  const lastTwo = n % 100;
  if (lastTwo >= 11 && lastTwo <= 13) return `${n}th`;
  switch (n % 10) {
    case 1:
      return `${n}st`;
    case 2:
      return `${n}nd`;
    case 3:
      return `${n}rd`;
    default:
      return `${n}th`;
  }
}
