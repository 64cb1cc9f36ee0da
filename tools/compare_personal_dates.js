#!/usr/bin/env node
// Compares birthdays and yahrzeit with Hebcal's, every day of two cycles of 19 years in each of the 38 years after it.
//
//   npm install --prefix FOLDER @hebcal/core@6.9.3
//   cmake --preset native && cmake --build --preset native --target print_answers
//   build/native/tools/print_answers personal | node tools/compare_personal_dates.js FOLDER
//
// Lists what differs; exit code 1 then.
"use strict";

const path = require("path");
const readline = require("readline");
const { pathToFileURL } = require("url");

const two = (number) => String(number).padStart(2, "0");

async function main() {
  const core = path.resolve(process.argv[2] ?? ".", "node_modules", "@hebcal", "core", "dist", "esm", "index.js");
  const { HDate, HebrewCalendar } = await import(pathToFileURL(core));
  let answers = 0;
  let differences = 0;
  for await (const line of readline.createInterface({ input: process.stdin })) {
    const [kind, event, year, ours] = line.split(" ");
    const [day, month, eventYear] = event.split(".").map(Number);
    const date = new HDate(day, month, eventYear);
    const kept = kind === "birthday" ? HebrewCalendar.getBirthdayOrAnniversary(Number(year), date)
      : HebrewCalendar.getYahrzeit(Number(year), date);
    const civil = kept && kept.greg();
    const theirs = civil ? `${civil.getFullYear()}-${two(civil.getMonth() + 1)}-${two(civil.getDate())}` : "none";
    ++answers;
    if (ours === theirs) continue;
    if (++differences <= 100) console.log(`${line}: Hebcal has ${theirs}`);
  }
  console.log(`${answers} answers compared, ${differences} differ`);
  process.exitCode = differences || !answers ? 1 : 0;
}

main();
