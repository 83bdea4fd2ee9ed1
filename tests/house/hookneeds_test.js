// The rule that has each file of the hook script say which others it uses.
'use strict';

const assert = require('assert');
const { test } = require('node:test');

const { Linter } = require('eslint');
const espree = require('espree');

const { declaredNames, plugin } = require('../../cmake/hookneeds.js');

const room = (name, text) => ({ name, file: name, names: declaredNames(espree.parse(text, { ecmaVersion: 5 })) });
const rooms = [
  room('first', 'function __corvex__one() {} window.__corvex__list = [];' +
    'var inFunction = function () { window.__corvex__no = 1; };'),
  room('folder/second', 'window.top.__corvex.two = 2; (function () { Corvex.called = 1; })(); Corvex.three = 3;'),
  room('third', 'var Corvex = {}; Corvex.own = function () {};')
];

// What the rule makes of the second line of a file.
function corrected(needs, code) {
  const text = '// Gives: a test.\n// Needs: ' + needs + '.\n' + code + '\n';
  const config = [{ plugins: { hook: plugin(rooms) }, rules: { 'hook/needs': 'error' },
    languageOptions: { ecmaVersion: 5, sourceType: 'script' } }];
  return new Linter().verifyAndFix(text, config, 'file.js').output.split('\n')[1];
}

test('a name of another file makes it needed, however it is written', () => {
  for (const [code, file] of [['__corvex__one();', 'first'], ['window.__corvex__list.push(1);', 'first'],
    ['x = window.top.__corvex__one;', 'first'], ['__corvex.two();', 'folder/second'],
    ['window.top.__corvex.two();', 'folder/second'], ['Corvex.three();', 'folder/second'],
    ['Corvex.called();', 'folder/second'], ['Corvex.own();', 'third'], ['Corvex.mine = 1;', 'third']]) {
    assert.strictEqual(corrected('nothing', code), '// Needs: ' + file + '.', code);
  }
});

test('what is not used, unknown or in another order is wrong', () => {
  assert.strictEqual(corrected('first', 'alert(1);'), '// Needs: nothing.');
  assert.strictEqual(corrected('somewhere', '__corvex__one();'), '// Needs: first.');
  assert.strictEqual(corrected('third, first', 'Corvex.own(__corvex__one);'), '// Needs: first, third.');
  assert.strictEqual(corrected('first', '__corvex__one();'), '// Needs: first.');
});

test('names of the file itself, of functions and of objects are no needs', () => {
  for (const code of ['function f(__corvex__one) { return __corvex__one; } f();',
    'var o = { __corvex__one: 1 }; o.__corvex__list = window.__corvex__no;']) {
    assert.strictEqual(corrected('nothing', code), '// Needs: nothing.');
  }
});

test('a file without the two lines is told', () => {
  const config = [{ plugins: { hook: plugin(rooms) }, rules: { 'hook/needs': 'error' } }];
  assert.match(new Linter().verify('var a = 1;\n', config)[0].message, /opens with the lines/);
});
