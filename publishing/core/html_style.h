// How pages of HTML look.
#pragma once

namespace publishing {

constexpr char kHtmlStyle[] = R"(:root {
  color-scheme: light dark;
  --ink: #1f1c18;
  --soft: #665f55;
  --line: #d9d4ca;
  --band: #f4f1eb;
  --page: #fff;
}
@media (prefers-color-scheme: dark) {
  :root {
    --ink: #ece7de;
    --soft: #aca496;
    --line: #443f37;
    --band: #28251f;
    --page: #191714;
  }
}
* { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; text-size-adjust: 100%; }
body {
  margin: 0;
  padding: 2rem 1.5rem;
  background: var(--page);
  color: var(--ink);
  font: 1rem/1.45 "Segoe UI", "Helvetica Neue", Roboto, "Noto Sans", "Noto Sans Hebrew", Arial, sans-serif;
}
main { width: fit-content; max-width: 100%; margin: 0 auto; }
h1 { margin: 0 0 .25rem; font-size: 1.6rem; line-height: 1.2; overflow-wrap: anywhere; }
p { margin: 0; color: var(--soft); overflow-wrap: anywhere; }
.wide { overflow-x: auto; margin: 1.25rem 0; }
table { min-width: 100%; border-collapse: collapse; font-variant-numeric: tabular-nums; }
caption { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
th, td { padding: .4rem .75rem; text-align: start; vertical-align: top; white-space: pre-line; }
thead th { vertical-align: bottom; border-bottom: 2px solid var(--ink); background: var(--page); }
tbody td { border-bottom: 1px solid var(--line); }
tbody tr:nth-child(even) td { background: var(--band); }
.group th { padding-top: 1.5rem; font-size: 1.1rem; border-bottom: 1px solid var(--ink); }
.bold { font-weight: bold; }
.end { text-align: end; }
.whole { white-space: nowrap; }
@media screen and (max-width: 600px) {
  body { padding: 1.25rem 1rem; }
  main { width: auto; }
  .wide { overflow-x: visible; }
  table, tbody, tr, td, .group th { display: block; }
  thead { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
  tbody tr { margin: 0 0 .75rem; padding: .35rem .85rem; border: 1px solid var(--line); border-radius: .6rem; }
  tbody tr:not(.group) { background: var(--band); }
  tbody tr.group { margin-top: 1.5rem; padding: 0; border: 0; }
  .group th { padding: 0 .1rem .25rem; border: 0; }
  tbody tr:nth-child(n) td {
    display: flex;
    justify-content: space-between;
    gap: 1rem;
    padding: .25rem 0;
    border: 0;
    background: none;
  }
  td::before { content: attr(data-label); flex: none; max-width: 50%; color: var(--soft); font-weight: normal; }
  td bdi { min-width: 0; text-align: end; overflow-wrap: anywhere; }
  tbody tr:nth-child(n) td:empty { display: none; }
}
@media print {
  :root { color-scheme: light; --ink: #000; --soft: #333; --line: #bbb; --band: transparent; --page: #fff; }
  @page { margin: 15mm; }
  @page across { size: landscape; margin: 10mm; }
  body { padding: 0; font-size: 10pt; }
  main { width: auto; }
  .wide { overflow-x: visible; }
  th, td { padding: 1.2mm 2mm; }
  thead { display: table-header-group; }
  tr, h1 { break-inside: avoid; }
  h1, .group { break-after: avoid; }
  .page { break-before: page; }
  .many, .most { page: across; font-size: 8pt; }
  .many :is(th, td) { padding: .8mm 1.2mm; }
  .most { font-size: 6pt; }
  .most :is(th, td) { padding: .5mm; }
}
)";

}  // namespace publishing
