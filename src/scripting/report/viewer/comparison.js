// Gives: comparisonOf, both values of a check side by side, with what differs marked.
// Needs: elements.js.

function differenceOf(actual, expected) {
  const a = Array.from(actual);
  const b = Array.from(expected);
  const shorter = Math.min(a.length, b.length);
  let front = 0;
  while (front < shorter && a[front] === b[front]) {
    ++front;
  }
  let back = 0;
  while (back < shorter - front && a[a.length - 1 - back] === b[b.length - 1 - back]) {
    ++back;
  }
  const parts = function (value) {
    return [value.slice(0, front).join(''), make('mark', '', value.slice(front, value.length - back).join('')),
      value.slice(value.length - back).join('')];
  };
  return front + back > 0 ? [parts(a), parts(b)] : [[actual], [expected]];
}

function comparisonOf(row) {
  const parts = differenceOf(row.actual, row.expected);
  return make('div', 'comparison', ['actual', 'expected'].map(function (side, i) {
    return make('div', side, [make('h3', '', side), make('pre', '', parts[i])]);
  }));
}
