// Gives: the request of proxy mode that waits at the page's own origin for code to evaluate.
// Needs: runtime/natives, runtime/builtins.

// Global because it has to be aborted before the page unloads: else it could receive code meant for the next page.
window.__corvex__asyncWaitRequest = { request: null, startAgain: true };

function __corvex__processWebhookMsg(req) {
  // By another name, so that the code runs in the window and not in this function.
  var evaluateInWindow = eval; // eslint-disable-line no-eval -- it is there to run the driver's code
  evaluateInWindow(req.responseText);
}

// Not every browser hands over the event. Its target is the request that answered, which need not be the stored one.
function __corvex__requestOfEvent(e) {
  var ev = e || window.event;
  return (ev && ev.target) || window.__corvex__asyncWaitRequest.request;
}

function __corvex__onWaitRequestChange(e) {
  var request = __corvex__requestOfEvent(e);
  if (!request || request.readyState !== 4) {
    return;
  }
  // The next wait stands before the received code runs.
  if (window.__corvex__asyncWaitRequest.startAgain) {
    __corvex__asyncWaitForWebhookMsg();
  } else {
    window.__corvex__asyncWaitRequest.request = null;
  }
  if (request.status === 200) {
    __corvex__processWebhookMsg(request);
  }
}

function __corvex__asyncWaitForWebhookMsg() {
  var request = __corvex__natives.createRequest();
  window.__corvex__asyncWaitRequest.request = request;
  request.onreadystatechange = __corvex__quiet(__corvex__onWaitRequestChange);
  request.open("GET", location.protocol + "//" + location.host + "/__corvex__waitForEval__/", true);
  request.send(null);
}

// A waiting request must not catch code that is meant for the next page.
function __corvex__stopLongPoll() {
  try {
    var wait = window.__corvex__asyncWaitRequest;
    if (wait && wait.request) {
      wait.startAgain = false;
      wait.request.abort();
    }
  } catch (e) {
    // It goes with the page.
  }
}
