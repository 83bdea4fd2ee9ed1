// Gives: the queue of messages in sessionStorage, for pages that cannot connect; it outlives the page.
// Needs: nothing.

function __corvex__quotedForQueue(text) {
  return "\"" + String(text).replace(/[\\"\u0000-\u001f\u2028\u2029\ud800-\udfff]/g, function (c) {
    return "\\u" + ("000" + c.charCodeAt(0).toString(16)).slice(-4);
  }) + "\"";
}

// Written by hand: a page that gives arrays or texts a toJSON of its own would spoil what JSON.stringify makes of them.
function __corvex__queueText(records) {
  var texts = [];
  for (var i = 0; i < records.length; ++i) {
    var url = records[i].url === undefined ? "" : "\"url\":" + __corvex__quotedForQueue(records[i].url) + ",";
    texts.push("{" + url + "\"payload\":" + __corvex__quotedForQueue(records[i].payload) + "}");
  }
  return "[" + texts.join(",") + "]";
}

// obj: payload, and url where it is a message with a body. Throws where the storage is closed, full or corrupt.
function __corvex__addObjectToEventStorage(obj) {
  var records = JSON.parse(sessionStorage.getItem("eventStorage") || "[]");
  records.push(obj);
  sessionStorage.setItem("eventStorage", __corvex__queueText(records));
}

// The records so far, which the queue forgets.
function __corvex__getSessionStorageEvents() {
  var text = sessionStorage.getItem("eventStorage");
  if (text === null) {
    return [];
  }
  var records = JSON.parse(text);
  sessionStorage.setItem("eventStorage", "[]");
  return records;
}
