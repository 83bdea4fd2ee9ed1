// Gives: partOf and draw, for scripts, functions, groups and the rows in them; and reveal, which shows a row.
// Needs: elements.js, comparison.js, pictures.js.

const LABELS = { log: 'log', message: 'page', call: '', step: '', error: '', check: '' };

function rowOf(row) {
  const status = row.isFailed ? 'failed' : row.kind === 'check' ? 'passed' : '';
  const what = make('div', 'what', make('div', 'text', row.kind === 'message' ?
    [make('span', 'level', row.level === 'uncaught' ? 'error' : row.level), ' ', row.text] : row.text));
  what.append.apply(what, traceOf(row));
  if (row.isFailed && row.expected !== undefined) {
    what.append(comparisonOf(row));
  }
  if (row.error) {
    what.append(make('div', 'problem', row.error));
  }
  if (row.figure) {
    what.append(figureOf(row.figure));
  }
  const element = make('div', 'row ' + row.kind + ' ' + status + (row.level === 'uncaught' ? ' uncaught' : ''), [
    make('span', 'time', row.durationMs === undefined ? LABELS[row.kind] : seconds(row.durationMs, 3)),
    status ? sign(status) : make('span', 'sign'), what]);
  if (row.thumbnail) {
    element.append(thumbnailOf(row.thumbnail));
    element.classList.add('pictured');
  }
  element.tabIndex = -1;
  row.element = element;
  return element;
}

function durationOf(part) {
  return part.result ? seconds(part.result.durationMs, part.kind === 'script' ? 1 : 3) : 'did not end';
}

function checksOf(result) {
  const all = [result].concat(result.functions || []);
  const sum = function (count) {
    return all.reduce(function (total, one) { return total + count(one); }, 0);
  };
  const failed = sum(function (one) { return one.failedChecks.length; });
  return { all: failed + sum(function (one) { return one.checksPassed; }), failed: failed };
}

function noteOf(part) {
  const result = part.result;
  if (!result || part.kind === 'group') {
    return '';
  }
  if (result.isSkipped && part.status === 'skipped') {
    return 'skipped' + (result.skipReason ? ': ' + result.skipReason : '');
  }
  const checks = checksOf(result);
  const attempt = part.status === 'again' ? 'attempt ' + result.attempt + ', ran again · ' :
    part.kind === 'script' && result.attempt > 1 ? 'attempt ' + result.attempt +
      (part.status === 'passed' ? ', flaky · ' : ' · ') : '';
  return attempt + counted(checks.all, 'check') + (checks.failed ? ', ' + checks.failed + ' failed' : '');
}

function draw(part) {
  if (!part.isDrawn) {
    part.isDrawn = true;
    const body = make('div', 'body', part.items.map(function (item) {
      return item.items ? partOf(item) : rowOf(item);
    }));
    if (!part.items.length) {
      body.append(make('p', 'nothing', 'Nothing happened here.'));
    }
    part.element.append(body);
  }
}

function isOpenAtFirst(part) {
  return part.status === 'failed' || part.status === 'torn';
}

function partOf(part) {
  const heading = make('summary', '', [sign(part.status), make('span', 'title', part.title),
    make('span', 'note', noteOf(part)), make('span', 'duration', durationOf(part))]);
  part.element = make('details', part.kind + ' ' + part.status, heading);
  // Closed parts cost nothing until somebody looks.
  part.element.addEventListener('toggle', function () {
    if (part.element.open) {
      draw(part);
      part.element.querySelectorAll('.frame').forEach(showMark);
    }
  });
  if (isOpenAtFirst(part)) {
    draw(part);
    part.element.open = true;
  }
  return part.element;
}

function reveal(row) {
  const above = [];
  for (let up = row.parent; up; up = up.parent) {
    above.unshift(up);
  }
  above.forEach(function (part) {
    draw(part);
    part.element.open = true;
  });
  row.element.focus({ preventScroll: true });
  row.element.scrollIntoView({ block: 'start' });
}
