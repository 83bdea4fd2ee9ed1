// Gives: run, what the events say: scripts, each with what happened in it, in its functions and groups.
// Needs: the events, as elements of the page.

const run = { facts: new Map(), scripts: [], summary: null, failures: [] };

// A script, one of its functions, a group or a step: all have what happened in them, and where they are.
let script = null;
let inside = null;
let lastRow = null;
let lastPicture = null;
let pending = null;

function begin(kind, title) {
  inside = { kind: kind, title: title, items: [], parent: inside, status: 'torn', result: null };
  inside.script = script = kind === 'script' ? inside : script;
  lastRow = null;
  (inside.parent ? inside.parent.items : run.scripts).push(inside);
}

function hasFailed(result) {
  return result.error !== '' || result.failedChecks.length > 0;
}

function end(kind, result) {
  while (inside && inside.kind !== kind && inside.parent) {
    inside = inside.parent;
  }
  if (!inside) {
    return;
  }
  inside.result = result;
  if (kind !== 'group' && result.error) {
    add({ kind: 'error', text: result.error, trace: result.trace, isFailed: true, figure: pending });
    pending = null;
  }
  const isFailed = kind === 'group' ? result.error !== '' || inside.hasFailure :
    hasFailed(result) || (result.functions || []).some(hasFailed);
  inside.status = result.runsAgain ? 'again' : isFailed ? 'failed' : result.isSkipped ? 'skipped' : 'passed';
  inside = inside.parent;
  lastRow = null;
}

function add(row) {
  if (!inside) {
    return;
  }
  row.parent = inside;
  inside.items.push(row);
  lastRow = row;
  if (row.isFailed && (row.kind === 'check' || row.kind === 'error')) {
    run.failures.push(row);
    for (let up = inside; up; up = up.parent) {
      up.hasFailure = true;
    }
  }
}

function addPicture(event) {
  if (event.purpose === 'step') {
    if (lastRow) {
      lastRow.thumbnail = event;
    }
    return;
  }
  lastPicture = { picture: event, tree: null, isTreeLeftOut: false };
  if (lastRow && lastRow.isFailed && !lastRow.figure) {
    lastRow.figure = lastPicture;
  } else {
    pending = lastPicture;
  }
}

const readers = {
  environment: function (event) {
    event.facts.forEach(function (fact) {
      const values = run.facts.get(fact.name) || [];
      run.facts.set(fact.name, values.indexOf(fact.value) < 0 ? values.concat(fact.value) : values);
    });
  },
  scriptStarted: function (event) {
    inside = null;
    pending = null;
    begin('script', event.path);
  },
  functionStarted: function (event) { begin('function', event.name + '()'); },
  groupStarted: function (event) { begin('group', event.title); },
  groupFinished: function (event) { end('group', event); },
  functionFinished: function (event) { end('function', event); },
  scriptFinished: function (event) { end('script', event); },
  runFinished: function (event) { run.summary = event; },
  step: function (event) { add(Object.assign(event, { kind: 'step', isFailed: event.error !== '' })); },
  objectCall: function (event) { add(Object.assign(event, { kind: 'call', isFailed: event.error !== '' })); },
  check: function (event) { add(Object.assign(event, { kind: 'check', isFailed: !event.passed })); },
  log: function (event) { add({ kind: 'log', text: event.text }); },
  pageMessage: function (event) { add({ kind: 'message', level: event.kind, text: event.text }); },
  picture: addPicture,
  tree: function (event) {
    if (lastPicture) {
      lastPicture.tree = event.json;
      lastPicture.isTreeLeftOut = !event.json;
    }
  }
};

// The last event of a run that was cut off may be torn.
function read(element) {
  let event = null;
  try {
    event = JSON.parse(element.textContent);
  } catch (e) {
    return;
  }
  if (Object.prototype.hasOwnProperty.call(readers, event.event)) {
    readers[event.event](event);
  }
}
