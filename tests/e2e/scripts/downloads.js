// Files that pages have the browser take.
startBrowser(SITE + "/downloads.html");
function download(id) {
  mouseClick(element("A", id));
  return waitForDownload();
}
var report = download("report");
test.compare([report.name, report.url, report.size], ["report.csv", SITE + "/report", 8]);
test.compare(readTable(report.path), [{ a: "1", b: "2" }]);

// Those that began before the call come in their order.
mouseClick(element("A", "report"));
openUrl(SITE + "/hostile");
test.compare(currentUrl(), SITE + "/downloads.html", "the page stays");
var second = waitForDownload();
var third = waitForDownload();
test.compare(second.name, "report.csv");
test.verify(second.path !== report.path, "each has a file of its own");
test.verify(/^[^\/\\.][^\/\\]{20,146}\.csv$/.test(third.name), third.name);
test.compare(third.path.split("/").pop(), third.name);
var folder = report.path.split("/").slice(0, -2).join("/");
test.compare(third.path.indexOf(folder + "/"), 0, "in the folder of downloads");
test.compare(download("window").name, "report.csv");
test.compare(download("made").size, 4);

saveDownload(report.path, "kept/mine.csv");
saveDownload(second.path, "kept/");
saveDownload(third.path, "kept/report.csv");
test.compare([readTable("kept/mine.csv").length, readTable("kept/report.csv").length], [1, 1]);
verifyFails(function () { saveDownload("nothing.csv", "kept/"); }, "there is no file 'nothing.csv'");

verifyFails(function () { waitForDownload(100); }, "No download ended within 100 ms. None is under way");
verifyFails(function () { download("broken"); }, "The download 'broken.csv' from '" + SITE + "/broken' broke off");
startBrowser(SITE + "/downloads.html");
test.compare(readTable(report.path).length, 1, "files stay to the script's end");
