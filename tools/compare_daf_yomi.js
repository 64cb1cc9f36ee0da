#!/usr/bin/env node
// Compares the pages of Daf Yomi with those of @hebcal/learning, day by day from 11 September 1923 to 3000.
//
//   npm install --prefix FOLDER @hebcal/learning@6.11.3 @hebcal/core
//   cmake --preset native && cmake --build --preset native --target print_answers
//   build/native/tools/print_answers daf-yomi | node tools/compare_daf_yomi.js FOLDER
//
// Lists every day on which the two differ; exit code 1 then. Names of tractates are compared by their place in the
// cycle, as the two spell some of them otherwise.
"use strict";

const path = require("path");
const readline = require("readline");
const { pathToFileURL } = require("url");

const load = (folder, name) => import(pathToFileURL(path.resolve(folder, "node_modules", name, "dist", "esm", "index.js")));

// Numbers names as they are first met: the same numbers mean the same tractates.
function numbering() {
  const numbers = new Map();
  return (name) => {
    if (!numbers.has(name)) numbers.set(name, numbers.size + 1);
    return numbers.get(name);
  };
}

async function main() {
  const { DafYomi } = await load(process.argv[2] ?? ".", "@hebcal/learning");
  const { HDate } = await load(process.argv[2] ?? ".", "@hebcal/core");
  const ourNumber = numbering();
  const theirNumber = numbering();
  let days = 0;
  let differences = 0;
  for await (const line of readline.createInterface({ input: process.stdin })) {
    const [, day, tractate, leaf] = /^(\d+) (.+) (\d+)$/.exec(line);
    const theirs = new DafYomi(new HDate(Number(day)));
    ++days;
    if (ourNumber(tractate) === theirNumber(theirs.getName()) && Number(leaf) === theirs.getBlatt()) continue;
    ++differences;
    console.log(`day ${day}: ${tractate} ${leaf} here, ${theirs.getName()} ${theirs.getBlatt()} by @hebcal/learning`);
  }
  console.log(`${days} days, ${differences} differ`);
  process.exitCode = differences > 0 || days === 0 ? 1 : 0;
}

main();
