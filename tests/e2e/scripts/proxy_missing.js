// A proxy that is not there.
// @options --proxy socks5://127.0.0.1:9
// @exit 1 The proxy cannot be reached; start it or correct --proxy.
startBrowser("http://proxied.test/");
