// Forms whose fields a framework keeps in step with its own state.
function input(name) {
  return "{tagName='INPUT' name='" + name + "'}";
}

startBrowser(SITE + "/foreign/react.html");
typeText(input("user"), "Ada");
typeText(input("password"), "s3cret!");
setChecked(input("keep"), true);
clickButton("{tagName='BUTTON'}");
waitForText("P", "said", "Ada s3cret! true");
setText(input("day"), "2024-02-29");
waitForText("P", "said", "2024-02-29");

startBrowser(SITE + "/foreign/vue.html");
setText(input("user"), "Ada");
typeText(input("password"), "s3cret!<Return>");
waitForText("P", "said", "Ada s3cret!");
setText(input("volume"), "70");
waitForText("B", "volume", "70");

startBrowser(SITE + "/packages/swagger-ui-dist/index.html");
typeText("{tagName='INPUT' class?='download-url-input*'}", SITE + "/none.json");
clickButton("{tagName='BUTTON' class?='download-url-button*'}");
waitForObject("{tagName='H4' simplifiedInnerText?='Failed to load*'}");
