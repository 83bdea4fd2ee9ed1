// Clicks and typing beside two libraries that are known for them, in one run: node bench/peers/peers.js PROGRAM.
// They are installed into a folder of their own, which stays for the next run, and drive the same Chromium.
"use strict";
const { execFileSync } = require("child_process");
const fs = require("fs");
const os = require("os");
const path = require("path");

const folder = path.join(os.tmpdir(), "corvexweb-bench-peers");
const page = "file://" + path.join(__dirname, "page.html");
const browser = process.env.CHROMIUM || "/usr/bin/chromium";
const flags = ["--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
  "--disable-component-update", "--disable-sync"].concat(process.getuid() === 0 ? ["--no-sandbox"] : []);
const text = "a".repeat(100);

function medianOf(numbers) {
  return numbers.sort((a, b) => a - b)[Math.floor(numbers.length / 2)];
}

async function median(times, repeated, action) {
  const taken = [];
  for (let i = 0; i < times; ++i) {
    const begin = performance.now();
    for (let k = 0; k < repeated; ++k) {
      await action();
    }
    taken.push((performance.now() - begin) / repeated);
  }
  return medianOf(taken);
}

async function measure(name, view, type) {
  await view.goto(page);
  await view.click("#b");
  const click = await median(5, 20, () => view.click("#b"));
  const typing = await median(9, 1, type);
  const trip = await median(5, 100, () => view.evaluate("1"));
  return { name, click, typing, trip };
}

async function puppeteer() {
  const library = require(path.join(folder, "node_modules", "puppeteer-core"));
  const run = await library.launch({ executablePath: browser, args: flags });
  const view = await run.newPage();
  const figures = await measure("Puppeteer", view, () => view.type("#t", text));
  await run.close();
  return figures;
}

async function playwright() {
  const library = require(path.join(folder, "node_modules", "playwright-core"));
  const run = await library.chromium.launch({ executablePath: browser, args: flags });
  const view = await run.newPage();
  const figures = await measure("Playwright", view, () => view.locator("#t").pressSequentially(text));
  await run.close();
  return figures;
}

function ours(program) {
  const output = execFileSync(program, ["run", "--arg", "page=" + page, path.join(__dirname, "ours.js")]).toString();
  const figures = /FIGURES click (\S+) type (\S+)/.exec(output);
  return { name: "corvexweb", click: Number(figures[1]), typing: Number(figures[2]) };
}

async function main(program) {
  fs.mkdirSync(folder, { recursive: true });
  if (!fs.existsSync(path.join(folder, "node_modules", "playwright-core"))) {
    execFileSync("npm", ["install", "--silent", "--prefix", folder, "puppeteer-core", "playwright-core"]);
  }
  const rows = [ours(program), await puppeteer(), await playwright(), ours(program)];
  console.log("ms, medians            click   100 characters   bare round trip");
  for (const row of rows) {
    console.log(row.name.padEnd(20) + row.click.toFixed(2).padStart(8) + row.typing.toFixed(1).padStart(17) +
      (row.trip ? row.trip.toFixed(3) : "-").padStart(18));
  }
}

main(process.argv[2] || path.join(__dirname, "..", "..", "build", "bin", "corvexweb"));
