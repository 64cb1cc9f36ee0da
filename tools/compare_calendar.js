#!/usr/bin/env node
// Compares the Jewish calendar with ICU's, day by day from 1583 to 3000: Node brings ICU along (Debian's nodejs does).
//
//   cmake --preset native && cmake --build --preset native --target print_answers
//   build/native/tools/print_answers calendar | node tools/compare_calendar.js
//
// Lists every day on which the two differ; exit code 1 then.
"use strict";

const readline = require("readline");

const MONTHS = ["", "Nisan", "Iyar", "Sivan", "Tamuz", "Av", "Elul", "Tishri", "Heshvan", "Kislev", "Tevet", "Shevat"];
const format = new Intl.DateTimeFormat("en-u-ca-hebrew", {
  day: "numeric", month: "long", year: "numeric", timeZone: "UTC",
});

// Our number of ICU's month. Adar of a common year is 12, as Adar I is; Adar II is 13.
function monthNumber(name) {
  const number = MONTHS.indexOf(name);
  if (number > 0) return number;
  if (name === "Adar" || name === "Adar I") return 12;
  if (name === "Adar II") return 13;
  throw new Error(`ICU names a month ${name}`);
}

function byIcu(civil) {
  const parts = {};
  for (const { type, value } of format.formatToParts(new Date(`${civil}T12:00:00Z`))) parts[type] = value;
  return `${parts.day}.${monthNumber(parts.month)}.${parts.year ?? parts.relatedYear}`;
}

async function main() {
  let days = 0;
  let differences = 0;
  for await (const line of readline.createInterface({ input: process.stdin })) {
    const [civil, ours] = line.split(" ");
    const theirs = byIcu(civil);
    ++days;
    if (ours === theirs) continue;
    ++differences;
    console.log(`${civil}: ${ours} here, ${theirs} by ICU`);
  }
  console.log(`ICU ${process.versions.icu}: ${days} days, ${differences} differ`);
  process.exitCode = differences > 0 || days === 0 ? 1 : 0;
}

main();
