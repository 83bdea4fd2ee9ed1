// Gives: window.top.__corvex.simplifyText and getSimplifiedInnerText.
// Needs: properties/values.

function __corvex__simplifiedText(text) {
  if (!text) {
    return text;
  }
  return text.replace(/\s+/g, " ").replace(/^ | $/g, "");
}

window.top.__corvex.simplifyText = __corvex__simplifiedText;

window.top.__corvex.getSimplifiedInnerText = function (o) {
  return __corvex__simplifiedText(__corvex__propertyValue(o, "innerText"));
};
