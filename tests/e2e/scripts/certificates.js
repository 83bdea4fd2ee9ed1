// A server whose certificate nobody trusts: refused with a sentence.
startBrowser(SITE + "/plain.html");
verifyFails(function () { openUrl(SECURE_SITE + "/"); }, "--ignore-certificate-errors has it take any");
