// What the reference of the tests has of the omer and of moments that are the same everywhere, as entries of C++.
"use strict";

const { DAY, plusDays } = require("./occasions_reference_facts.js");

const DAYS_OF_OMER = 49;

// "group, nightfall of the 49 evenings of the omer": its second of the day on the first, then how much later it is than
// the evening before.
function omerOf(group, programs, place, year, customs) {
  const seconds = [];
  for (const { key, exact } of programs.hebcal.times(year, false, place, customs)) {
    const [, moment, number] = key.split(" ");
    if (moment === "count") seconds[number - 1] = Math.floor((place.clockAt(exact) % DAY) / 1000);
  }
  if (seconds.length !== DAYS_OF_OMER || seconds.includes(undefined)) throw new Error(`${year}: no 49 evenings`);
  const later = seconds.slice(1).map((second, index) => String(second - seconds[index]));
  return [`{${group}, {${seconds[0]}`, ...later.slice(0, -1), `${later.at(-1)}}}`];
}

// Moladot and tekufot of a year and of a day before and after it: "year, occasion, number, second of UTC".
function instantsOf(programs, place, year, range, customs) {
  const [begin, end] = [Date.parse(plusDays(range[0], -1)), Date.parse(plusDays(range[1], 2))];
  const times = [year - 1, year, year + 1].flatMap((one) => [...programs.julian.times(one),
    ...programs.hebcal.times(one, false, place, customs)]);
  const texts = times.filter(({ key, exact }) => ["molad", "tekufa"].includes(key) && exact >= begin && exact < end)
    .map(({ key, exact, number }) => `{${year}, "${key}", ${number}, ${Math.floor(exact / 1000)}}`);
  return [...new Set(texts)];
}

// Lines of at most 120 characters.
function wrapped(entries) {
  const lines = [];
  let line = "   ";
  for (const entry of entries) {
    if (line.length + entry.length + 2 > 120) {
      lines.push(line);
      line = "   ";
    }
    line += ` ${entry},`;
  }
  return [...lines, line];
}

module.exports = { omerOf, instantsOf, wrapped };
