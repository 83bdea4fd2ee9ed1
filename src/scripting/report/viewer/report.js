// Shows the whole report, once all of it is read.
// Needs: all the others.

const MOST_LISTED = 100;

function count(status) {
  return run.scripts.filter(function (one) { return one.status === status; }).length;
}

// Each script's last attempt counts.
function lastAttempts() {
  return run.scripts.length - count('again');
}

function sentence() {
  const failed = count('failed') + count('torn');
  return lastAttempts() === 0 ? 'No script was run.' : failed === 0 ? 'All passed.' :
    failed + ' of ' + counted(lastAttempts(), 'script') + ' failed.';
}

function drawHeader() {
  const isGood = run.summary && count('failed') + count('torn') === 0;
  document.title = (isGood ? '✓ ' : '✗ ') + 'Test report: ' + sentence();
  byId('verdict').className = isGood ? 'passed' : 'failed';
  byId('sentence').textContent = sentence();
  byId('torn').hidden = run.summary !== null;
  const flaky = run.scripts.filter(function (one) { return one.status === 'passed' && one.result.attempt > 1; }).length;
  const notRun = run.summary ? run.summary.notRun : [];
  const checks = run.scripts.map(function (one) {
    return one.result ? checksOf(one.result) : { all: 0, failed: 0 };
  });
  const total = function (field) {
    return checks.reduce(function (sum, one) { return sum + one[field]; }, 0);
  };
  const numbers = byId('numbers');
  addTerm(numbers, 'scripts', String(lastAttempts()));
  [['passed', count('passed')], ['failed', count('failed')], ['skipped', count('skipped')],
    ['flaky', flaky], ['not run', notRun.length], ['did not end', count('torn')]].forEach(function (pair) {
    if (pair[1]) {
      addTerm(numbers, pair[0], String(pair[1]));
    }
  });
  addTerm(numbers, 'checks', total('all') + (total('failed') ? ', ' + total('failed') + ' failed' : ''));
  byId('not-run').hidden = notRun.length === 0;
  byId('not-run').textContent = 'Not run: ' + notRun.join(', ');
  if (run.summary) {
    addTerm(numbers, 'time', seconds(run.summary.durationMs, 1));
  }
}

function titlesOf(row) {
  const titles = [];
  for (let up = row.parent; up; up = up.parent) {
    titles.unshift(up.kind === 'script' ? baseName(up.title) : up.title);
  }
  return titles.join(' › ');
}

function scriptOf(row) {
  let part = row.parent;
  while (part.parent) {
    part = part.parent;
  }
  return part;
}

function drawFailures() {
  const list = make('ol');
  run.failures.slice(0, MOST_LISTED).forEach(function (row) {
    const link = make('a', '', [make('span', 'path', titlesOf(row)), ' ', make('span', 'text', row.text)]);
    link.href = '#';
    link.addEventListener('click', function (event) {
      event.preventDefault();
      reveal(row);
    });
    list.append(make('li', '', link));
  });
  const more = run.failures.length - MOST_LISTED;
  byId('failures').hidden = run.failures.length === 0;
  byId('failures').append(list);
  if (more > 0) {
    byId('failures').append(make('p', '', 'and ' + more + ' more'));
  }
}

function drawEnvironment() {
  const list = byId('environment').querySelector('dl');
  run.facts.forEach(function (values, name) { addTerm(list, name, values.join('; ')); });
  byId('environment').hidden = run.facts.size === 0;
}

let place = -1;
function nextFailure() {
  if (run.failures.length) {
    place = (place + 1) % run.failures.length;
    reveal(run.failures[place]);
  }
}

function openAll(isOpen) {
  const each = function (part) {
    if (!part.items) {
      return;
    }
    if (isOpen) {
      draw(part);
    }
    if (part.element) {
      part.element.open = isOpen;
    }
    part.items.forEach(each);
  };
  run.scripts.forEach(each);
}

function showOnly(id, className) {
  const box = byId(id);
  const apply = function () { document.body.classList.toggle(className, box.checked); };
  box.addEventListener('change', apply);
  apply();
}

function showAll() {
  document.querySelectorAll('script.event').forEach(read);
  run.failures = run.failures.filter(function (row) { return scriptOf(row).status !== 'again'; });
  drawHeader();
  drawFailures();
  byId('scripts').append.apply(byId('scripts'), run.scripts.map(partOf));
  drawEnvironment();
  byId('next-failure').disabled = run.failures.length === 0;
  byId('next-failure').addEventListener('click', nextFailure);
  byId('open-all').addEventListener('click', function () { openAll(true); });
  byId('close-all').addEventListener('click', function () { openAll(false); });
  document.addEventListener('keydown', function (event) {
    const isPlain = !event.ctrlKey && !event.altKey && !event.metaKey;
    if (event.key === 'n' && isPlain) {
      nextFailure();
    }
  });
  showOnly('only-failures', 'only-failures');
  showOnly('object-calls', 'object-calls');
}

document.addEventListener('DOMContentLoaded', showAll);
