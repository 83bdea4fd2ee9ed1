// Gives: window.top.__corvex.simplifyText and getSimplifiedInnerText.
// Needs: getPropertyValue.

window.top.__corvex.simplifyText = function (text) {
  if (!text) {
    return text;
  }
  return text.replace(/\s+/g, " ").replace(/^ | $/g, "");
};

window.top.__corvex.getSimplifiedInnerText = function (o) {
  return window.top.__corvex.simplifyText(window.top.__corvex.getPropertyValue(o, "innerText"));
};
