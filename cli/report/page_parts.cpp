#include "report/page_parts.hpp"

namespace quor_cli {

char const page_style[] = R"css(
:root { color-scheme: light dark; --ground: #f6f7f9; --card: #fff; --ink: #1d2430; --faint: #667085; --line: #e3e7ee;
  --own: #1a7f4b; --own-ground: #e3f5ea; --inherited: #8a5a00; --inherited-ground: #fdf1d6; --missing: #b3261e;
  --missing-ground: #fde7e5; --accent: #2f5bd8; }
@media (prefers-color-scheme: dark) { :root { --ground: #14171c; --card: #1d2129; --ink: #e6e9ef; --faint: #98a2b3;
  --line: #2e3440; --own: #6fdca0; --own-ground: #17382a; --inherited: #f2c25e; --inherited-ground: #3d3015;
  --missing: #ff9a91; --missing-ground: #45201e; --accent: #8fb0ff; } }
* { box-sizing: border-box; }
body { margin: 0; background: var(--ground); color: var(--ink); font: 15px/1.5 system-ui, sans-serif; }
main { max-width: 76rem; margin: 0 auto; padding: 2rem 1.5rem 4rem; }
h1 { font-size: 1.6rem; margin: 0; }
.lead { color: var(--faint); margin: .25rem 0 1.5rem; }
.cards { display: grid; grid-template-columns: repeat(auto-fill, minmax(13rem, 1fr)); gap: .9rem; }
.card { background: var(--card); border: 1px solid var(--line); border-radius: .7rem; padding: .9rem 1rem; }
.card h2 { display: flex; justify-content: space-between; font-size: 1.05rem; margin: 0 0 .5rem; }
.card h2 span { font-weight: 400; color: var(--faint); }
.bar { display: flex; height: .5rem; border-radius: .25rem; overflow: hidden; background: var(--line); }
.bar i { display: block; } .bar .own { background: var(--own); } .bar .inherited { background: #e0a526; }
.bar .missing { background: var(--missing); }
.card p { margin: .5rem 0 0; color: var(--faint); font-size: .85rem; }
.tools { position: sticky; top: 0; z-index: 2; display: flex; flex-wrap: wrap; gap: .6rem; align-items: center;
  padding: .8rem 0; margin-top: 1.4rem; background: var(--ground); }
#filter { flex: 1 1 16rem; padding: .55rem .8rem; font: inherit; color: inherit; background: var(--card);
  border: 1px solid var(--line); border-radius: .5rem; }
#filter:focus-visible, button:focus-visible { outline: 2px solid var(--accent); outline-offset: 1px; }
.tools button { padding: .5rem .8rem; font: inherit; color: inherit; background: var(--card);
  border: 1px solid var(--line); border-radius: .5rem; cursor: pointer; }
.tools button[aria-pressed=true] { background: var(--accent); border-color: var(--accent); color: var(--card); }
#shown { color: var(--faint); min-width: 8rem; text-align: right; }
.scroll { overflow-x: auto; background: var(--card); border: 1px solid var(--line); border-radius: .7rem; }
table { width: 100%; border-collapse: collapse; }
th, td { padding: .45rem .8rem; text-align: left; border-top: 1px solid var(--line); vertical-align: top; }
thead th { border-top: 0; font-size: .85rem; color: var(--faint); font-weight: 600; }
th.state, td.state { text-align: center; width: 6rem; }
tr.message { cursor: pointer; } tr.message:hover { background: var(--ground); }
tr.message button { all: unset; cursor: pointer; font-weight: 600; }
tr.message button::before { content: "\25B8"; display: inline-block; width: 1.1em; color: var(--faint); }
tr.message.open button::before { content: "\25BE"; }
tr.message button:focus-visible { outline: 2px solid var(--accent); border-radius: .2rem; }
.catalog { color: var(--faint); font-weight: 400; } .meta { color: var(--faint); font-size: .85rem; margin-left: .5rem; }
.chip { display: inline-block; min-width: 3.2rem; padding: 0 .5rem; border-radius: 1rem; font-size: .85rem; }
.chip.own { color: var(--own); background: var(--own-ground); }
.chip.inherited { color: var(--inherited); background: var(--inherited-ground); }
.chip.neutral { color: var(--faint); background: var(--line); }
.chip.missing { color: var(--missing); background: var(--missing-ground); }
tr.texts td { background: var(--ground); padding: .3rem .8rem .8rem 2rem; }
dl { display: grid; grid-template-columns: max-content 1fr; gap: .35rem 1rem; margin: 0; }
dt { color: var(--faint); } dd { margin: 0; white-space: pre-wrap; overflow-wrap: anywhere; }
dd.missing { color: var(--missing); }
[hidden] { display: none !important; }
)css";

char const page_script[] = R"js(
"use strict";
const box = document.getElementById("filter");
const shown = document.getElementById("shown");
const rows = [...document.querySelectorAll("tr.message")].map(row =>
  ({ row, texts: row.nextElementSibling, words: (row.textContent + " " + row.nextElementSibling.textContent).toLowerCase() }));
const buttons = [...document.querySelectorAll("button[data-state]")];
let state = "";

function show(entry, open) {
  entry.row.classList.toggle("open", open);
  entry.row.querySelector("button").setAttribute("aria-expanded", open);
  entry.texts.hidden = !open;
}
function apply() {
  const words = box.value.toLowerCase().split(/\s+/).filter(word => word);
  let count = 0;
  for (const entry of rows) {
    const fits = words.every(word => entry.words.includes(word)) &&
      (!state || entry.row.querySelector(".chip." + state) !== null);
    entry.row.hidden = !fits;
    entry.texts.hidden = !fits || !entry.row.classList.contains("open");
    count += fits;
  }
  shown.textContent = count + " of " + rows.length;
  for (const button of buttons) { button.setAttribute("aria-pressed", button.dataset.state === state); }
}
function read() {
  const wanted = new URLSearchParams(location.hash.slice(1));
  box.value = wanted.get("filter") || "";
  state = ["own", "inherited", "missing"].includes(wanted.get("state")) ? wanted.get("state") : "";
  apply();
}
function write() {
  const wanted = new URLSearchParams();
  if (box.value) { wanted.set("filter", box.value); }
  if (state) { wanted.set("state", state); }
  history.replaceState(null, "", "#" + wanted);
  apply();
}
for (const entry of rows) {
  entry.row.addEventListener("click", () => show(entry, !entry.row.classList.contains("open")));
}
for (const button of buttons) {
  button.addEventListener("click", () => { state = button.dataset.state; write(); });
}
box.addEventListener("input", write);
addEventListener("hashchange", read);
read();
)js";

} // namespace quor_cli
