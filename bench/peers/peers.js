// Clicks and typing beside two libraries that are known for them, in one run: node bench/peers/peers.js PROGRAM.
// They are installed into a folder of their own, which stays for the next run, and drive the same browsers. What the
// bare protocol takes, with all messages sent at once, is the least that anybody could reach.
"use strict";
const { execFileSync } = require("child_process");
const fs = require("fs");
const os = require("os");
const path = require("path");

const folder = path.join(os.tmpdir(), "corvexweb-bench-peers");
const page = "file://" + path.join(__dirname, "page.html");
const chromium = process.env.CHROMIUM || "/usr/bin/chromium";
const firefox = process.env.FIREFOX || "/usr/bin/firefox-esr";
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

function library(name) {
  return require(path.join(folder, "node_modules", name));
}

async function bareTyping(view) {
  const session = await view.createCDPSession();
  const key = { key: "a", code: "KeyA", windowsVirtualKeyCode: 65 };
  return median(9, 1, () => Promise.all(Array.from(text, () => Promise.all([
    session.send("Input.dispatchKeyEvent", Object.assign({ type: "keyDown", text: "a" }, key)),
    session.send("Input.dispatchKeyEvent", Object.assign({ type: "keyUp" }, key))]))));
}

async function puppeteer() {
  const run = await library("puppeteer-core").launch({ executablePath: chromium, args: flags, pipe: true });
  const view = await run.newPage();
  const figures = await measure("Puppeteer, Chromium", view, () => view.type("#t", text));
  const bare = { name: "bare protocol, Chromium", typing: await bareTyping(view) };
  await run.close();
  return [figures, bare];
}

async function puppeteerFirefox() {
  const run = await library("puppeteer-core").launch({ browser: "firefox", executablePath: firefox });
  const view = await run.newPage();
  const figures = await measure("Puppeteer, Firefox", view, () => view.type("#t", text));
  await run.close();
  return [figures];
}

async function playwright() {
  const run = await library("playwright-core").chromium.launch({ executablePath: chromium, args: flags });
  const view = await run.newPage();
  const figures = await measure("Playwright, Chromium", view, () => view.locator("#t").pressSequentially(text));
  await run.close();
  return [figures];
}

function ours(program, name) {
  const options = ["run", "--browser", name, "--arg", "page=" + page, path.join(__dirname, "ours.js")];
  const figures = /FIGURES click (\S+) type (\S+)/.exec(execFileSync(program, options).toString());
  return [{ name: "corvexweb, " + name, click: Number(figures[1]), typing: Number(figures[2]) }];
}

function column(number, digits, width) {
  return (number === undefined ? "-" : number.toFixed(digits)).padStart(width);
}

async function main(program) {
  fs.mkdirSync(folder, { recursive: true });
  if (!fs.existsSync(path.join(folder, "node_modules", "playwright-core"))) {
    execFileSync("npm", ["install", "--silent", "--prefix", folder, "puppeteer-core", "playwright-core"]);
  }
  const rows = [].concat(ours(program, "chromium"), await puppeteer(), await playwright(), ours(program, "chromium"),
    ours(program, "firefox"), await puppeteerFirefox(), ours(program, "firefox"));
  console.log("ms, medians               click   100 characters   bare round trip");
  for (const row of rows) {
    console.log(row.name.padEnd(24) + column(row.click, 2, 7) + column(row.typing, 1, 17) + column(row.trip, 3, 18));
  }
}

main(process.argv[2] || path.join(__dirname, "..", "..", "build", "bin", "corvexweb"));
