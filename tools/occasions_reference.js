#!/usr/bin/env node
// Compares the occasions of sixty Jewish years, which have all fourteen types of years, with what two independent
// programs answer, in both lands and at five places, by two sets of customs; writes the reference of the tests.
//
//   npm install --prefix FOLDER @hebcal/core@6.9.3 kosher-zmanim@0.9.0
//   cmake --preset native && cmake --build --preset native --target print_answers
//   node tools/occasions_reference.js FOLDER build/native/tools/print_answers
//   node tools/occasions_reference.js FOLDER --write > tests/core/occasions_reference_days.h
//
// Every difference falls into a class of the list below or is listed; exit code 1 then.
"use strict";

process.env.TZ = "UTC";

const { execFileSync } = require("child_process");
const path = require("path");
const { DAY, MINUTE, plusDays, weekdayOf } = require("./occasions_reference_facts.js");
const { Hebcal } = require("./occasions_reference_hebcal.js");
const { KosherJava, JulianCalendar } = require("./occasions_reference_kosher.js");
const { omerOf, instantsOf, wrapped } = require("./occasions_reference_entries.js");

const FIRST_YEAR = 5757;
const LAST_YEAR = 5816;

// Before this day the Julian day of both programs is a day late, and with it the sun: their sunsets of 29 February and
// 1 March 2000 are the same second.
const SUN_FROM = "2000-03-01";

// name, packed latitude and longitude, zone hours and minutes, zone
const PLACES = [
  ["Jerusalem", 3146, 3513, 2, 0, "Asia/Jerusalem"],
  ["New York", 4043, -7400, -5, 0, "America/New_York"],
  ["London", 5131, -8, 0, 0, "Europe/London"],
  ["Melbourne", -3749, 14458, 10, 0, "Australia/Melbourne"],
  ["Adelaide", -3456, 13836, 9, 30, "Australia/Adelaide"],
];

const CUSTOMS = [
  { name: "the defaults", settings: [], endMinutes: 45, dawn: 16.1, nightfallOfAv: 7.083, chametz: "gra",
    chanukah: "Nightfall", levanaDays: 3, levanaHalf: true },
  { name: "others", settings: ["DoMinutes=0", "DegreesBelowHorizon=8.5", "Dawn=dawn-72-min",
    "NightfallOfAv=nightfall-6.45", "Chametz=mga-72-min", "Chanukah=HalfTwilight", "KiddushLevanaFrom=7",
    "KiddushLevanaUntil=15"],
  endDegrees: 8.5, dawn: 72, nightfallOfAv: 6.45, chametz: "mga-72-min", chanukah: "HalfTwilight", levanaDays: 7,
  levanaHalf: false },
];

// The sun of the programs and ours are nearer to each other than this.
const SUN_SECONDS = 15;

const ROUNDING_CLASSES = {
  nearest: "seconds of the sunset: cut by them, rounded by ours",
  up: "nightfall: to the nearest minute by them, up by ours",
  down: "dawn and deadlines: to the nearest minute by them, down by ours",
};

// Differences of days by the program, and whether a fact of one side is such; has says whether the other side has it so
// many days later.
const DAY_CLASSES = [
  { name: "third BeHaB fast on 14 Iyar: Hebcal moves it to 17 Iyar", program: "Hebcal",
    applies: (fact, has) => fact.occasion === "behab" && fact.number === 3 && (has(3) || has(-3)) },
  { name: "modern days before the law of 2004: KosherJava has the later rule only", program: "KosherJava",
    applies: (fact, has) => ["yom-hazikaron", "yom-haatzmaut"].includes(fact.occasion) && fact.date < "2004" &&
      (has(1) || has(-1)) },
];

class Tally {
  constructor() {
    this.counts = new Map();
    this.listed = 0;
  }

  count(what) {
    this.counts.set(what, (this.counts.get(what) ?? 0) + 1);
  }

  list(text) {
    if (++this.listed <= 100) console.log(text);
  }
}

function placeOf([name, packedLatitude, packedLongitude, zoneHours, zoneMinutes, zone], DateTime) {
  const degreesOf = (packed) => Math.trunc(packed / 100) + (packed % 100) / 60;
  const clockAt = (exact) => exact + DateTime.fromMillis(exact, { zone }).offset * MINUTE;
  return { name, zone, packed: [packedLatitude, packedLongitude, zoneHours, zoneMinutes],
    latitude: degreesOf(packedLatitude), longitude: degreesOf(packedLongitude),
    candleMinutes: name === "Jerusalem" ? 40 : 18,
    clockAt, dateAt: (exact) => new Date(clockAt(exact)).toISOString().slice(0, 10) };
}

const ROUND = { nearest: (minutes) => Math.floor(minutes + 0.5), up: Math.ceil, down: Math.floor };

// The minute, of the clock at the place, that ours makes of a program's moment if its sun were so much later.
const expectedMinute = (time, place, seconds) =>
  ROUND[time.rounding]((place.clockAt(time.exact) + seconds * 1000) / MINUTE) + time.plus;

// Ours: facts as the programs have them, and minutes by their keys.
function answersOf(printAnswers, place, isIsrael, customs) {
  const output = execFileSync(printAnswers, ["occasions", place.name, ...place.packed.map(String),
    isIsrael ? "israel" : "diaspora", String(FIRST_YEAR), String(LAST_YEAR), ...customs.settings],
  { encoding: "utf8", maxBuffer: 1 << 28 });
  const answers = { facts: new Set(), minutes: new Map(), moments: new Map(), rows: 0, places: place };
  for (const line of output.trimEnd().split("\n")) {
    const [date, time, , occasion, moment, number] = line.split("\t");
    ++answers.rows;
    const fact = factOfRow(date, occasion, moment, number);
    if (fact) answers.facts.add(fact);
    if (time === "-") continue;
    const minute = time === "----" ? null : Date.parse(`${date}T${time}:00Z`) / MINUTE;
    if (moment === "instant") answers.moments.set(`${occasion} ${minute}`, date);
    else answers.minutes.set(keyOfRow(date, occasion, moment, number), minute);
  }
  return answers;
}

// Fasts stand as their moments; the omer is counted on the evening before its day; Selichot begin in the night.
function factOfRow(date, occasion, moment, number) {
  if (moment === "day") return `${date} ${occasion} ${number}`;
  if (occasion === "omer") return `${plusDays(date, 1)} omer ${number}`;
  if (occasion === "tisha-beav") return moment === "fast-ends" ? `${date} ${occasion} ${number}` : null;
  if (moment === "fast-begins" && occasion !== "fast-of-yom-kippur") return `${date} ${occasion} ${number}`;
  if (occasion === "selichot") return `${plusDays(date, weekdayOf(date) === 0 ? -1 : 0)} selichot 0`;
  if (occasion === "blessing-of-the-sun") return `${date} ${occasion} 0`;
  return null;
}

function keyOfRow(date, occasion, moment, number) {
  if (["candles", "end", "eating-ends", "burning-ends"].includes(moment)) return `${date} ${moment}`;
  return `${date} ${moment} ${["lights", "count"].includes(moment) ? number : occasion}`;
}

const factFrom = (text) => {
  const [date, occasion, number] = text.split(" ");
  return { date, occasion, number: Number(number) };
};

function compareFacts(ours, theirs, program, range, where, tally) {
  const tell = (text, who, others) => {
    const fact = factFrom(text);
    if (!program.offers.has(fact.occasion) || fact.date < range[0] || fact.date > range[1]) return;
    const has = (days) => others.has(`${plusDays(fact.date, days)} ${fact.occasion} ${fact.number}`);
    const known = DAY_CLASSES.find((one) => one.program === program.name && one.applies(fact, has));
    if (known) tally.count(known.name);
    else tally.list(`${where}: ${who} has ${text}`);
  };
  for (const text of ours) {
    if (theirs.has(text)) tally.count(`days: the same as ${program.name}`);
    else tell(text, "only ours", theirs);
  }
  for (const text of theirs) if (!ours.has(text)) tell(text, `only ${program.name}`, ours);
}

function classOf(time, minute, place) {
  if (time.exact === null) return minute === null ? "times: none, since the sun does not get so low" : null;
  if (minute === null) return null;
  const shown = time.shown === undefined ? undefined : place.clockAt(time.shown) / MINUTE;
  const expected = expectedMinute(time, place, 0);
  if (minute === (shown ?? expected)) return `times: the same minute as ${time.program}`;
  if (minute === expected) return ROUNDING_CLASSES[time.rounding];
  const isNear = [-SUN_SECONDS, SUN_SECONDS].some((seconds) => minute === expectedMinute(time, place, seconds));
  // Half a day before noon the sun is some seconds off its lowest point.
  const isLowest = time.isLowest && Math.abs(minute - expected) <= 1;
  if (isLowest) return "kiddush levana: the sun's lowest point, in a night without dawn";
  if (isNear) return "the sun of both lies on either side of a minute's edge, seconds apart";
  if (time.isBarely) return "the sun barely gets so low by ours, barely not by theirs";
  return time.isNearEdge ? "kiddush levana: its limit lies within two minutes of dawn or nightfall" : null;
}

const textOf = (minute) => (minute === null ? "----" : new Date(minute * MINUTE).toISOString().slice(0, 16));

function compareTimes(answers, times, place, range, where, tally) {
  const told = new Set();
  for (const time of times) {
    const expected = time.exact === null ? null : expectedMinute(time, place, 0);
    const date = expected === null ? time.key.slice(0, 10) : textOf(expected).slice(0, 10);
    if (date < range[0] || date > range[1]) continue;
    if (time.key === "molad" || time.key === "tekufa") {
      compareInstant(answers, time, expected, where, tally);
      continue;
    }
    told.add(time.key);
    if (date < SUN_FROM) {
      tally.count("times before March 2000: the sun of both programs is a day late, not compared");
      continue;
    }
    const minute = answers.minutes.get(time.key);
    const known = minute === undefined ? null : classOf(time, minute, place);
    const ours = minute === undefined ? "has none" : textOf(minute);
    if (known) tally.count(known);
    else tally.list(`${where}: ${time.key}: ours ${ours}, ${time.program} ${textOf(expected)}`);
  }
  for (const key of answers.minutes.keys()) {
    if (!told.has(key)) tally.count(`times: nobody else tells "${key.slice(11).replace(/\d+/, "...")}"`);
  }
}

function compareInstant(answers, time, expected, where, tally) {
  const isThere = [0, -1, 1].some((minutes) => answers.moments.has(`${time.key} ${expected + minutes}`));
  const isSame = answers.moments.has(`${time.key} ${expected}`);
  if (isSame) tally.count(`${time.key}: the same minute as ${time.program}`);
  else if (isThere) tally.count(`${time.key}: half a minute of the mean time of Jerusalem rounded`);
  else tally.list(`${where}: ${time.key} of ${textOf(expected)}, which ${time.program} has`);
}

// What the programs answer for all years in a land.
function daysOf(programs, isIsrael, range) {
  const { hebcal, kosher, julian } = programs;
  const days = { hebcal: new Set(), kosher: kosher.facts(range, isIsrael), julian: new Set() };
  for (let year = FIRST_YEAR; year <= LAST_YEAR; ++year) {
    for (const fact of hebcal.facts(year, isIsrael)) days.hebcal.add(fact);
    for (const fact of julian.facts(year, isIsrael, hebcal)) days.julian.add(fact);
  }
  return days;
}

function timesOf(programs, kosherDays, isIsrael, place, customs, range) {
  const { hebcal, kosher, julian } = programs;
  const times = kosher.times(kosherDays, range, isIsrael, place, customs);
  for (let year = FIRST_YEAR; year <= LAST_YEAR; ++year) {
    times.push(...hebcal.times(year, isIsrael, place, customs), ...julian.times(year));
  }
  return times;
}

function compareAll(programs, places, range, printAnswers) {
  const tally = new Tally();
  let rows = 0;
  for (const isIsrael of [false, true]) {
    const days = daysOf(programs, isIsrael, range);
    for (const place of places) {
      for (const customs of CUSTOMS) {
        const where = `${isIsrael ? "Israel" : "diaspora"}, ${place.name}, ${customs.name}`;
        const answers = answersOf(printAnswers, place, isIsrael, customs);
        rows += answers.rows;
        for (const name of ["hebcal", "kosher", "julian"]) {
          compareFacts(answers.facts, days[name], programs[name], range, where, tally);
        }
        const times = timesOf(programs, days.kosher, isIsrael, place, customs, range);
        compareTimes(answers, times, place, range, where, tally);
      }
    }
  }
  for (const [what, count] of [...tally.counts].sort()) console.log(`${String(count).padStart(8)}  ${what}`);
  console.log(`${rows} rows compared, ${tally.listed} differ without a class`);
  process.exitCode = tally.listed || !rows ? 1 : 0;
}

// What is a sun's moment of which ours are made; the test has the same list, in this order.
const FASTS = ["fast-of-gedaliah", "10-tevet", "fast-of-esther", "fast-of-firstborn", "17-tammuz", "tisha-beav"];
const WHATS = ["candles", "flame", "end", ...FASTS.map((fast) => `fast-begins ${fast}`),
  ...FASTS.map((fast) => `fast-ends ${fast}`), "eating-ends", "burning-ends", "lights on Friday",
  "lights after Shabbat", "lights", "from", "until"];

// A bit of a time's lands: kiddush levana that has no minute to compare with.
const LOOSE = 4;

function whatOf(time, key) {
  const moment = key.split(" ")[1];
  if (moment === "candles") return time.plus > 0 ? "flame" : "candles";
  if (moment.startsWith("fast-")) return key.slice("2000-01-01 ".length);
  if (moment === "lights" && time.rounding === "nearest") {
    return time.plus > 0 ? "lights after Shabbat" : "lights on Friday";
  }
  return moment;
}

const dayIn = (start, date) => (Date.parse(date) - Date.parse(start)) / DAY;

// Days by the year's type as [day, occasion, number] with the lands (1 diaspora, 2 Israel); the diaspora's tal umatar
// belongs to the civil year and stands with the year.
function factsByDay(programs, days, range, start) {
  const byFact = new Map();
  let talUmatar = 0;
  [1, 2].forEach((land, index) => {
    const { hebcal, kosher, julian } = days[index];
    const isBehab = (fact) => fact.includes(" behab ");
    const all = [...[...hebcal].filter((fact) => !isBehab(fact)), ...[...kosher].filter(isBehab), ...julian];
    for (const text of all) {
      const { date, occasion, number } = factFrom(text);
      if (date < range[0] || date > range[1]) continue;
      const day = dayIn(start, date);
      if (occasion === "tal-umatar" && land === 1) talUmatar = day;
      else byFact.set(`${day}, "${occasion}", ${number}`, (byFact.get(`${day}, "${occasion}", ${number}`) ?? 0) | land);
    }
  });
  return { talUmatar, facts: new Map([...byFact].sort((a, b) => parseInt(a[0], 10) - parseInt(b[0], 10))) };
}

// Hebcal's moment where it has one, else KosherJava's: "day, what, second of the day, lands".
function timesByDay(programs, place, range, year) {
  const byTime = new Map();
  for (const land of [1, 2]) {
    const isIsrael = land === 2;
    const times = new Map();
    const kosherDays = programs.kosher.facts(range, isIsrael);
    const later = programs.hebcal.times(year, isIsrael, place, CUSTOMS[0]);
    for (const time of [...programs.kosher.times(kosherDays, range, isIsrael, place, CUSTOMS[0]), ...later]) {
      if (/molad|count/.test(time.key) || time.exact === null) continue;
      times.set(time.key, time);
    }
    for (const [key, time] of times) {
      const clock = place.clockAt(time.exact);
      const date = new Date(clock).toISOString().slice(0, 10);
      if (textOf(expectedMinute(time, place, 0)).slice(0, 10) < range[0] || date > range[1]) continue;
      const seconds = Math.floor((clock % DAY) / 1000);
      const text = [dayIn(range[0], date), WHATS.indexOf(whatOf(time, key)), seconds].join(", ");
      byTime.set(text, (byTime.get(text) ?? 0) | land | (time.isLowest || time.isNearEdge ? LOOSE : 0));
    }
  }
  const texts = [...byTime].map(([text, lands]) => `{${text}, ${lands}}`);
  return texts.sort((a, b) => parseInt(a.slice(1), 10) - parseInt(b.slice(1), 10));
}

function write(programs, places, range) {
  const days = [daysOf(programs, false, range), daysOf(programs, true, range)];
  const types = typesOfYears(programs.hebcal);
  const years = [];
  for (let year = FIRST_YEAR; year <= LAST_YEAR; ++year) {
    const ofYear = programs.hebcal.rangeOf(year);
    years.push({ year, start: ofYear[0], range: ofYear, type: types.indexOf(programs.hebcal.typeOf(year)),
      ...factsByDay(programs, days, ofYear, ofYear[0]) });
  }
  const usual = types.map((_, type) => years.filter((one) => one.type === type).at(-1).facts);
  const exceptions = years.flatMap(({ year, type, facts }) => [
    ...[...facts].filter(([fact, lands]) => usual[type].get(fact) !== lands)
      .map(([fact, lands]) => `{${year}, ${fact}, ${lands}}`),
    ...[...usual[type].keys()].filter((fact) => !facts.has(fact)).map((fact) => `{${year}, ${fact}, 0}`)]);
  const groups = [];
  const times = [];
  const omers = [];
  const instants = [];
  types.forEach((_, type) => {  // of the omer every other place, each in seven years
    const { year, range: ofYear } = years.find((one) => one.type === type && one.start > SUN_FROM);
    instants.push(...instantsOf(programs, places[0], year, ofYear, CUSTOMS[0]));
    places.forEach((place, index) => {
      const added = timesByDay(programs, place, ofYear, year);
      groups.push(`{${year}, ${index}, ${times.length}, ${added.length}}`);
      times.push(...added);
      if ((type + index) % 2 === 0) omers.push(...omerOf(groups.length - 1, programs, place, year, CUSTOMS[0]));
    });
  });
  const lineOfPlace = ([name, ...rest]) => `    {"${name}", ${rest.map((part) => JSON.stringify(part)).join(", ")}},`;
  const textOfYear = ({ year, type, start, talUmatar }) =>
    `{${year}, ${type}, ${start.replaceAll("-", "")}, ${talUmatar}}`;
  process.stdout.write([
    "// Made by tools/occasions_reference.js with @hebcal/core 6.9.3 and kosher-zmanim 0.9.0; not edited by hand.",
    "#pragma once", "// clang-format off", "inline constexpr ReferencePlace kReferencePlaces[] = {",
    ...PLACES.map(lineOfPlace), "};",
    "inline constexpr ReferenceYear kReferenceYears[] = {",
    ...wrapped(years.map(textOfYear)), "};",
    "inline constexpr ReferenceFact kReferenceFacts[] = {",
    ...wrapped(usual.flatMap((facts, type) => [...facts].map(([fact, lands]) => `{${type}, ${fact}, ${lands}}`))), "};",
    "inline constexpr ReferenceFact kReferenceExceptions[] = {", ...wrapped(exceptions), "};",
    "inline constexpr ReferenceGroup kReferenceGroups[] = {", ...wrapped(groups), "};",
    "inline constexpr ReferenceTime kReferenceTimes[] = {", ...wrapped(times), "};",
    "inline constexpr ReferenceOmer kReferenceOmers[] = {", ...wrapped(omers), "};",
    "inline constexpr ReferenceInstant kReferenceInstants[] = {", ...wrapped(instants), "};",
    "// clang-format on", ""].join("\n"));
}

function typesOfYears(hebcal) {
  const types = new Set();
  for (let year = FIRST_YEAR; year <= LAST_YEAR; ++year) types.add(hebcal.typeOf(year));
  return [...types].sort();
}

async function main() {
  const [folder, second] = process.argv.slice(2);
  const { DateTime } = require(path.resolve(folder, "node_modules", "luxon"));
  const programs = { hebcal: await Hebcal.open(folder), kosher: new KosherJava(folder), julian: new JulianCalendar() };
  const places = PLACES.map((place) => placeOf(place, DateTime));
  const range = [programs.hebcal.rangeOf(FIRST_YEAR)[0], programs.hebcal.rangeOf(LAST_YEAR)[1]];
  const types = typesOfYears(programs.hebcal);
  if (types.length !== 14) throw new Error(`${types.length} types of years`);
  if (second === "--write") write(programs, places, range);
  else compareAll(programs, places, range, second);
}

main();
