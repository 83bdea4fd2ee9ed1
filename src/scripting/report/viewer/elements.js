// Gives: small parts of the page that others are made of.
// Needs: nothing.

const SIGNS = { passed: '✓', failed: '✗', skipped: '–', torn: '…', again: '↻' };
const byId = function (id) { return document.getElementById(id); };

function make(tag, className, content) {
  const element = document.createElement(tag);
  element.className = className || '';
  element.append.apply(element, [].concat(content === undefined ? [] : content));
  return element;
}

function seconds(milliseconds, digits) {
  return (milliseconds / 1000).toFixed(digits) + ' s';
}

function counted(count, noun) {
  return count + ' ' + noun + (count === 1 ? '' : 's');
}

function sign(status) {
  const mark = make('span', 'sign ' + status, SIGNS[status]);
  mark.setAttribute('role', 'img');
  mark.setAttribute('aria-label', { torn: 'did not end', again: 'failed, and ran again' }[status] || status);
  return mark;
}

function addTerm(list, term, value) {
  list.append(make('div', '', [make('dt', '', term), make('dd', '', value)]));
}

function baseName(path) {
  return path.slice(path.lastIndexOf('/') + 1);
}

function placeOf(location, isWhole) {
  const text = (isWhole ? location.file : baseName(location.file)) + (location.line ? ':' + location.line : '');
  const place = make('code', 'place', text);
  place.title = location.file;
  return place;
}

function whereLine(location, isWhole, before) {
  return make('div', 'where', [before || '', placeOf(location, isWhole), ' ', make('code', 'source', location.text)]);
}

function traceOf(row) {
  const trace = row.trace || [];
  if (!row.isFailed) {
    return trace.slice(0, 1).map(function (location) { return whereLine(location, false, ''); });
  }
  return trace.slice(0, 15).map(function (location, i) {
    return whereLine(location, true, i ? 'called from ' : '');
  });
}
