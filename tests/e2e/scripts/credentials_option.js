// A user and a password from a file beside the script.
// @options --verbose --credentials nobody:x@http://localhost:1 --credentials @login
// @file ada:sec:r@t login
// @hidden sec:r@t
startBrowser(SITE + "/private");
test.compare(pageTitle(), "Private");
