#!/usr/bin/env node
// Compares the readings with those of @hebcal/leyning, day by day, in both lands and for Ashkenazim and Sephardim; for
// Chabad the haftarah on the days for which that program has one of Chabad's own.
//
//   npm install --prefix FOLDER @hebcal/leyning@10.0.0
//   cmake --preset native && cmake --build --preset native --target print_answers
//   build/native/tools/print_answers readings 5700 5900 | node tools/compare_readings.js FOLDER
//
// Lists every kind of difference once, with how many days it is met on, the first of them, land, custom and both
// readings; help/readings.html says why they are. Exit code 0 whatever differs.
"use strict";

const path = require("path");
const readline = require("readline");
const { pathToFileURL } = require("url");

const SCROLLS = ["Song of Songs", "Ruth", "Lamentations", "Ecclesiastes", "Esther"];
const PIECE = /^(?:(\D.*?) )?(\d+:\d+(?:-\d+(?::\d+)?)?)$/;

// "Exodus 32:11-14, 34:1-10" as its pieces, each with its book; a scroll is its book alone.
function piecesOf(text) {
  const pieces = [];
  let book = "";
  for (const piece of (text || "").split(/[;,] /).filter(Boolean)) {
    const [, newBook, verses] = PIECE.exec(piece) ?? [null, piece, ""];
    book = newBook ?? book;
    pieces.push(SCROLLS.includes(book) ? book : `${book} ${verses}`.trim());
  }
  return pieces;
}

// The day's parts that both name: "torah" is the morning's, every scroll of the Torah, the maftir included.
function ourParts({ torah, haftarot }) {
  const morning = [torah.main, torah.roshChodesh, torah.maftir].flatMap(piecesOf);
  return {
    torah: morning.join(", "),
    scroll: piecesOf(torah.scroll).join(", "),
    afternoon: piecesOf(torah.afternoon).join(", "),
    haftarah: piecesOf(haftarot.main).join(", "),
    afternoonHaftarah: piecesOf(haftarot.afternoon).join(", "),
    walledCities: [torah.maftirOfWalledCities, haftarot.walledCities].flatMap(piecesOf).join(", "),
  };
}

const verses = (passages) => [].concat(passages ?? []).map(({ k, b, e }) => {
  const [chapter] = b.split(":");
  const [lastChapter, lastVerse] = e.split(":");
  return `${k} ${b === e ? b : `${b}-${chapter === lastChapter ? lastVerse : e}`}`;
}).join(", ");

function theirParts(readings, custom) {
  const parts = { torah: "", scroll: "", afternoon: "", haftarah: "", afternoonHaftarah: "", walledCities: "" };
  for (const reading of readings) {
    if (reading.type === "weekday") continue;  // Mondays and Thursdays
    const name = reading.name.en;
    const part = name.startsWith("Erev ") ? "evening" : name.endsWith("(Mincha)") ? "afternoon" : "torah";
    const pieces = piecesOf(reading.summary);
    const isScroll = (piece) => SCROLLS.includes(piece);
    parts[part] = pieces.filter((piece) => !isScroll(piece)).join(", ") || parts[part];
    parts.scroll = pieces.filter(isScroll).join(", ") || parts.scroll;
    const own = { ashkenazi: undefined, sephardi: reading.seph, chabad: reading.chabad }[custom];
    const haftarah = piecesOf(verses(own ?? reading.haft)).join(", ");
    const slot = part === "afternoon" ? "afternoonHaftarah" : "haftarah";
    parts[slot] = haftarah || parts[slot];
  }
  return parts;
}

const nameOf = (readings) => readings.filter(({ type }) => type !== "weekday").map(({ name }) => name.en).join(" + ");

async function main() {
  const modules = path.join(process.argv[2] ?? ".", "node_modules", "@hebcal");
  const load = (name) => import(pathToFileURL(path.resolve(modules, name, "dist", "esm", "index.js")));
  const { getLeyningOnDate } = await load("leyning");
  const { HDate } = await load("hdate");

  const answers = new Map();  // by date: what we list
  for await (const line of readline.createInterface({ input: process.stdin })) {
    const answer = JSON.parse(line);
    if (!answers.has(answer.date)) answers.set(answer.date, []);
    answers.get(answer.date).push(answer);
  }
  const dates = [...answers.keys()];
  const differences = new Map();
  let compared = 0;
  const last = new Date(`${dates[dates.length - 1]}T12:00:00`);
  for (let day = new Date(`${dates[0]}T12:00:00`); day <= last; day.setDate(day.getDate() + 1)) {
    const iso = [day.getFullYear(), day.getMonth() + 1, day.getDate()].map((n) => String(n).padStart(2, "0")).join("-");
    const hebrewDate = new HDate(day);
    for (const israel of [false, true]) {
      const readings = getLeyningOnDate(hebrewDate, israel, true) ?? [];
      for (const custom of ["ashkenazi", "sephardi", "chabad"]) {
        const answer = (answers.get(iso) ?? []).find((one) => one.israel === israel && one.custom === custom);
        const isChabad = custom === "chabad";
        if (isChabad && !readings.some((reading) => reading.chabad)) continue;
        const ours = ourParts(answer ?? { torah: {}, haftarot: {} });
        const theirs = theirParts(readings, custom);
        for (const part of new Set([...Object.keys(ours), ...Object.keys(theirs)])) {
          if (isChabad && part !== "haftarah") continue;
          ++compared;
          if ((ours[part] ?? "") === (theirs[part] ?? "")) continue;
          const what = `${nameOf(readings)} | ${part} | ours: ${ours[part] || "-"} | theirs: ${theirs[part] || "-"}`;
          const seen = differences.get(what) ?? { count: 0, first: iso, where: new Set() };
          ++seen.count;
          seen.where.add(`${israel ? "Israel" : "diaspora"} ${custom}`);
          differences.set(what, seen);
        }
      }
    }
  }
  for (const what of [...differences.keys()].sort()) {
    const { count, first, where } = differences.get(what);
    console.log(`${what} | ${count} times, first ${first}, ${[...where].join(", ")}`);
  }
  console.log(`${compared} parts of ${dates.length} days with readings compared, ${differences.size} kinds of difference`);
}

main();
